#pragma once

#include "platform/data/Connection.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillmere::test {

using Lines = std::vector<std::string>;

/// The one person and the one unit of the small register.
inline constexpr std::string_view thePerson = "11111111-1111-4111-8111-111111111111";
inline constexpr std::string_view theUnit = "22222222-2222-4222-8222-222222222222";

/// Makes the whole catalogue in an empty database, with nobody but one person and one unit in it, with
/// fields that take any text and identities that count up.
void makeSmallRegister(data::Connection& connection);

/// Three studies of the person, as statements.
inline constexpr const char* studies[] = {
    "insert into A02 (A00,A0299,A0201,A0203) values "
    "('11111111-1111-4111-8111-111111111111',1,'1999-09','甲')",
    "insert into A02 (A00,A0299,A0201,A0203) values "
    "('11111111-1111-4111-8111-111111111111',2,'2003-09','乙')",
    "insert into A02 (A00,A0299,A0201,A0203) values "
    "('11111111-1111-4111-8111-111111111111',3,'2006-09','丙')",
};

/// "table|cell|cell" of each row of every information set.
[[nodiscard]] Lines allRows(data::Connection& connection);

} // namespace quillmere::test

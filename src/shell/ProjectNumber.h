#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quillmere {

/// `text` with `count` characters "0" in front of it (side 0) or behind it (side 1); empty for any
/// other side.
[[nodiscard]] std::string PadZeros(std::string_view text, std::int16_t side, std::int16_t count);

/// The number of projects numbered today plus one, in three characters: the first three when it has
/// more.
[[nodiscard]] std::string NextDaySerial();

/// Three random digits, from a generator seeded by the clock.
[[nodiscard]] std::string RandomDigits();

/// "KVEL", today as yymmdd, NextDaySerial and RandomDigits; empty on a failure. No command calls it:
/// a new project row stores an empty number.
[[nodiscard]] std::string MakeProjectNo();

/// Descriptions of the sets that hold rows of an identity, each followed by a carriage return. A
/// failure ends the list. No command calls it.
[[nodiscard]] std::string ListFilledSets(std::string_view id);

} // namespace quillmere

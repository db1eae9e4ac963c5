#pragma once

#include "Register.h"
#include "platform/data/Connection.h"

#include <cstddef>
#include <string>
#include <vector>

namespace quillmere::bench {

/// Adds to a sample register what it does not have by itself.
/// @{

/// Persons with as many jobs as the cases want.
void addLists(data::Connection& connection);
/// Code tables smaller and larger than those of the sample, in SQLite's words.
void addCodeTables(data::Connection& connection);
/// @}

/// The person with that many jobs, out of `listLengths`. Raises when there is none.
[[nodiscard]] std::string personWithJobs(const Register& from, std::size_t rows);

inline constexpr std::size_t listLengths[] = {10, 100, 200, 1'000, 10'000};

/// A code table with its number of codes.
struct CodeTable {
    const char* name;
    std::size_t codes;
};

/// From few to many; the second is the sample register's own, of divisions.
inline constexpr CodeTable codeTables[] = {{"DM_BENCH1", 300}, {"DM_XZQH", 3'230}, {"DM_BENCH3", 100'000}};

} // namespace quillmere::bench

#pragma once

#include "platform/data/Connection.h"
#include "sample/Dialect.h"

#include <cstdint>

/// The sample register: a whole catalogue, code tables after the national standards, and made-up
/// people, units and projects. Its source is the comma-separated text in `sample/data`.
namespace quillmere::sample {

struct Options {
    int persons = 200;
    int units = 20;
    /// The same seed makes the same register.
    std::uint64_t seed = 20260115;
    /// False leaves out people, units and projects, whatever the counts say.
    bool people = true;
    Engine engine = Engine::Sqlite;
};

/// The first of the register have the basic sets alone, so that work on them begins with little there.
constexpr int plainPersons = 50;
constexpr int plainUnits = 10;

/// The last person and the last unit whose project has records beyond the basic ones: budgets are numbered
/// over the whole table, with numbers of 16 bits.
constexpr int lastWithRecords = 6000;

/// Makes the register in an empty database, in one transaction: on a failure nothing stays. Raises
/// what the connection raises, and BadArguments for counts below 0.
void build(data::Connection& connection, const Options& options);

} // namespace quillmere::sample

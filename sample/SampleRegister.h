#pragma once

#include "platform/data/Connection.h"
#include "sample/Dialect.h"

#include <cstdint>

/// The sample register: a whole catalogue, code tables after the national standards, and made-up
/// people, units and projects. Its source is the comma-separated text in `sample/data`.
namespace quillmere::sample {

struct Options {
    int persons = 50;
    int units = 10;
    /// The same seed makes the same register.
    std::uint64_t seed = 20260115;
    /// False leaves out people, units and projects, whatever the counts say.
    bool people = true;
    Engine engine = Engine::Sqlite;
};

/// Makes the register in an empty database, in one transaction: on a failure nothing stays. Raises
/// what the connection raises, and BadArguments for counts below 0.
void build(data::Connection& connection, const Options& options);

} // namespace quillmere::sample

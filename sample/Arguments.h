#pragma once

#include "sample/SampleRegister.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::sample {

/// What the command line asks for.
struct Arguments {
    /// A file, or the address of a database on a PostgreSQL server; the other one is empty.
    std::string output;
    std::string database;
    /// Where portraits of some people are left; empty for none.
    std::string photos;
    Options options;
    bool force = false;
    bool help = false;
};

/// A command line that asks for nothing sensible; `what()` says why.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads the arguments behind the program's name. Raises UsageError for an unknown option, a
/// missing or malformed value, an option given twice, and, unless help is asked for, when there is not one of
/// file and database.
[[nodiscard]] Arguments parseArguments(const std::vector<std::string>& arguments);

[[nodiscard]] std::string_view helpText();

} // namespace quillmere::sample

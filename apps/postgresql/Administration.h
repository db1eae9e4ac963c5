#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace quillmere::postgresql {

/// How a run of the program ends; its exit status.
enum class Outcome { Done = 0, Failed = 1, Misused = 2 };

/// What an administrator does to a database before a register can live in it: the program behind its
/// arguments, without the program's own name. Raises what the server does.
[[nodiscard]] Outcome administer(const std::vector<std::string>& arguments, std::ostream& out,
                                 std::ostream& complaints);

} // namespace quillmere::postgresql

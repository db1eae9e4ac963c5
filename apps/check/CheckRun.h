#pragma once

#include "check/Report.h"

#include <memory>

namespace quillmere::data {
class Connection;
}

namespace quillmere::check {

class EngineIndexes;

/// Checks a register. The system's own functions read it too, so for as long as this runs the connection is
/// the one that the system uses. Raises Error when the register cannot be read to the end.
[[nodiscard]] Report checkRegister(std::shared_ptr<data::Connection> connection,
                                   const EngineIndexes& indexes);

} // namespace quillmere::check

#pragma once

#include "faults/Rehearsal.h"

#include <vector>

namespace quillmere::test {

/// Every way of saving, deleting and renumbering, and the commands and prompts that lead to them.
[[nodiscard]] const std::vector<Deed>& deeds();

} // namespace quillmere::test

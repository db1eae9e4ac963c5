#pragma once

#include "panels/A1ctrlUser.h"

#include <memory>
#include <string_view>

namespace quillmere {

/// Creates a panel by its class name, "A1ctrlUser" and the set's name, without regard to case.
/// Raises CannotCreateObject for a name that no panel has.
[[nodiscard]] std::unique_ptr<A1ctrlUser> createPanel(std::string_view name, PanelWindow& window);

} // namespace quillmere

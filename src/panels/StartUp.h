#pragma once

#include <cstdint>
#include <string_view>

namespace quillmere {

namespace ui {
class ControlHost;
}

/// What a panel that adapts itself to the sponsorship type hides and renames, once, when it is
/// created. A hidden widget keeps its place and stays among the panel's controls; other panels are
/// left as they are. Raises ItemNotFound when the panel lacks one of the widgets.
void startUp(const ui::ControlHost& panel, std::string_view className, std::int32_t sponsorshipType);

} // namespace quillmere

#pragma once

#include "shell/frmPersonWh.h"

#include <string_view>

namespace quillmere::test {

/// What a person does in the maintenance window, by the names and captions that are on show. Each is false
/// when the person could not do it; what the window raises comes out.

/// Clicks the item of the menu with this caption, in whatever group.
[[nodiscard]] bool clickItem(frmPersonWh& window, std::string_view caption);

/// The person's text takes the place of what stands in the widget.
[[nodiscard]] bool enterText(ui::Form& form, std::string_view widget, std::string_view text);

/// Presses a button of the toolbar, as "Save".
[[nodiscard]] bool pressButton(frmPersonWh& window, std::string_view key);

} // namespace quillmere::test

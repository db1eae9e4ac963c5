#pragma once

#include <string_view>

namespace quillmere {

namespace ui {
class Form;
}

/// Removes every control of the form whose name begins with the prefix, without regard to case, from
/// the last to the first.
void RemoveCtrlByPrefix(ui::Form& form, std::string_view prefix);

/// Whether the last control of the form whose name begins with the prefix, without regard to case,
/// is a panel with unsaved edits. False when there is no such control.
[[nodiscard]] bool IsCtrlChanged(const ui::Form& form, std::string_view prefix);

} // namespace quillmere

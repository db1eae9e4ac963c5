#pragma once

#include "platform/ui/Form.h"

#include <string_view>

namespace quillmere::test {

/// Types each character of a text into the control that has the focus.
void typeText(ui::Form& form, std::string_view text);

} // namespace quillmere::test

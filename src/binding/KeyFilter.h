#pragma once

#include "platform/ui/TextBox.h"

#include <string_view>

namespace quillmere {

/// The key filters of numeric text boxes.
enum class KeyFilter { None, Digits, Phone, Decimal };

/// The characters that a filter lets pass, besides Enter.
[[nodiscard]] std::u32string_view acceptedBy(KeyFilter filter);

/// Puts the filter on a box: an accepted key passes, Enter injects "{tab}" and is itself left as it
/// is, any other key is replaced by the bell character, so that nothing is entered. What is pasted is
/// not filtered.
void install(KeyFilter filter, ui::TextBox& box);

} // namespace quillmere

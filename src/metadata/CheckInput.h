#pragma once

#include <string>
#include <string_view>

namespace quillmere {

class cFieldItem;

/// The one evaluator of the input rules: a rule letter (B bounds, L lengths, N number, A at most),
/// one blank, arguments separated by ",". Returns the complaint about `text`, or the empty text when
/// it passes. A single quote is refused whatever the rule says, since statements are formed by
/// concatenation. Raises SubscriptOutOfRange for missing arguments and TypeMismatch for a length
/// that is no number.
[[nodiscard]] std::string CheckInput(const cFieldItem& item, std::string_view text);

} // namespace quillmere

#pragma once

#include "../../component/Calling.h"

/// What the client prints: one line a call, in UTF-8, the same on every machine.
namespace quillmere::component::test {

/// "80020006".
[[nodiscard]] std::string codeText(HRESULT code);
/// The type of a value and what it is, as `text "abc"`.
[[nodiscard]] std::string valueText(const VARIANT& value);
/// What the call gave back, or how it failed.
[[nodiscard]] std::string answerText(const Answer& answer);

void heading(std::string_view text);
/// "what: outcome".
void line(std::string_view what, std::string_view outcome);
void line(std::string_view what, const Answer& answer);

} // namespace quillmere::component::test

#pragma once

#include "sample/Random.h"

#include <string>
#include <vector>

namespace quillmere::test {

/// Texts that a clerk may paste from anywhere: quotes and ends of statements, wildcards, control
/// characters, characters beyond the first plane, bytes that are no character, numbers and dates at their
/// limits.
[[nodiscard]] const std::vector<std::string>& oddTexts();
/// Texts longer than most fields.
[[nodiscard]] const std::vector<std::string>& longTexts();
/// A million bytes.
[[nodiscard]] const std::string& hugeText();

/// One of them, or two in one; now and then a long one.
[[nodiscard]] std::string oddText(sample::Random& chance);

/// A key that a keyboard or an input method may send.
[[nodiscard]] char32_t oddCharacter(sample::Random& chance);

/// A text as a diary shows it: short, on one line.
[[nodiscard]] std::string shown(const std::string& text);

} // namespace quillmere::test

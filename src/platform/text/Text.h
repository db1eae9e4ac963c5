#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Text is UTF-8 everywhere; a character is a code point, and every count and position here is in
/// characters. An ill-formed byte counts as one character (U+FFFD when decoded).
namespace quillmere::text {

[[nodiscard]] std::size_t length(std::string_view text);
[[nodiscard]] std::string left(std::string_view text, std::size_t count);
[[nodiscard]] std::string right(std::string_view text, std::size_t count);
/// From position `start`, counted from 1, at most `count` characters. Raises InvalidCall for 0.
[[nodiscard]] std::string mid(std::string_view text, std::size_t start,
                              std::size_t count = static_cast<std::size_t>(-1));

/// Without blanks (U+0020 only) at both ends.
[[nodiscard]] std::string trim(std::string_view text);
[[nodiscard]] std::string replaceAll(std::string_view text, std::string_view what, std::string_view with);
/// The pieces between the separators. The empty text yields no piece.
[[nodiscard]] std::vector<std::string> split(std::string_view text, std::string_view separator);
[[nodiscard]] std::string join(const std::vector<std::string>& pieces, std::string_view separator);

/// Lower case of the ASCII and full-width Latin letters.
[[nodiscard]] std::string lower(std::string_view text);
[[nodiscard]] std::string upper(std::string_view text);
/// Equality without regard to case, as `lower` has it.
[[nodiscard]] bool equalsNoCase(std::string_view a, std::string_view b);
[[nodiscard]] bool startsWithNoCase(std::string_view text, std::string_view prefix);
[[nodiscard]] bool endsWith(std::string_view text, std::string_view ending);

[[nodiscard]] std::u32string decode(std::string_view text);
[[nodiscard]] std::string encode(std::u32string_view characters);
[[nodiscard]] std::string encode(char32_t character);

} // namespace quillmere::text

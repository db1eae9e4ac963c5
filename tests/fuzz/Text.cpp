// The functions on UTF-8, over bytes that may be none.

#include "support/Fuzzing.h"

#include "platform/text/Text.h"

namespace {

using namespace quillmere;
using fuzz::hold;

void comesApart(const std::string& text, std::size_t count) {
    const std::size_t length = text::length(text);
    const std::string left = text::left(text, count);
    const std::string behind = text::mid(text, count + 1);
    hold(left + behind == text, "what is left of a place and what is behind it are the whole");
    hold(text::length(left) == std::min(count, length), "so many characters are left of it");
    hold(text::length(left) + text::length(behind) == length, "the lengths of both are that of the whole");
    hold(text::right(text, length - std::min(count, length)) == behind,
         "the end counted from the back is the same");
    hold(text::mid(text, 1, count) == left, "the front counted from 1 is the same");
}

void keepsItsCase(const std::string& text) {
    const std::string small = text::lower(text);
    const std::string large = text::upper(text);
    hold(small.size() == text.size() && large.size() == text.size(), "case does not change the size");
    hold(text::lower(small) == small && text::lower(large) == small, "small letters stay small");
    hold(text::equalsNoCase(text, small) && text::equalsNoCase(large, text),
         "a text equals itself in any case");
}

void comesTogether(const std::string& text, const std::string& separator) {
    const auto pieces = text::split(text, separator);
    hold(text::join(pieces, separator) == text, "the pieces of a text joined are the text");
    hold(text.empty() == pieces.empty(), "only the empty text has no piece");
    if (separator.empty()) return;
    for (const std::string& piece : pieces)
        hold(piece.find(separator) == std::string::npos, "no piece holds its separator");
    hold(text::replaceAll(text, separator, separator) == text, "a replacement by itself changes nothing");
}

} // namespace

/// A line with a place, one with a separator, and the text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input input(data, size);
    const auto place = static_cast<std::size_t>(std::abs(fuzz::numberOf(input.line())));
    const std::string separator = input.line();
    const std::string text = input.rest();
    hold(text::decode(text).size() == text::length(text), "every count is in characters");
    hold(fuzz::isUtf8(text::encode(text::decode(text))), "what was decoded is encoded as UTF-8");
    comesApart(text, place);
    keepsItsCase(text);
    comesTogether(text, separator);
    const std::string trimmed = text::trim(text);
    hold(text::trim(trimmed) == trimmed && text.find(trimmed) != std::string::npos,
         "trimming takes blanks only");
    hold(text::equalsNoCase(text, separator) == text::equalsNoCase(separator, text),
         "equality has no direction");
    return 0;
}

#include "platform/text/Text.h"

#include "platform/Error.h"

namespace quillmere::text {

namespace {

constexpr char32_t replacementCharacter = 0xFFFD;
constexpr char32_t lastCodePoint = 0x10FFFF;

/// One character at the front of a text. An ill-formed byte is a character of its own beyond Unicode,
/// so that two different ones never compare equal.
struct Character {
    char32_t code;
    std::size_t bytes;
};

constexpr unsigned char byteAt(std::string_view text, std::size_t index) {
    return static_cast<unsigned char>(text[index]);
}

constexpr bool isSurrogate(char32_t code) { return code >= 0xD800 && code <= 0xDFFF; }

/// The length that a leading byte announces and the least code point that needs it (a smaller one
/// would be an overlong form).
struct Form {
    std::size_t bytes;
    char32_t least;
    unsigned char payload;
};

constexpr Form formOf(unsigned char lead) {
    if ((lead & 0xE0U) == 0xC0U) return {2, 0x80, 0x1F};
    if ((lead & 0xF0U) == 0xE0U) return {3, 0x800, 0x0F};
    if ((lead & 0xF8U) == 0xF0U) return {4, 0x10000, 0x07};
    return {0, 0, 0};
}

/// The text must not be empty.
Character firstOf(std::string_view text) {
    const unsigned char lead = byteAt(text, 0);
    if (lead < 0x80) return {lead, 1};
    const Character illFormed{lastCodePoint + 1 + lead, 1};
    const Form form = formOf(lead);
    if (form.bytes == 0 || form.bytes > text.size()) return illFormed;
    char32_t code = lead & form.payload;
    for (std::size_t i = 1; i < form.bytes; ++i) {
        const unsigned char next = byteAt(text, i);
        if ((next & 0xC0U) != 0x80U) return illFormed;
        code = (code << 6U) | (next & 0x3FU);
    }
    if (code < form.least || code > lastCodePoint || isSurrogate(code)) return illFormed;
    return {code, form.bytes};
}

/// The bytes that the first `count` characters take.
std::size_t bytesOf(std::string_view text, std::size_t count) {
    std::size_t position = 0;
    for (; count > 0 && position < text.size(); --count)
        position += firstOf(text.substr(position)).bytes;
    return position;
}

struct Letters {
    char32_t upperA;
    char32_t lowerA;
};

constexpr Letters alphabets[] = {{U'A', U'a'}, {U'Ａ', U'ａ'}};
constexpr char32_t letterCount = 26;

/// Lower and upper case of a letter take equally many bytes, which the comparisons build on.
constexpr char32_t lowerOf(char32_t code) {
    for (const auto& [upperA, lowerA] : alphabets)
        if (code >= upperA && code < upperA + letterCount) return code - upperA + lowerA;
    return code;
}

constexpr char32_t upperOf(char32_t code) {
    for (const auto& [upperA, lowerA] : alphabets)
        if (code >= lowerA && code < lowerA + letterCount) return code - lowerA + upperA;
    return code;
}

std::string mapped(std::string_view text, char32_t (*map)(char32_t)) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const Character character = firstOf(text);
        const char32_t code = map(character.code);
        if (code == character.code) {
            result.append(text.substr(0, character.bytes));
        } else {
            result.append(encode(code));
        }
        text.remove_prefix(character.bytes);
    }
    return result;
}

} // namespace

std::size_t length(std::string_view text) {
    std::size_t count = 0;
    for (; !text.empty(); ++count)
        text.remove_prefix(firstOf(text).bytes);
    return count;
}

std::string left(std::string_view text, std::size_t count) {
    return std::string(text.substr(0, bytesOf(text, count)));
}

std::string right(std::string_view text, std::size_t count) {
    const std::size_t all = length(text);
    return count >= all ? std::string(text) : std::string(text.substr(bytesOf(text, all - count)));
}

std::string mid(std::string_view text, std::size_t start, std::size_t count) {
    if (start == 0) throw Error(Failure::InvalidCall);
    text.remove_prefix(bytesOf(text, start - 1));
    return left(text, count);
}

std::string trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string replaceAll(std::string_view text, std::string_view what, std::string_view with) {
    if (what.empty()) return std::string(text);
    return join(split(text, what), with);
}

std::vector<std::string> split(std::string_view text, std::string_view separator) {
    std::vector<std::string> pieces;
    if (text.empty()) return pieces;
    if (!separator.empty()) {
        for (auto end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
            pieces.emplace_back(text.substr(0, end));
            text.remove_prefix(end + separator.size());
        }
    }
    pieces.emplace_back(text);
    return pieces;
}

std::string join(const std::vector<std::string>& pieces, std::string_view separator) {
    std::string result;
    bool first = true;
    for (const std::string& piece : pieces) {
        if (!first) result.append(separator);
        result.append(piece);
        first = false;
    }
    return result;
}

std::string lower(std::string_view text) { return mapped(text, lowerOf); }

std::string upper(std::string_view text) { return mapped(text, upperOf); }

bool equalsNoCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    while (!a.empty()) {
        const Character inA = firstOf(a);
        const Character inB = firstOf(b);
        if (inA.bytes != inB.bytes || lowerOf(inA.code) != lowerOf(inB.code)) return false;
        a.remove_prefix(inA.bytes);
        b.remove_prefix(inB.bytes);
    }
    return true;
}

bool startsWithNoCase(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() && equalsNoCase(text.substr(0, prefix.size()), prefix);
}

bool endsWith(std::string_view text, std::string_view ending) { return text.ends_with(ending); }

std::u32string decode(std::string_view text) {
    std::u32string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const Character character = firstOf(text);
        result.push_back(character.code > lastCodePoint ? replacementCharacter : character.code);
        text.remove_prefix(character.bytes);
    }
    return result;
}

std::string encode(std::u32string_view characters) {
    std::string result;
    result.reserve(characters.size());
    for (const char32_t character : characters)
        result.append(encode(character));
    return result;
}

std::string encode(char32_t character) {
    if (character > lastCodePoint || isSurrogate(character)) character = replacementCharacter;
    const auto tail = [character](unsigned shift) {
        return static_cast<char>(0x80U | ((character >> shift) & 0x3FU));
    };
    if (character < 0x80) return {static_cast<char>(character)};
    if (character < 0x800) return {static_cast<char>(0xC0U | (character >> 6U)), tail(0)};
    if (character < 0x10000) return {static_cast<char>(0xE0U | (character >> 12U)), tail(6), tail(0)};
    return {static_cast<char>(0xF0U | (character >> 18U)), tail(12), tail(6), tail(0)};
}

} // namespace quillmere::text

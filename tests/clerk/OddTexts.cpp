#include "clerk/OddTexts.h"

#include "platform/text/Text.h"

#include <cstddef>
#include <iterator>

namespace quillmere::test {

namespace {

using namespace std::string_literals;

const std::string texts[] = {
    // Quotes, and what tries to end the statement around it.
    "'"s,
    "''"s,
    "O'Brien"s,
    "'; delete from A01; --"s,
    "' or '1'='1"s,
    "x' --"s,
    "x' /*"s,
    "',P0204='x"s,
    "x');delete from P01"s,
    "x',P0204=$a(')--"s,
    "x'||E'\\''--"s,
    "\""s,
    "]"s,
    // Wildcards, escapes, and characters that a terminal or a log would act on.
    "%"s,
    "_%_"s,
    "\\"s,
    "\\'"s,
    "%s%n"s,
    "a\tb"s,
    "一\r\n二\n三\r"s,
    "\x01\x07\x08\x1b\x7f"s,
    "\0零"s,
    "中\0文"s,
    // Characters of every plane, and bytes that are none.
    "张三"s,
    "𠮷田👩‍👩‍👧"s,
    "e\u0301\u202E"s,
    "\uFEFF\uFFFE"s,
    "\xED\xA0\x80"s,
    "\xED\xA0\xBD\xED\xB8\x80"s,
    "\xC0\xAF"s,
    "\xFF\xFE"s,
    "\xE4\xB8"s,
    // Numbers.
    "0"s,
    "12.5"s,
    "-1"s,
    "1,000"s,
    "1e308"s,
    "1e999"s,
    "99999999.01"s,
    "2147483648"s,
    "99999999999999999999"s,
    "1.2.3"s,
    "１２３"s,
    "①②"s,
    "&H10"s,
    // Dates.
    "199003"s,
    "19900312"s,
    "1990-03-12"s,
    "1990年03月"s,
    "2026-13-40"s,
    "0000-00-00"s,
    "99991231"s,
    "110105197803120017"s,
    " "s,
    "　"s,
};

std::string repeated(std::string_view one, std::size_t count) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i)
        all += one;
    return all;
}

} // namespace

const std::vector<std::string>& oddTexts() {
    static const std::vector<std::string> all(std::begin(texts), std::end(texts));
    return all;
}

const std::vector<std::string>& longTexts() {
    static const std::vector<std::string> all{repeated("x", 256), repeated("字", 300),
                                              repeated("二\r\n", 100)};
    return all;
}

const std::string& hugeText() {
    constexpr std::size_t bytes = 1'000'000;
    static const std::string text = repeated("字x", bytes / 4);
    return text;
}

std::string oddText(sample::Random& chance) {
    if (chance.below(150) == 0) return hugeText();
    if (chance.below(60) == 0) return chance.pick(longTexts());
    const std::string& one = chance.pick(oddTexts());
    return chance.chance(80) ? one : one + chance.pick(oddTexts());
}

char32_t oddCharacter(sample::Random& chance) {
    static constexpr char32_t characters[] = {
        U'0', U'1', U'2', U'9', U'a',   U'Z',   U'张',  U'\'',  U'%',    U'\\',   U'.',    U'-',
        U' ', 0,    1,    7,    U'\t',  U'\n',  27,     127,    0x0301,  0x200B,  U'１',   U'①',
        128,  0xA0, 0xAD, U'_', 0xD800, 0xDFFF, 0xFFFE, 0xFFFF, 0x10000, 0x1F600, 0x20BB7, 0x10FFFF,
    };
    return characters[chance.below(std::size(characters))];
}

std::string shown(const std::string& text) {
    constexpr std::size_t longest = 40;
    std::string line = "[";
    for (const char32_t character : text::decode(text::left(text, longest)))
        line += character < U' ' || character == 127
                    ? "<" + std::to_string(static_cast<unsigned>(character)) + ">"
                    : text::encode(character);
    line += "]";
    if (text::length(text) > longest) line += " of " + std::to_string(text::length(text));
    return line;
}

} // namespace quillmere::test

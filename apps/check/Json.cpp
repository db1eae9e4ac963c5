#include "check/Json.h"

#include "platform/text/Text.h"

namespace quillmere::check::json {

namespace {

std::string escapedControl(char32_t character) {
    constexpr std::string_view digits = "0123456789abcdef";
    return std::string("\\u00") + digits[character / 16] + digits[character % 16];
}

std::string escaped(char32_t character) {
    constexpr char32_t firstPrintable = 0x20;
    if (character == U'"') return "\\\"";
    if (character == U'\\') return "\\\\";
    if (character < firstPrintable) return escapedControl(character);
    return quillmere::text::encode(character);
}

} // namespace

std::string text(std::string_view content) {
    std::string quoted = "\"";
    // What is no UTF-8 becomes the replacement character: JSON has no other way to say it.
    for (const char32_t character : quillmere::text::decode(content))
        quoted += escaped(character);
    return quoted + "\"";
}

std::string object(const std::vector<Member>& members) {
    std::vector<std::string> parts;
    parts.reserve(members.size());
    for (const Member& member : members)
        parts.push_back(text(member.name) + ": " + member.value);
    return "{" + quillmere::text::join(parts, ", ") + "}";
}

std::string array(const std::vector<std::string>& values) {
    if (values.empty()) return "[]";
    return "[\n" + quillmere::text::join(values, ",\n") + "\n]";
}

} // namespace quillmere::check::json

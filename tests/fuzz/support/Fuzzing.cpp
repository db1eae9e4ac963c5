#include "support/Fuzzing.h"

#include "platform/text/Text.h"

#include <algorithm>
#include <charconv>
#include <iostream>

namespace quillmere::fuzz {

void hold(bool holds, std::string_view property) {
    if (holds) return;
    std::cerr << "does not hold: " << property << std::endl;
    throw Broken{std::string(property)};
}

Input::Input(const std::uint8_t* data, std::size_t size) : rest_(data, data + size) {}

std::string Input::line() {
    const std::size_t end = std::min(rest_.find('\n'), rest_.size());
    std::string line = rest_.substr(0, end);
    rest_.erase(0, end + 1);
    return line;
}

std::string Input::rest() {
    std::string all;
    all.swap(rest_);
    return all;
}

int numberOf(std::string_view text) {
    constexpr int most = 1000;
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return std::clamp(number, -most, most);
}

bool isUtf8(std::string_view text) { return text::encode(text::decode(text)) == text; }

} // namespace quillmere::fuzz

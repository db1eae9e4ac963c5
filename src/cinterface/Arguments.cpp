#include "cinterface/Arguments.h"

#include "platform/text/Text.h"

#include <limits>

namespace quillmere::cinterface {

void refuseNull(const char* name) {
    throw Error(Failure::InvalidCall, std::string("参数 ") + name + " 为空（NULL）。", "Quillmere");
}

std::string textOf(const char* name, const char* text) {
    std::string copy = &placeOf(name, text);
    // What is ill-formed comes back as the replacement character.
    if (text::encode(text::decode(copy)) != copy)
        throw Error(Failure::InvalidCall, std::string("参数 ") + name + " 不是 UTF-8 文本。", "Quillmere");
    return copy;
}

std::int16_t toInteger16(std::int64_t value) {
    using Limits = std::numeric_limits<std::int16_t>;
    if (value < Limits::min() || value > Limits::max()) throw Error(Failure::Overflow);
    return static_cast<std::int16_t>(value);
}

} // namespace quillmere::cinterface

#pragma once

#include "platform/Error.h"

#include <cstdint>
#include <string>

namespace quillmere::cinterface {

[[noreturn]] void refuseNull(const char* name);

/// What the argument of that name points to. Raises InvalidCall for NULL.
template <class Value>
[[nodiscard]] Value& placeOf(const char* name, Value* place) {
    if (place == nullptr) refuseNull(name);
    return *place;
}

/// The text of the argument of that name. Raises InvalidCall for NULL and for what is no UTF-8.
[[nodiscard]] std::string textOf(const char* name, const char* text);

/// Raises Overflow for what has no place in 16 bits.
[[nodiscard]] std::int16_t toInteger16(std::int64_t value);

} // namespace quillmere::cinterface

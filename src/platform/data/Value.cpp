#include "platform/data/Value.h"

#include "platform/Error.h"
#include "platform/convert/Convert.h"
#include "platform/text/Text.h"

#include <limits>

namespace quillmere::data {

namespace {

/// One branch for each kind of value.
template <class... Branches>
struct Overloaded : Branches... {
    using Branches::operator()...;
};
template <class... Branches>
Overloaded(Branches...) -> Overloaded<Branches...>;

template <class Integer>
Integer narrowed(std::int64_t value) {
    if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max())
        throw Error(Failure::Overflow);
    return static_cast<Integer>(value);
}

/// A true boolean is -1 as a number.
constexpr std::int64_t numberOf(bool value) { return value ? -1 : 0; }

bool booleanOf(const std::string& text) {
    if (text::equalsNoCase(text, "True")) return true;
    if (text::equalsNoCase(text, "False")) return false;
    return convert::toDouble(text) != 0;
}

} // namespace

std::string Value::toText() const {
    return std::visit(Overloaded{
                          [](Null) -> std::string { throw Error(Failure::InvalidUseOfNull); },
                          [](bool value) -> std::string { return value ? "True" : "False"; },
                          [](std::int64_t value) { return std::to_string(value); },
                          [](double value) { return convert::toText(value); },
                          [](const std::string& value) { return value; },
                      },
                      value_);
}

std::string Value::toTextOrEmpty() const { return isNull() ? std::string() : toText(); }

bool Value::toBoolean() const {
    return std::visit(Overloaded{
                          [](Null) -> bool { throw Error(Failure::InvalidUseOfNull); },
                          [](bool value) { return value; },
                          [](std::int64_t value) { return value != 0; },
                          [](double value) { return value != 0; },
                          [](const std::string& value) { return booleanOf(value); },
                      },
                      value_);
}

std::int16_t Value::toInteger16() const {
    return std::visit(Overloaded{
                          [](Null) -> std::int16_t { throw Error(Failure::InvalidUseOfNull); },
                          [](bool value) { return narrowed<std::int16_t>(numberOf(value)); },
                          [](std::int64_t value) { return narrowed<std::int16_t>(value); },
                          [](double value) { return convert::toInteger16(value); },
                          [](const std::string& value) { return convert::toInteger16(value); },
                      },
                      value_);
}

std::int32_t Value::toLong() const {
    return std::visit(Overloaded{
                          [](Null) -> std::int32_t { throw Error(Failure::InvalidUseOfNull); },
                          [](bool value) { return narrowed<std::int32_t>(numberOf(value)); },
                          [](std::int64_t value) { return narrowed<std::int32_t>(value); },
                          [](double value) { return convert::toLong(value); },
                          [](const std::string& value) { return convert::toLong(value); },
                      },
                      value_);
}

} // namespace quillmere::data

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace quillmere::data {

/// What a cell without a value holds.
struct Null {
    /// Always.
    bool operator==(const Null&) const = default;
};

/// One cell of a row: null, boolean, integer, real or text (UTF-8). What it consists of is a part of the
/// interface and stays as it is.
class Value {
public:
    /// A value of its kind; null without an argument.
    /// @{
    Value() = default;
    Value(Null) {}                                                // NOLINT(google-explicit-constructor)
    Value(bool value) : value_(value) {}                          // NOLINT(google-explicit-constructor)
    Value(int value) : value_(std::int64_t{value}) {}             // NOLINT(google-explicit-constructor)
    Value(std::int64_t value) : value_(value) {}                  // NOLINT(google-explicit-constructor)
    Value(double value) : value_(value) {}                        // NOLINT(google-explicit-constructor)
    Value(std::string value) : value_(std::move(value)) {}        // NOLINT(google-explicit-constructor)
    Value(std::string_view value) : value_(std::string(value)) {} // NOLINT(google-explicit-constructor)
    Value(const char* value) : value_(std::string(value)) {}      // NOLINT(google-explicit-constructor)
    /// @}

    /// Of which kind it is.
    /// @{
    [[nodiscard]] bool isNull() const { return std::holds_alternative<Null>(value_); }
    [[nodiscard]] bool isBoolean() const { return std::holds_alternative<bool>(value_); }
    [[nodiscard]] bool isInteger() const { return std::holds_alternative<std::int64_t>(value_); }
    [[nodiscard]] bool isReal() const { return std::holds_alternative<double>(value_); }
    [[nodiscard]] bool isText() const { return std::holds_alternative<std::string>(value_); }
    /// @}

    /// The value as text; a null raises InvalidUseOfNull. Booleans read "True" and "False", reals
    /// as the shortest text that gives the number back.
    [[nodiscard]] std::string toText() const;

    /// The value as text, a null as the empty text.
    [[nodiscard]] std::string toTextOrEmpty() const;

    /// The value as a boolean: any number but 0 is true; a text must be "True"/"False" (any case)
    /// or a number. Raises InvalidUseOfNull, TypeMismatch.
    [[nodiscard]] bool toBoolean() const;

    /// The value as a 16-bit or 32-bit integer, a fraction rounded half to even. Raises Overflow,
    /// TypeMismatch, InvalidUseOfNull.
    /// @{
    [[nodiscard]] std::int16_t toInteger16() const;
    [[nodiscard]] std::int32_t toLong() const;
    /// @}

    /// The value itself, for `std::visit` and `std::get`.
    [[nodiscard]] const std::variant<Null, bool, std::int64_t, double, std::string>& raw() const {
        return value_;
    }

    /// The same kind, with the same value.
    bool operator==(const Value&) const = default;

private:
    std::variant<Null, bool, std::int64_t, double, std::string> value_;
};

} // namespace quillmere::data

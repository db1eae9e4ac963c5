#include "copy/CellText.h"

#include "platform/Error.h"
#include "sample/InsertBatch.h"

#include <cmath>
#include <cstdint>
#include <variant>

namespace quillmere::copy {

namespace {

std::string booleanText(const data::Value& value) {
    // Any other number would come back as another one.
    const bool is = value.isBoolean() || value == data::Value(0) || value == data::Value(1);
    if (!is)
        throw Error(Failure::TypeMismatch, "布尔列中有不是布尔的值：" + value.toText(), "quillmere-copy");
    return value.toBoolean() ? "true" : "false";
}

/// Up to here every whole number is a real one.
constexpr double wholeReals = 9007199254740992.0;

std::string realText(double number) {
    const bool whole = std::abs(number) <= wholeReals && std::trunc(number) == number;
    return data::Value(whole ? data::Value(static_cast<std::int64_t>(number)) : data::Value(number)).toText();
}

} // namespace

std::optional<std::string> cellText(const data::Value& value, Kind kind) {
    if (value.isNull()) return std::nullopt;
    if (kind == Kind::Boolean) return booleanText(value);
    if (value.isReal()) return realText(std::get<double>(value.raw()));
    return value.toText();
}

std::string cellLiteral(const data::Value& value, Kind kind, const std::optional<std::string>& text) {
    if (!text) return "null";
    return kind == Kind::Text || value.isText() ? sample::quoted(*text) : *text;
}

} // namespace quillmere::copy

#pragma once

#include "component/automation/Variant.h"
#include "platform/data/Value.h"

#include <cstdint>
#include <string>

/// What a value is as another type, by the rules of automation. A reference counts as what it refers to, an
/// object as its default member. The empty value is zero, false and the empty text; a null is none of these.
/// All raise Error: TypeMismatch, Overflow.
namespace quillmere::component {

/// A fraction rounds to the nearest, halves to even; a true Boolean is -1.
[[nodiscard]] std::int16_t toInteger16(const VARIANT& value);
[[nodiscard]] std::int32_t toInteger32(const VARIANT& value);
/// Any number but 0 is true; of texts, "True", "False" (in any case) and numbers.
[[nodiscard]] bool toBoolean(const VARIANT& value);
/// A Boolean reads -1 and 0, as numbers do.
[[nodiscard]] std::string toText(const VARIANT& value);
/// Whether it is a text itself, as a key of a collection is: a position may come as any number.
[[nodiscard]] bool isText(const VARIANT& value);
/// Null for an object variable that is not set.
[[nodiscard]] ComPtr<IDispatch> toObject(const VARIANT& value);

/// A cell of a row, out of and into the value that a host sees. A date comes out as the text of its day, with
/// the time of day where there is one.
[[nodiscard]] data::Value toCell(const VARIANT& value);
[[nodiscard]] Variant fromCell(const data::Value& cell);

} // namespace quillmere::component

#pragma once

#include "component/automation/Variant.h"

#include <cstddef>
#include <string_view>

namespace quillmere::component {

/// How a caller uses a member. The values are the masks of a late-bound call.
enum class Access : WORD {
    Method = DISPATCH_METHOD,
    Get = DISPATCH_PROPERTYGET,
    Put = DISPATCH_PROPERTYPUT,
    /// Puts an object by reference.
    PutRef = DISPATCH_PROPERTYPUTREF,
};

enum class Type { Nothing, Integer16, Integer32, Boolean, Text, Object, Any };

/// The argument of a member; no member has more than one.
struct Parameter {
    std::string_view name;
    Type type = Type::Nothing;
    bool optional = false;
};

/// One row of the table of members of an interface: a writer, a reader or an operation.
struct Member {
    std::string_view name;
    /// Writer and reader of a property share one; DISPID_VALUE is the default member.
    DISPID id;
    Access access;
    /// Of the property, or what the operation gives.
    Type type;
    Parameter parameter{};
};

/// A member and what it does. The argument comes converted to the parameter's type, empty when it was left
/// out; a failure leaves as an exception.
template <class Object>
struct MemberRow {
    Member member;
    Variant (*run)(Object& object, const VARIANT& argument);
};

// The rows of a table, so that they read like sentences.

[[nodiscard]] constexpr Member writer(std::string_view name, DISPID id, Type type) {
    return {name, id, Access::Put, type, {"value", type}};
}
[[nodiscard]] constexpr Member referenceWriter(std::string_view name, DISPID id) {
    return {name, id, Access::PutRef, Type::Object, {"value", Type::Object}};
}
[[nodiscard]] constexpr Member reader(std::string_view name, DISPID id, Type type, Parameter parameter = {}) {
    return {name, id, Access::Get, type, parameter};
}
[[nodiscard]] constexpr Member operation(std::string_view name, DISPID id, Type result = Type::Nothing,
                                         Parameter parameter = {}) {
    return {name, id, Access::Method, result, parameter};
}

} // namespace quillmere::component

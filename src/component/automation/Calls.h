#pragma once

#include "component/automation/Variant.h"

#include <string_view>
#include <vector>

/// Late-bound calls on objects that are known by the names of their members alone. A failure of the member is
/// raised as Error with its number, source and description; a call that does not get that far (no such
/// member, an argument that does not fit) with its result code as the number.
namespace quillmere::component {

[[nodiscard]] bool hasMember(IDispatch& object, std::string_view name);

/// Reads a property, or calls an operation: late-bound callers need not know which it is.
Variant call(IDispatch& object, std::string_view name, std::vector<Variant> arguments = {});
void put(IDispatch& object, std::string_view name, Variant value);
/// Puts an object by reference.
void putReference(IDispatch& object, std::string_view name, Variant value);

/// The object that a call gave. Raises Error (ObjectNotSet) for a null one.
[[nodiscard]] ComPtr<IDispatch> objectOf(const Variant& value);

} // namespace quillmere::component

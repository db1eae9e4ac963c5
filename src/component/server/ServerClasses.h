#pragma once

#include "component/automation/ComPtr.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace quillmere::component {

/// One class that the server creates.
struct ServerClass {
    /// Behind "Quillmere." the program id, in the spelling of the class.
    std::string_view name;
    /// Tells the class ids of the server apart. Never changes, and is never used again.
    std::uint32_t number;
    /// The interface that it is known by first, as the type library calls it.
    std::string_view defaultInterface;
    /// Raises Error.
    ComPtr<IDispatch> (*create)(std::string_view name);
};

/// The entry object, the toolbar, and the panels in the order of their catalogue.
[[nodiscard]] std::span<const ServerClass> serverClasses();

[[nodiscard]] CLSID classIdOf(const ServerClass& row);
[[nodiscard]] std::string programIdOf(const ServerClass& row);
/// Null when the server has no such class.
[[nodiscard]] const ServerClass* findClass(REFCLSID id);

} // namespace quillmere::component

#pragma once

#include <string>

namespace quillmere::component {

/// The interface definition of the server, written from the tables of members and classes. Quillmere.idl is a
/// copy of it, for the tools that make a type library.
[[nodiscard]] std::string interfaceDefinition();

} // namespace quillmere::component

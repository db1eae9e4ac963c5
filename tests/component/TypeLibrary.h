#pragma once

#include "component/automation/Automation.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quillmere::component::test {

/// What a compiled type library says, as far as these tests ask.
struct LibraryFunction {
    std::string name;
    DISPID id = 0;
    /// 1 operation, 2 reader, 4 writer, 8 writer by reference.
    int kind = 0;
};

struct LibraryType {
    std::string name;
    GUID id{};
    std::vector<LibraryFunction> functions;
};

struct Library {
    GUID id{};
    std::string name;
    int major = 0;
    int minor = 0;
    std::vector<LibraryType> types;

    /// Null when there is no such type.
    [[nodiscard]] const LibraryType* find(const std::string& name) const;
};

/// Reads a type library file (the form that begins with "MSFT"). Raises std::runtime_error for anything else.
[[nodiscard]] Library readTypeLibrary(const std::string& path);

} // namespace quillmere::component::test

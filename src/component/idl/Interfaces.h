#pragma once

#include "component/automation/Automation.h"
#include "component/members/Member.h"

#include <string_view>
#include <vector>

namespace quillmere::component {

constexpr GUID libraryId{0xF2217711, 0x9427, 0x46C8, {0xB0, 0x90, 0xD3, 0x29, 0x2C, 0x45, 0xD7, 0xCB}};

/// One interface of the type library.
struct InterfaceRow {
    std::string_view name;
    GUID id;
    /// Callable through its table of functions too; the others are late-bound alone.
    bool dual;
    std::vector<Member> members;
};

/// The entry object's first: a tool that makes the type library spoils it when a dual interface follows one
/// that is late-bound alone.
[[nodiscard]] std::vector<InterfaceRow> interfaceRows();

} // namespace quillmere::component

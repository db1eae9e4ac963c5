#pragma once

#include "component/automation/Automation.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The registration of the server, where the platform has no registry: one file for each user, in the folder
/// `quillmere` of the user's data (XDG_DATA_HOME, or .local/share in the home folder). What it names is
/// loaded into the user's programs: a file or folder that somebody else owns or can write is refused with
/// PermissionDenied, and so is a link.
namespace quillmere::component {

struct RegisteredClass {
    std::string programId;
    CLSID classId;
};

struct Registration {
    /// Absolute path of the server's file.
    std::string server;
    std::vector<RegisteredClass> classes;

    /// By program id without regard to case; null when it is not registered.
    [[nodiscard]] const RegisteredClass* find(std::string_view programId) const;
};

/// None when nothing is registered. Raises Error: PermissionDenied, PathAccess, and InvalidCall for a file
/// that is no registration.
[[nodiscard]] std::optional<Registration> readRegistration();

/// Replaces the file at a stroke: a reader meets the old one or the new one, also when this fails. Makes the
/// folder when it is not there. Raises Error.
void writeRegistration(const Registration& registration);

/// Removes the file; one that is not there is no failure. Raises Error.
void removeRegistration();

} // namespace quillmere::component

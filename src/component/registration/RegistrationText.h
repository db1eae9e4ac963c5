#pragma once

#include "component/registration/RegistrationFile.h"

#include <string>
#include <string_view>

namespace quillmere::component {

/// The registration as lines of text: the form and its version, the server, and a line for each class.
[[nodiscard]] std::string registrationText(const Registration& registration);
/// Raises Error (InvalidCall) for anything else.
[[nodiscard]] Registration parseRegistration(std::string_view text);

} // namespace quillmere::component

#pragma once

#include "register/CommandLine.h"

#include <functional>

namespace quillmere::host {

/// The register to open: the one named, or else the last one used. Empty for neither.
[[nodiscard]] QString registerToOpen(const CommandLine& line);

using TellFailure = std::function<void(const QString& text)>;

/// The program behind its application: opens the register, or receives the
/// person where there is none, and works until the window is closed; goes on
/// the tour, or takes the pictures of the panels. Returns the exit status; a failure is told and gives 1.
[[nodiscard]] int work(const CommandLine& line, const TellFailure& tell);

} // namespace quillmere::host

#pragma once

#include "register/CommandLine.h"
#include "register/MainWindow.h"

#include <functional>
#include <memory>

namespace quillmere::host {

/// Opens a register in its main window. Photos lie in the folder `photos` beside the file. Raises
/// quillmere::Error for a file that is missing or holds no register.
[[nodiscard]] std::unique_ptr<MainWindow> openRegister(const QString& path, const QString& unitCode);

/// The register to open: the one named, the last one used while it is still there, or the person's
/// choice. Empty when the person chose none.
[[nodiscard]] QString chooseRegister(const CommandLine& line, const std::function<QString()>& ask);

using TellFailure = std::function<void(const QString& text)>;

/// The program behind its application: opens the register and works until the window is closed, or goes
/// on the tour. Returns the exit status; a failure is told and gives 1.
[[nodiscard]] int work(const CommandLine& line, const TellFailure& tell);

} // namespace quillmere::host

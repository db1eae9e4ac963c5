#pragma once

#include "register/MainWindow.h"

#include <memory>

namespace quillmere::host {

struct Problem;

/// What is the same for every register that a person opens.
struct OpenSettings {
    /// Code of the bureau that the register is kept for; empty for all of them.
    QString unitCode = {};
    /// The journal of what is changed and deleted; empty for none.
    QString journal = {};
    /// The window is as it was left, and what is opened in it is kept.
    bool remembers = false;
};

/// Opens a register in its main window. Photos lie in the folder `photos` beside the file. Raises
/// quillmere::Error for a file that is missing or holds no register.
[[nodiscard]] std::unique_ptr<MainWindow> openRegister(const QString& path, const OpenSettings& settings);

/// What a person is told of a register that could not be opened, and how it failed.
[[nodiscard]] Problem problemWith(const QString& path, const std::exception& failure);

/// The folder of the photos of a register's people.
[[nodiscard]] QString photosOf(const QString& path);

} // namespace quillmere::host

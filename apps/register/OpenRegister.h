#pragma once

#include "register/MainWindow.h"

#include <memory>

namespace quillmere::host {

struct Problem;

/// Opens a register in its main window. Photos lie in the folder `photos` beside the file. With `remembers`
/// the window is as it was left, and what is opened in it is kept. Raises quillmere::Error for a file that
/// is missing or holds no register.
[[nodiscard]] std::unique_ptr<MainWindow> openRegister(const QString& path, const QString& unitCode,
                                                       bool remembers);

/// What a person is told of a register that could not be opened, and how it failed.
[[nodiscard]] Problem problemWith(const QString& path, const std::exception& failure);

/// The folder of the photos of a register's people.
[[nodiscard]] QString photosOf(const QString& path);

} // namespace quillmere::host

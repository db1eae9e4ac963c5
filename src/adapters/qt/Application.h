#pragma once

#include <string>

namespace quillmere::qt {

/// Finds the host's QApplication or makes one. Raises an Error for a bare QCoreApplication, and when there is
/// no display to make one for.
void requireApplication(const std::string& name, const std::string& platform);

/// Raises an Error on any thread but the one of the application.
void requireUserInterfaceThread();

/// Ends the application that was made here, if there is one. Raises an Error on any thread but its own.
void endOwnApplication();

} // namespace quillmere::qt

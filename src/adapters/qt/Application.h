#pragma once

#include <string>

namespace quillmere::qt {

/// Finds the host's QApplication or makes one. Raises an Error for a bare QCoreApplication.
void requireApplication(const std::string& name, const std::string& platform);

/// Raises an Error on any thread but the one of the application.
void requireUserInterfaceThread();

/// Ends the application that was made here, if there is one.
void endOwnApplication();

} // namespace quillmere::qt

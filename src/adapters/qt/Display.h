#pragma once

#include <string>

namespace quillmere::qt {

/// Raises an Error when there is no display for the windows of an application that is yet to be made. Qt
/// itself would end the process. `platform` is the plug-in that is asked for, or empty; one that is neither
/// for X nor for Wayland is taken to need none.
void requireDisplay(const std::string& platform);

} // namespace quillmere::qt

#pragma once

#include "Register.h"
#include "shell/frmPersonWh.h"

#include <functional>
#include <string>

namespace quillmere::bench {

/// Opens the maintenance window on everything there is of a person, on a desktop without a screen, lets
/// `work` work on it, and closes it. A message box is a failure, but for the one that tells of a save.
void withWindow(const Register& from, const std::string& personID,
                const std::function<void(frmPersonWh& window)>& work);

/// Shows the set whose item of the menu has this caption. Raises when there is none.
void openSet(frmPersonWh& window, const char* caption);

/// Types over what stands in the widget. Raises when the person could not.
void enter(frmPersonWh& window, const char* widget, const char* text);

/// Presses a button of the toolbar. Raises when the person could not.
void press(frmPersonWh& window, const char* button);

} // namespace quillmere::bench

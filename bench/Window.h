#pragma once

#include "platform/data/ObservedConnections.h"
#include "shell/frmPersonWh.h"

#include <functional>
#include <memory>
#include <string>

namespace quillmere::bench {

/// Opens the maintenance window on everything there is of a person, on a desktop without a screen, lets
/// `work` work on it, and closes it. A message box is a failure: nothing here should ask anything.
void withWindow(const std::shared_ptr<data::Connection>& connection, const std::string& personID,
                const std::function<void(frmPersonWh& window)>& work);

} // namespace quillmere::bench

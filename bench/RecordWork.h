#pragma once

#include "BareEngine.h"
#include "platform/data/ObservedConnections.h"
#include "shell/frmPersonWh.h"

namespace quillmere::bench {

/// Opens the list of studies of the person on show again and again, with its grid, and prints what that
/// takes beside the bare engine. Raises std::runtime_error when there are no studies.
void measureGrid(frmPersonWh& window, data::RecordingConnection& connection, BareEngine& engine);

/// Saves the achievements of the person on show again and again, with the reload behind each save, and
/// prints likewise. Raises std::runtime_error when that is no removal and insert of one row.
void measureSave(frmPersonWh& window, data::RecordingConnection& connection, BareEngine& engine);

} // namespace quillmere::bench

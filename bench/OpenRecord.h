#pragma once

#include "BareEngine.h"
#include "platform/data/ObservedConnections.h"
#include "shell/frmPersonWh.h"

namespace quillmere::bench {

/// Opens the basic information of persons again and again, as by clicking its menu item, and prints what
/// that takes beside the bare engine. Raises std::runtime_error when the panel does not have its 35
/// fields, or when a record is not read with one statement for the catalogue, one for the record and one
/// for each coded field.
void measureOpenRecord(frmPersonWh& window, data::RecordingConnection& connection, BareEngine& engine);

/// Composes the menu again and again, and prints likewise. Raises std::runtime_error when that takes more
/// than eight statements.
void measureMenu(frmPersonWh& window, data::RecordingConnection& connection, BareEngine& engine);

} // namespace quillmere::bench

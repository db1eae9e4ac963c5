#pragma once

#include "BareEngine.h"
#include "platform/data/ObservedConnections.h"

#include <memory>

namespace quillmere::bench {

/// Adds two code tables to a register: one of 100,000 codes in three levels, one of 10,000 codes in a
/// single level.
void addLargeCodeTables(data::Connection& connection);

/// Opens the code selector again and again, over the administrative divisions and over the table of
/// 100,000 codes, and prints what that takes beside the bare engine; then moves through the level of
/// 10,000 codes key by key and prints what a key takes. Raises std::runtime_error when a tree does not
/// hold every code of its table, or is not read with one statement for each level.
void measureCodeSelector(const std::shared_ptr<data::RecordingConnection>& connection, BareEngine& engine);

} // namespace quillmere::bench

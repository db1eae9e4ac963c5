#pragma once

#include "metadata/cFieldItems.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace quillmere {

/// The fields of a table, with metadata only. Empty when the catalogue has no row for the table.
/// Raises what the connection raises; KeyAlreadyUsed for a field that the catalogue has twice.
[[nodiscard]] std::shared_ptr<cFieldItems> LoadFieldItems(std::string_view tblname);

/// The fields of a table with the values of one record. `id` is the record's "<table>99"; below 1
/// there is no sequence condition. A record that is not there leaves the values unset. One lookup
/// statement for each coded field. Raises ItemNotFound for a field that has no column.
[[nodiscard]] std::shared_ptr<cFieldItems>
LoadFieldItemsWithValues(std::string_view tblname, std::string_view personID, std::int16_t id);

} // namespace quillmere

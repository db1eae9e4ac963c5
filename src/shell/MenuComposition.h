#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace quillmere {

namespace ui {
class VerticalMenu;
}

/// The columns of TS_SetCustomize that list the items of the groups 1 to 3.
[[nodiscard]] std::span<const std::string_view> customisedColumns();

/// The sponsorship type whose row of TS_SetCustomize the group, 1 to 3, reads under `zzType`. The plan
/// group knows three customisations only: all types but 1 and 6 read that of type 2, as required.
[[nodiscard]] std::int32_t customisingType(int group, std::int32_t zzType);

/// The key of a table's item in group 2. Some of them open under the key of P01 and are told apart by their
/// caption alone.
[[nodiscard]] std::string projectKey(const std::string& table, std::int32_t zzType);

/// Fills the five groups of the menu from TS_SetCustomize and s_infotable for a sponsorship type: at
/// most eight queries. Raises what the connection raises: an empty list of tables, or a type outside
/// 1 to 7, is refused by the database.
void composeMenu(ui::VerticalMenu& menu, std::int32_t zzType);

} // namespace quillmere

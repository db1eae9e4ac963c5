#pragma once

#include <cstdint>

namespace quillmere {

namespace ui {
class VerticalMenu;
}

/// Fills the five groups of the menu from TS_SetCustomize and s_infotable for a sponsorship type: at
/// most eight queries. Raises what the connection raises: an empty list of tables, or a type outside
/// 1 to 7, is refused by the database.
void composeMenu(ui::VerticalMenu& menu, std::int32_t zzType);

} // namespace quillmere

#pragma once

#include <QJsonObject>

namespace quillmere::test {

/// What this program shows at the moment: its visible windows, and in each the visible widgets that have
/// an object name. Places are pixels of the screen, so that a mouse can be sent there.
///
/// A window: id, name, title, active, modal, place, frame. A widget: name, text, place, enabled, focus,
/// checked, and for a list, table or tree the rows on show, each with its text (cells joined by |), place
/// and whether it is selected.
[[nodiscard]] QJsonObject screenReport();

} // namespace quillmere::test

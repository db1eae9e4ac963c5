#pragma once

#include "panels/PanelCatalogue.h"

namespace quillmere {

class cFieldItem;

namespace ui {
class Control;
}

/// Whether the field holds numbers: by its type, or by the rule that its input has to follow. A code is
/// none, though it has digits.
[[nodiscard]] bool holdsNumbers(const cFieldItem& field);

/// Shows a field in its value widget, by the widget's kind; any other kind is left alone.
void fillValueWidget(ui::Control& widget, const cFieldItem& field, FillTemplate fill);

/// Marks the caption of a field that must not be empty.
void fillCaption(ui::Control& widget, const cFieldItem& field);

} // namespace quillmere

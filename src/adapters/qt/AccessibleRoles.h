#pragma once

#include <QAccessible>

class QWidget;

namespace quillmere::qt {

/// What a plain widget is to assistive programs. Said before the widget shows.
void readAs(QWidget& widget, QAccessible::Role role);

/// Teaches the running application the roles that plain widgets play, and how buttons are read.
void installAccessibleRoles();

} // namespace quillmere::qt

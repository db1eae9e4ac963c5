#pragma once

#include <QString>

class QAccessibleInterface;
class QWidget;

namespace quillmere::qt {

/// What reads a button of the accordion or a tool button: the former are groups that are expanded or
/// collapsed and items that are selected or not. Null for any other widget or class of a widget.
[[nodiscard]] QAccessibleInterface* makeButtonAccess(const QString& className, QWidget& widget);

} // namespace quillmere::qt

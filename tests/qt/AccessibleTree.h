#pragma once

#include <QAccessible>

#include <map>
#include <string>
#include <string_view>

class QWidget;

namespace quillmere::test {

/// How assistive programs read a widget. Raises std::runtime_error for one that they cannot read.
[[nodiscard]] QAccessibleInterface& accessOf(QWidget& widget);
/// The same for the widget of that object name in the window in front.
[[nodiscard]] QAccessibleInterface& accessOf(std::string_view name);

[[nodiscard]] std::string nameOf(QAccessibleInterface& access);
[[nodiscard]] std::string descriptionOf(QAccessibleInterface& access);

/// What reads the widgets of a window that show, by their object names.
using AccessibleTree = std::map<std::string, QAccessibleInterface*>;
[[nodiscard]] AccessibleTree treeOf(std::string_view window);

/// Everything in the window that a person works with is called something.
void expectNoneNameless(std::string_view window, std::string_view where);

/// A caption as it is read, without the blanks that spread it.
[[nodiscard]] std::string withoutBlanks(std::string_view caption);

} // namespace quillmere::test

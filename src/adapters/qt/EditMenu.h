#pragma once

#include <QPoint>

#include <functional>

class QWidget;

namespace quillmere::qt {

/// What the context menu of an editor offers; an empty function greys its line.
struct EditCommands {
    std::function<void()> undo;
    std::function<void()> redo;
    std::function<void()> cut;
    std::function<void()> copy;
    std::function<void()> paste;
    std::function<void()> erase;
    std::function<void()> selectAll;
};

/// Shows the menu, in the user's language whatever translations the host has loaded.
void showEditMenu(QWidget& editor, const QPoint& globalPosition, const EditCommands& commands);

} // namespace quillmere::qt

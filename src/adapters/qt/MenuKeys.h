#pragma once

#include <QPointer>
#include <QPushButton>

#include <vector>

class QKeyEvent;

namespace quillmere::qt {

class FormPeer;

/// The keyboard in the accordion of the main window. F6 or Alt+M leads there and back; meanwhile the
/// model's focus stays where it is, since the menu takes none. Up, Down, Home and End go over the
/// buttons on show, Right opens a group, Left goes to the group of an item, Enter or the blank clicks.
class MenuKeys {
public:
    explicit MenuKeys(FormPeer& form) : form_(form) {}

    /// True when the key was one for the menu.
    [[nodiscard]] bool take(const QKeyEvent& event);
    /// Gives the keyboard back to the field that had it.
    void leave();

private:
    [[nodiscard]] bool isInside() const;
    [[nodiscard]] QWidget* menu() const;
    /// From top to bottom, those that show.
    [[nodiscard]] std::vector<QPushButton*> buttons() const;
    void enter();
    void goTo(QPushButton* button);
    void step(int by);
    void press(QPushButton& button);

    FormPeer& form_;
    QPointer<QPushButton> here_;
};

} // namespace quillmere::qt

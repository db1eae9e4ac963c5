#include "adapters/qt/AccessibleButtons.h"

#include "adapters/qt/AccessibleNames.h"

#include <QAccessibleWidget>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QVariant>

namespace quillmere::qt {

namespace {

/// A button that an assistive program presses as a person does. The program has its answer at once, also
/// where a window or a message box comes of it.
class ButtonAccess : public QAccessibleWidget {
public:
    ButtonAccess(QAbstractButton& button, QAccessible::Role role) : QAccessibleWidget(&button, role) {}

    [[nodiscard]] QStringList actionNames() const override {
        return button().isEnabled() ? QStringList{pressAction()} : QStringList();
    }

    void doAction(const QString& action) override {
        if (action == pressAction() && button().isEnabled()) button().animateClick();
    }

protected:
    [[nodiscard]] QAbstractButton& button() const { return *static_cast<QAbstractButton*>(widget()); }
};

/// A button of the accordion, told apart by its looks.
class MenuButtonAccess final : public ButtonAccess {
public:
    explicit MenuButtonAccess(QPushButton& button)
        : ButtonAccess(button, isGroup(button) ? QAccessible::Button : QAccessible::MenuItem) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.focusable = true;
        if (isGroup(button())) {
            state.expandable = true;
            state.expanded = button().property("open").toBool();
            state.collapsed = !state.expanded;
        } else {
            state.selectable = true;
            state.selected = button().property("current").toBool();
        }
        return state;
    }

    [[nodiscard]] static bool reads(const QPushButton& button) {
        return isGroup(button) || button.property("role") == QStringLiteral("menuItem");
    }

private:
    [[nodiscard]] static bool isGroup(const QWidget& widget) {
        return widget.property("role") == QStringLiteral("menuGroup");
    }
};

/// A button of a toolbar, or the one within a coded field. Qt's own would answer only when what it opens is
/// closed again, and cannot press one that has a menu beside.
class ToolButtonAccess final : public ButtonAccess {
public:
    explicit ToolButtonAccess(QToolButton& button) : ButtonAccess(button, QAccessible::Button) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Accelerator) return button().shortcut().toString(QKeySequence::NativeText);
        const QString told = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && told.isEmpty() ? spokenText(button().text().toStdString()) : told;
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = menu() != nullptr;
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override {
        QStringList names = ButtonAccess::actionNames();
        if (menu() != nullptr && !names.isEmpty()) names << showMenuAction();
        return names;
    }

    void doAction(const QString& action) override {
        if (action != showMenuAction()) return ButtonAccess::doAction(action);
        if (menu() != nullptr && button().isEnabled())
            QTimer::singleShot(0, widget(), [this] { toolButton().showMenu(); });
    }

    // The menu is a window of its own, and yet a part of the button.
    [[nodiscard]] int childCount() const override { return menu() == nullptr ? 0 : 1; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(menu()) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        return child != nullptr && child->object() == menu() ? 0 : -1;
    }

    /// One that does nothing but open its menu, or that stays down, is read well by Qt.
    [[nodiscard]] static bool reads(const QToolButton& button) {
        const bool opensMenu = button.menu() != nullptr && button.popupMode() == QToolButton::InstantPopup;
        return !opensMenu && !button.isCheckable();
    }

private:
    [[nodiscard]] QToolButton& toolButton() const { return *static_cast<QToolButton*>(widget()); }
    [[nodiscard]] QMenu* menu() const { return toolButton().menu(); }
};

} // namespace

QAccessibleInterface* makeButtonAccess(const QString& className, QWidget& widget) {
    if (className == QStringLiteral("QPushButton")) {
        auto& button = static_cast<QPushButton&>(widget);
        return MenuButtonAccess::reads(button) ? new MenuButtonAccess(button) : nullptr;
    }
    if (className == QStringLiteral("QToolButton")) {
        auto& button = static_cast<QToolButton&>(widget);
        return ToolButtonAccess::reads(button) ? new ToolButtonAccess(button) : nullptr;
    }
    return nullptr;
}

} // namespace quillmere::qt

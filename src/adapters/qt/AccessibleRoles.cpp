#include "adapters/qt/AccessibleRoles.h"

#include <QAccessibleWidget>
#include <QPushButton>
#include <QVariant>

namespace quillmere::qt {

namespace {

constexpr auto readsAs = "readsAs";

/// A button of the accordion, told apart by its looks.
class MenuButtonAccess final : public QAccessibleWidget {
public:
    explicit MenuButtonAccess(QPushButton& button)
        : QAccessibleWidget(&button, isGroup(button) ? QAccessible::Button : QAccessible::MenuItem) {}

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

    [[nodiscard]] QStringList actionNames() const override {
        return button().isEnabled() ? QStringList{pressAction()} : QStringList();
    }

    void doAction(const QString& action) override {
        // Done when the program that asked has its answer: a message box may come of it.
        if (action == pressAction() && button().isEnabled()) button().animateClick();
    }

    [[nodiscard]] static bool isMenuButton(const QWidget& widget) {
        return isGroup(widget) || widget.property("role") == QStringLiteral("menuItem");
    }

private:
    [[nodiscard]] static bool isGroup(const QWidget& widget) {
        return widget.property("role") == QStringLiteral("menuGroup");
    }

    [[nodiscard]] QPushButton& button() const { return *static_cast<QPushButton*>(widget()); }
};

QAccessibleInterface* makeAccess(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr) return nullptr;
    if (className == QStringLiteral("QPushButton") && MenuButtonAccess::isMenuButton(*widget))
        return new MenuButtonAccess(*static_cast<QPushButton*>(widget));
    if (className == QStringLiteral("QWidget") && widget->property("role") == QStringLiteral("menuItems"))
        return new QAccessibleWidget(widget, QAccessible::PopupMenu);
    const QVariant role = widget->property(readsAs);
    if (className == QStringLiteral("QWidget") && role.isValid())
        return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
    return nullptr;
}

} // namespace

void readAs(QWidget& widget, QAccessible::Role role) { widget.setProperty(readsAs, static_cast<int>(role)); }

void installAccessibleRoles() { QAccessible::installFactory(&makeAccess); }

} // namespace quillmere::qt

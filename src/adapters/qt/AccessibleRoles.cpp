#include "adapters/qt/AccessibleRoles.h"

#include "adapters/qt/AccessibleButtons.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace quillmere::qt {

namespace {

constexpr auto readsAs = "readsAs";

QAccessibleInterface* makeAccess(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr) return nullptr;
    if (QAccessibleInterface* button = makeButtonAccess(className, *widget); button != nullptr) return button;
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

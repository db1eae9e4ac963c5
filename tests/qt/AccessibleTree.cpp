#include "qt/AccessibleTree.h"

#include "qt/RealPerson.h"

#include <gtest/gtest.h>

#include <QWidget>

#include <set>
#include <stdexcept>
#include <vector>

namespace quillmere::test {

namespace {

/// What reads the widgets that show, this one and all within it.
void collect(QAccessibleInterface& access, std::vector<QAccessibleInterface*>& found) {
    if (access.object() != nullptr && !access.state().invisible) found.push_back(&access);
    for (int i = 0; i < access.childCount(); ++i) {
        QAccessibleInterface* child = access.child(i);
        if (child != nullptr && child->object() != nullptr && child->object()->isWidgetType())
            collect(*child, found);
    }
}

/// Whether a person works with a thing of this role, so that it needs a name.
bool isWorkedWith(QAccessible::Role role) {
    static const std::set<QAccessible::Role> roles{
        QAccessible::Button, QAccessible::CheckBox, QAccessible::EditableText, QAccessible::MenuItem,
        QAccessible::Table,  QAccessible::Tree,     QAccessible::List,         QAccessible::PageTabList};
    return roles.contains(role);
}

} // namespace

QAccessibleInterface& accessOf(QWidget& widget) {
    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&widget);
    if (access == nullptr) throw std::runtime_error("nothing to read: " + widget.objectName().toStdString());
    return *access;
}

QAccessibleInterface& accessOf(std::string_view name) { return accessOf(widgetNamed(name)); }

std::string nameOf(QAccessibleInterface& access) { return access.text(QAccessible::Name).toStdString(); }

std::string descriptionOf(QAccessibleInterface& access) {
    return access.text(QAccessible::Description).toStdString();
}

AccessibleTree treeOf(std::string_view window) {
    std::vector<QAccessibleInterface*> all;
    collect(accessOf(windowNamed(window)), all);
    AccessibleTree found;
    for (QAccessibleInterface* access : all)
        found.emplace(access->object()->objectName().toStdString(), access);
    return found;
}

void expectNoneNameless(std::string_view window, std::string_view where) {
    std::vector<QAccessibleInterface*> all;
    collect(accessOf(windowNamed(window)), all);
    int named = 0;
    for (QAccessibleInterface* access : all) {
        if (!isWorkedWith(access->role())) continue;
        ++named;
        EXPECT_NE("", nameOf(*access)) << where << ": " << access->object()->objectName().toStdString();
    }
    EXPECT_GT(named, 0) << where;
}

std::string withoutBlanks(std::string_view caption) {
    QString text = QString::fromUtf8(caption.data(), static_cast<qsizetype>(caption.size()));
    text.remove(QLatin1Char(' ')).remove(QChar(0x3000));
    return text.toStdString();
}

} // namespace quillmere::test

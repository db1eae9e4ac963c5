#include "adapters/qt/AccessibleNames.h"

#include "adapters/qt/FormPeer.h"
#include "adapters/qt/LabelPeer.h"
#include "adapters/qt/QtText.h"
#include "adapters/qt/TextEntry.h"

#include "platform/ui/CommandButton.h"
#include "platform/ui/Label.h"
#include "platform/ui/Toolbar.h"

#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>

#include <algorithm>
#include <set>
#include <utility>

namespace quillmere::qt {

namespace {

constexpr auto helpLabel = "labExplain";

QString captionOf(const LabelPeer& label) {
    return spokenText(static_cast<const ui::Label*>(label.control())->Caption());
}

/// A label of the panel's head or foot, which belongs to no field.
bool isHeading(const ControlPeer* label) {
    const QString role = label == nullptr ? QString() : label->widget()->property("role").toString();
    return role == QStringLiteral("title") || role == QStringLiteral("pill") ||
           role == QStringLiteral("legend") || role == QStringLiteral("help");
}

/// What lists and tables are called by: the title of their panel, else the caption of the form.
QString titleOf(const FormPeer& form, const ui::ControlHost& host) {
    const auto* title = dynamic_cast<const LabelPeer*>(form.peerOf(host.find("Title")));
    return title == nullptr ? toQt(form.form().Caption()) : captionOf(*title);
}

/// Says nothing anew: every change is told to assistive programs, which may read it out again.
void setName(QWidget& widget, const QString& name) {
    if (widget.accessibleName() != name) widget.setAccessibleName(name);
}

void tellState(QWidget* button) {
    if (button == nullptr) return;
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(button, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace

QString spokenText(std::string_view caption) {
    static const QRegularExpression shortcut(QStringLiteral("\\(&.\\)"));
    QString text = toQt(std::string(caption));
    text.remove(shortcut);
    text.remove(QLatin1Char('&'));
    text.removeIf([](QChar character) { return character.isSpace(); });
    return text;
}

void AccessibleNames::nameControls(const ui::ControlHost& host) {
    std::set<std::pair<const ui::Control*, int>> places;
    for (const auto& control : host.Controls())
        places.emplace(control->Container(), control->page());
    for (const auto& [container, page] : places)
        nameGroup(host, container, page);
    const QString title = titleOf(form_, host);
    for (const auto& control : host.Controls()) {
        if (const ControlPeer* peer = form_.peerOf(control.get()); peer != nullptr)
            nameOther(*control, *peer, title);
    }
}

void AccessibleNames::nameGroup(const ui::ControlHost& host, const ui::Control* container, int page) {
    const ControlGroup group = groupControls(form_, host, [&](const ui::Control& control) {
        return control.Container() == container && control.page() == page &&
               !isHeading(form_.peerOf(&control));
    });
    for (const Field& field : group.fields)
        nameField(field);
    for (std::size_t i = 0; i < std::min(group.images.size(), group.notes.size()); ++i)
        nameField({.caption = group.notes[i], .editor = group.images[i], .unit = nullptr});
}

void AccessibleNames::nameField(const Field& field) {
    const ui::Control* editor = field.editor->control();
    Entry& entry = entries_[editor];
    entry.field = field;
    for (const LabelPeer* label : {field.caption, field.unit}) {
        if (label != nullptr) fieldOf_[label->control()] = editor;
    }
    describe(entry);
}

void AccessibleNames::nameOther(const ui::Control& control, const ControlPeer& peer, const QString& title) {
    switch (control.kind()) {
    case ui::Kind::DataGrid:
    case ui::Kind::ListBox:
    case ui::Kind::TreeView:
    case ui::Kind::TabStrip:
        setName(*peer.focusTarget(), title);
        break;
    case ui::Kind::CommandButton:
        setName(*peer.widget(), spokenText(static_cast<const ui::CommandButton&>(control).Caption()));
        break;
    case ui::Kind::Toolbar:
        nameButtons(peer);
        break;
    case ui::Kind::VerticalMenu:
        nameMenu(peer);
        break;
    default:
        break;
    }
}

void AccessibleNames::nameButtons(const ControlPeer& toolbar) {
    setName(*toolbar.widget(), QStringLiteral("工具栏"));
    for (const auto& model : static_cast<const ui::Toolbar*>(toolbar.control())->buttons()) {
        const QString name = toolbar.widget()->objectName() + QLatin1Char('_') + toQt(model->Key());
        auto* button = toolbar.widget()->findChild<QWidget*>(name);
        if (button != nullptr && !model->isSeparator()) setName(*button, spokenText(model->Caption()));
    }
}

void AccessibleNames::nameMenu(const ControlPeer& menu) {
    setName(*menu.widget(), QStringLiteral("菜单"));
    // The items of a group stand in the widget behind the group's button.
    QString group;
    for (auto* widget : menu.widget()->findChildren<QWidget*>()) {
        const QString role = widget->property("role").toString();
        if (role == QStringLiteral("menuGroup")) group = widget->accessibleName();
        if (role == QStringLiteral("menuItems")) setName(*widget, group);
    }
}

void AccessibleNames::describe(const Entry& entry) const {
    const auto& [field, help] = entry;
    QStringList description;
    if (field.caption != nullptr) {
        QLabel& caption = field.caption->label();
        if (caption.buddy() != field.editor->widget()) caption.setBuddy(field.editor->widget());
        setName(*field.editor->widget(), captionOf(*field.caption));
        if (static_cast<const ui::Label*>(field.caption->control())->FontBold())
            description << QStringLiteral("必填");
    }
    const auto* text = dynamic_cast<const TextEntry*>(field.editor);
    if (text != nullptr && text->isCoded()) description << QStringLiteral("按 F2 键或双击选择代码");
    if (field.unit != nullptr && !captionOf(*field.unit).isEmpty())
        description << QStringLiteral("单位：") + captionOf(*field.unit);
    if (!help.isEmpty()) description << help;
    const QString told = description.join(QStringLiteral("；"));
    QWidget& editor = *field.editor->widget();
    if (editor.accessibleDescription() != told) editor.setAccessibleDescription(told);
}

AccessibleNames::Entry* AccessibleNames::entryOf(const ui::Control* part) {
    const auto field = fieldOf_.find(part);
    const auto found = entries_.find(field == fieldOf_.end() ? part : field->second);
    return found == entries_.end() ? nullptr : &found->second;
}

void AccessibleNames::takeHelp(const ui::Control& help) {
    Entry* entry = entryOf(form_.form().ActiveControl());
    const QString text = toQt(static_cast<const ui::Label&>(help).Caption()).simplified();
    // It is blanked when the focus goes, and still holds for the field.
    if (entry == nullptr || text.isEmpty() || text == entry->help) return;
    entry->help = text;
    describe(*entry);
}

void AccessibleNames::tellOpenGroup(const ControlPeer& menu) {
    QWidget* open = nullptr;
    for (auto* button : menu.widget()->findChildren<QPushButton*>()) {
        if (button->property("open").toBool()) open = button;
    }
    if (open == openGroup_) return;
    tellState(openGroup_);
    tellState(open);
    openGroup_ = open;
}

void AccessibleNames::follow(const ui::Control& control, ui::Property property) {
    const ControlPeer* peer = form_.peerOf(&control);
    if (peer == nullptr) return;
    switch (property) {
    case ui::Property::Caption:
        if (control.name() == helpLabel) return takeHelp(control);
        if (control.kind() == ui::Kind::CommandButton) return nameOther(control, *peer, {});
        [[fallthrough]];
    case ui::Property::Font:
    case ui::Property::Locked:
    case ui::Property::BackColor:
        if (const Entry* entry = entryOf(&control); entry != nullptr) describe(*entry);
        break;
    case ui::Property::Current:
        if (control.kind() == ui::Kind::VerticalMenu) tellOpenGroup(*peer);
        break;
    default:
        break;
    }
}

void AccessibleNames::forget(const ControlPeer& peer) {
    const ui::Control* control = peer.control();
    entries_.erase(control);
    fieldOf_.erase(control);
    std::erase_if(fieldOf_, [&](const auto& entry) { return entry.second == control; });
    // A field whose label has gone keeps its name.
    for (auto& [editor, entry] : entries_) {
        if (entry.field.caption == &peer) entry.field.caption = nullptr;
        if (entry.field.unit == &peer) entry.field.unit = nullptr;
    }
}

} // namespace quillmere::qt

#pragma once

#include "adapters/qt/ControlGroup.h"

#include "platform/ui/Control.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <string_view>
#include <unordered_map>

namespace quillmere::qt {

/// The text of a caption as it is read out: without the blanks that space it out and without its
/// shortcut letter.
[[nodiscard]] QString spokenText(std::string_view caption);

/// Gives the widgets of one form the names and descriptions that assistive programs read out: a field
/// is called by its caption; its description says whether it is required and takes a code, its unit,
/// and its help text once that has been shown.
class AccessibleNames {
public:
    explicit AccessibleNames(const FormPeer& form) : form_(form) {}

    /// Names what stands on the host, once it is laid out.
    void nameControls(const ui::ControlHost& host);
    /// A property of a control has changed and shows.
    void follow(const ui::Control& control, ui::Property property);
    void forget(const ControlPeer& peer);

private:
    struct Entry {
        Field field;
        QString help;
    };

    void nameGroup(const ui::ControlHost& host, const ui::Control* container, int page);
    void nameField(const Field& field);
    void nameOther(const ui::Control& control, const ControlPeer& peer, const QString& title);
    static void nameButtons(const ControlPeer& toolbar);
    static void nameMenu(const ControlPeer& menu);
    void describe(const Entry& entry) const;
    void takeHelp(const ui::Control& help);
    void tellOpenGroup(const ControlPeer& menu);
    [[nodiscard]] Entry* entryOf(const ui::Control* part);

    const FormPeer& form_;
    std::unordered_map<const ui::Control*, Entry> entries_;
    /// From captions and units to the control of their field.
    std::unordered_map<const ui::Control*, const ui::Control*> fieldOf_;
    QPointer<QWidget> openGroup_;
};

} // namespace quillmere::qt

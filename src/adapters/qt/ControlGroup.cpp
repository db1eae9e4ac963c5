#include "adapters/qt/ControlGroup.h"

#include "adapters/qt/FormPeer.h"
#include "adapters/qt/LabelPeer.h"

#include "platform/text/Text.h"
#include "platform/ui/Label.h"
#include "platform/ui/TextBox.h"

#include <algorithm>
#include <deque>

namespace quillmere::qt {

namespace {

constexpr std::size_t longestUnit = 4;

bool isUnitOf(const ui::Control& label, const ui::Control& field) {
    // Beside the fields that bind by name only the drawing's nameless labels are units.
    if (text::endsWith(field.name(), "_v") && !text::startsWithNoCase(label.name(), "Label")) return false;
    const std::string caption = text::trim(static_cast<const ui::Label&>(label).Caption());
    return !caption.empty() && text::length(caption) <= longestUnit;
}

bool isField(const ui::Control& control) {
    const ui::Kind kind = control.kind();
    return kind == ui::Kind::TextBox || kind == ui::Kind::MaskEdBox || kind == ui::Kind::CheckBox;
}

/// Builds the group in one walk over the controls.
class Sorter {
public:
    Sorter(const FormPeer& form, const ui::ControlHost& host) : form_(form), host_(host) {}

    /// The control, and the one behind it, if there is one.
    void take(const ui::Control& control, const ui::Control* next) {
        ControlPeer* peer = form_.peerOf(&control);
        if (peer == nullptr) return;
        switch (control.kind()) {
        case ui::Kind::Label:
            takeLabel(control, next);
            break;
        case ui::Kind::TextBox:
        case ui::Kind::MaskEdBox:
        case ui::Kind::CheckBox:
            takeField(control, *peer);
            break;
        case ui::Kind::Image:
            group_.images.push_back(peer);
            break;
        case ui::Kind::ListBox:
        case ui::Kind::TreeView:
            group_.lists.push_back(peer);
            break;
        case ui::Kind::DataGrid:
            group_.grids.push_back(peer);
            break;
        case ui::Kind::CommandButton:
            group_.buttons.push_back(peer);
            break;
        case ui::Kind::TabStrip:
            group_.tabs.push_back(peer);
            break;
        case ui::Kind::Frame:
            group_.frames.push_back(peer);
            break;
        default:
            break;
        }
    }

    ControlGroup finish() {
        for (LabelPeer* label : waiting_)
            group_.notes.push_back(label);
        std::ranges::stable_sort(group_.fields, {},
                                 [](const Field& field) { return field.editor->control()->TabIndex(); });
        return std::move(group_);
    }

private:
    LabelPeer* labelNamed(const std::string& name) const {
        return dynamic_cast<LabelPeer*>(form_.peerOf(host_.find(name)));
    }

    void takeLabel(const ui::Control& control, const ui::Control* next) {
        auto* label = dynamic_cast<LabelPeer*>(form_.peerOf(&control));
        const std::string& name = control.name();
        const bool named = text::endsWith(name, "_c") || text::endsWith(name, "_u");
        if (named && host_.find(name.substr(0, name.size() - 2) + "_v") != nullptr) return;
        Field* last = group_.fields.empty() ? nullptr : &group_.fields.back();
        // A label right before a field is its caption, however short it is.
        const bool leads = next != nullptr && isField(*next) && !text::endsWith(next->name(), "_v");
        const bool free = !leads && last != nullptr && last->unit == nullptr && waiting_.empty();
        if (free && isUnitOf(control, *last->editor->control()))
            last->unit = label;
        else
            waiting_.push_back(label);
    }

    void takeField(const ui::Control& control, ControlPeer& peer) {
        Field field;
        field.editor = &peer;
        const std::string& name = control.name();
        if (text::endsWith(name, "_v")) {
            const std::string stem = name.substr(0, name.size() - 2);
            field.caption = labelNamed(stem + "_c");
            field.unit = labelNamed(stem + "_u");
        } else if (!waiting_.empty()) {
            field.caption = waiting_.front();
            waiting_.pop_front();
        }
        group_.fields.push_back(field);
    }

    const FormPeer& form_;
    const ui::ControlHost& host_;
    ControlGroup group_;
    /// Labels that may yet turn out to be the captions of fields behind them.
    std::deque<LabelPeer*> waiting_;
};

} // namespace

bool Field::isWide() const {
    const auto* box = dynamic_cast<const ui::TextBox*>(editor->control());
    return box != nullptr && box->MultiLine();
}

ControlGroup groupControls(const FormPeer& form, const ui::ControlHost& host,
                           const std::function<bool(const ui::Control&)>& accepts) {
    std::vector<const ui::Control*> accepted;
    for (const auto& control : host.Controls()) {
        if (accepts(*control)) accepted.push_back(control.get());
    }
    Sorter sorter(form, host);
    for (std::size_t i = 0; i < accepted.size(); ++i) {
        sorter.take(*accepted[i], i + 1 < accepted.size() ? accepted[i + 1] : nullptr);
    }
    return sorter.finish();
}

} // namespace quillmere::qt

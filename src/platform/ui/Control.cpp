#include "platform/ui/Control.h"

#include "platform/text/Text.h"
#include "platform/ui/Form.h"
#include "platform/ui/TabStrip.h"

#include <array>
#include <utility>

namespace quillmere::ui {

std::string_view nameOf(Kind kind) {
    static constexpr std::array<std::string_view, 18> names{
        "Form",     "Frame",        "Line",     "Label",       "TextBox", "MaskEdBox",
        "CheckBox", "ListBox",      "TreeView", "TabStrip",    "Image",   "CommandButton",
        "Toolbar",  "VerticalMenu", "DataGrid", "UserControl", "Skin",    "CommonDialog"};
    return names[static_cast<std::size_t>(kind)];
}

Control::Control(Kind kind, std::string name) : kind_(kind), name_(std::move(name)) {}

Control::~Control() = default;

void Control::notify(Property property) {
    if (view_ != nullptr && !removed_) view_->changed(property);
}

void Control::setVisible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    notify(Property::Visible);
    if (visible) becameVisible();
    if (!visible && form() != nullptr) form()->dropFocusFromUnusable();
}

void Control::setEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    notify(Property::Enabled);
    if (!enabled && form() != nullptr) form()->dropFocusFromUnusable();
}

void Control::setGeometry(const Rect& geometry) {
    if (geometry_ == geometry) return;
    geometry_ = geometry;
    notify(Property::Geometry);
    if (isPutAway() && form() != nullptr) form()->dropFocusFromUnusable();
}

void Control::setToolTip(std::string text) {
    toolTip_ = std::move(text);
    notify(Property::ToolTip);
}

void Control::setContainer(Control* container) {
    container_ = container;
    notify(Property::Geometry);
}

Form* Control::form() const { return host_ == nullptr ? nullptr : host_->topForm(); }

bool Control::isRemoved() const {
    const Control* bearer = host_ == nullptr ? nullptr : host_->asControl();
    return removed_ || (bearer != nullptr && bearer->isRemoved());
}

bool Control::isShown() const {
    if (!visible_ || removed_ || host_ == nullptr || isPutAway()) return false;
    if (container_ != nullptr) {
        const auto* tabs = dynamic_cast<const TabStrip*>(container_);
        if (tabs != nullptr && tabs->Tab() != page_) return false;
        return container_->isShown();
    }
    const Control* hostControl = host_ == nullptr ? nullptr : host_->asControl();
    return hostControl == nullptr || hostControl->isShown();
}

bool Control::isUsable() const {
    if (!enabled_ || removed_) return false;
    if (container_ != nullptr) return container_->isUsable();
    const Control* hostControl = host_ == nullptr ? nullptr : host_->asControl();
    return hostControl == nullptr || hostControl->isUsable();
}

bool Control::canTakeFocus() const { return isFocusKind() && isShown() && isUsable(); }

void Control::SetFocus() {
    if (form() != nullptr) form()->moveFocus(*this);
}

bool Control::hasFocus() const { return form() != nullptr && form()->ActiveControl() == this; }

std::optional<std::string> Control::property(std::string_view name) const {
    const auto boolean = [](bool value) { return std::string(value ? "true" : "false"); };
    const auto is = [&](std::string_view wanted) { return text::equalsNoCase(name, wanted); };
    if (is("Name")) return name_;
    if (is("Visible")) return boolean(visible_);
    if (is("Enabled")) return boolean(enabled_);
    if (is("TabIndex")) return std::to_string(tabIndex_);
    if (is("TabStop")) return boolean(tabStop_);
    if (is("ToolTipText")) return toolTip_;
    if (is("Left")) return std::to_string(geometry_.left);
    if (is("Top")) return std::to_string(geometry_.top);
    if (is("Width")) return std::to_string(geometry_.width);
    if (is("Height")) return std::to_string(geometry_.height);
    return std::nullopt;
}

void Control::personKeyDown(const KeyStroke& /*stroke*/) {}
void Control::personCharacter(char32_t /*character*/) {}
void Control::personClick() { Click.raise(); }
void Control::personDoubleClick() {}
void Control::personPaste(std::string_view /*text*/) {}
void Control::selectAll() {}

} // namespace quillmere::ui

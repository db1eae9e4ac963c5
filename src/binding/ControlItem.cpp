#include "binding/ControlItem.h"

#include "binding/ControlItems.h"
#include "platform/ui/CheckBox.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/MaskEdBox.h"
#include "platform/ui/TextBox.h"

namespace quillmere {

namespace {

/// Enter moves on to the next widget and selects all of what it holds.
void moveOnWithEnter(char32_t& character) {
    if (character != ui::key::Enter) return;
    character = 0;
    ui::desktop().sendKeys("{tab}");
    ui::desktop().sendKeys("{Home}+{End}");
}

} // namespace

void ControlItem::Init(ui::Control& control, ControlItems& parent) {
    subscriptions_.clear();
    ControlKind.clear();
    Ctrl = &control;
    parent_ = &parent;
    switch (control.kind()) {
    case ui::Kind::TextBox:
        ControlKind = "controlt";
        subscribeTextBox();
        break;
    case ui::Kind::Label:
        ControlKind = "controll";
        subscribeMouseDown();
        break;
    case ui::Kind::CheckBox:
        ControlKind = "controlc";
        subscribeCheckBox();
        break;
    case ui::Kind::Image:
        ControlKind = "controli";
        subscribeMouseDown();
        break;
    case ui::Kind::MaskEdBox:
        ControlKind = "controlMe";
        subscribeMasked();
        break;
    default:
        break;
    }
}

data::Value ControlItem::GetProperty(std::string_view name,
                                     const std::optional<data::Value>& defaultValue) const {
    const auto found = Properties.find(name);
    if (found != Properties.end()) return found->second;
    return defaultValue.value_or(data::Value());
}

void ControlItem::subscribeTextBox() {
    auto& box = static_cast<ui::TextBox&>(*Ctrl);
    subscriptions_.push_back(box.Change.subscribe([this] { forward("Change"); }));
    // No Enter rule here: Enter in a text box stays with the text box, which is meant so.
    subscriptions_.push_back(box.DblClick.subscribe([this] { forward("DblClick"); }));
    subscribeFocus();
    subscribeMouseDown();
    subscribeMouseMove();
}

void ControlItem::subscribeMasked() {
    auto& box = static_cast<ui::MaskEdBox&>(*Ctrl);
    subscriptions_.push_back(box.Change.subscribe([this] { forward("Change"); }));
    subscriptions_.push_back(box.KeyPress.subscribe(moveOnWithEnter));
    subscribeFocus();
}

void ControlItem::subscribeCheckBox() {
    subscriptions_.push_back(Ctrl->KeyPress.subscribe(moveOnWithEnter));
    subscribeMouseDown();
    subscribeMouseMove();
}

void ControlItem::subscribeMouseDown() {
    subscriptions_.push_back(Ctrl->MouseDown.subscribe([this](int button) {
        if (button == ui::mouse::Left) forward("LButtonDown");
        if (button == ui::mouse::Right) forward("RButtonDown");
    }));
}

void ControlItem::subscribeMouseMove() {
    subscriptions_.push_back(Ctrl->MouseMove.subscribe([this](int) { forward("MouseMove"); }));
}

void ControlItem::subscribeFocus() {
    subscriptions_.push_back(Ctrl->GotFocus.subscribe([this] { forward("GotFocus"); }));
    subscriptions_.push_back(Ctrl->LostFocus.subscribe([this] { forward("LostFocus"); }));
    subscriptions_.push_back(
        Ctrl->Validate.subscribe([this](bool& cancel) { parent_->RaiseValidate(*this, cancel); }));
}

void ControlItem::forward(std::string_view eventName) { parent_->RaiseFor(*this, Properties, eventName); }

} // namespace quillmere

#include "platform/ui/Toolbar.h"

#include "platform/Error.h"
#include "platform/text/Text.h"
#include "platform/ui/Form.h"

#include <algorithm>

namespace quillmere::ui {

void Toolbar::Button::setEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    owner_->notify(Property::Items);
}

Toolbar::Button& Toolbar::addButton(std::string key, std::string caption) {
    buttons_.push_back(std::make_unique<Button>(*this, std::move(key), std::move(caption), false));
    return *buttons_.back();
}

void Toolbar::addSeparator() {
    buttons_.push_back(std::make_unique<Button>(*this, std::string(), std::string(), true));
}

Toolbar::Button& Toolbar::Buttons(std::string_view key) const {
    const auto found = std::ranges::find_if(
        buttons_, [&](const auto& button) { return !button->isSeparator() && button->Key() == key; });
    if (found == buttons_.end()) throw Error(Failure::ItemNotFound);
    return **found;
}

bool Toolbar::clickButton(Button& button) {
    if (button.isSeparator() || !button.Enabled() || !isShown() || !isUsable()) return false;
    form()->perform([&] { ButtonClick.raise(button); });
    return true;
}

std::optional<std::string> Toolbar::property(std::string_view name) const {
    for (const auto& button : buttons_) {
        if (button->isSeparator()) continue;
        if (text::equalsNoCase(name, button->Key() + ".Enabled")) return button->Enabled() ? "true" : "false";
        if (text::equalsNoCase(name, button->Key() + ".Caption")) return button->Caption();
    }
    return Control::property(name);
}

} // namespace quillmere::ui

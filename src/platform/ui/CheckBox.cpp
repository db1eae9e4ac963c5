#include "platform/ui/CheckBox.h"

#include "platform/text/Text.h"

namespace quillmere::ui {

void CheckBox::setValue(int value) {
    if (value_ == value) return;
    value_ = value;
    notify(Property::Value);
    Click.raise();
}

void CheckBox::personClick() { setValue(value_ == 0 ? 1 : 0); }

void CheckBox::personCharacter(char32_t character) {
    if (character == U' ') personClick();
}

std::optional<std::string> CheckBox::property(std::string_view name) const {
    if (text::equalsNoCase(name, "Value")) return std::to_string(value_);
    return Control::property(name);
}

} // namespace quillmere::ui

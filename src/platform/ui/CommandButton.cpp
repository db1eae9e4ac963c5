#include "platform/ui/CommandButton.h"

#include "platform/text/Text.h"

namespace quillmere::ui {

void CommandButton::setCaption(std::string caption) {
    caption_ = std::move(caption);
    notify(Property::Caption);
}

void CommandButton::personCharacter(char32_t character) {
    if (character == U' ' || character == key::Enter) Click.raise();
}

std::optional<std::string> CommandButton::property(std::string_view name) const {
    if (text::equalsNoCase(name, "Caption")) return caption_;
    return Control::property(name);
}

} // namespace quillmere::ui

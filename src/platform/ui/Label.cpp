#include "platform/ui/Label.h"

#include "platform/text/Text.h"

namespace quillmere::ui {

void Label::setCaption(std::string caption) {
    if (caption_ == caption) return;
    caption_ = std::move(caption);
    notify(Property::Caption);
}

void Label::setFontBold(bool bold) {
    if (bold_ == bold) return;
    bold_ = bold;
    notify(Property::Font);
}

void Label::setFontName(std::string name) {
    fontName_ = std::move(name);
    notify(Property::Font);
}

void Label::setPicture(std::string path) {
    picture_ = std::move(path);
    notify(Property::Picture);
}

std::optional<std::string> Label::property(std::string_view name) const {
    if (text::equalsNoCase(name, "Caption")) return caption_;
    if (text::equalsNoCase(name, "FontBold")) return bold_ ? "true" : "false";
    if (text::equalsNoCase(name, "FontName")) return fontName_;
    return Control::property(name);
}

} // namespace quillmere::ui

#include "platform/ui/Image.h"

#include "platform/text/Text.h"

namespace quillmere::ui {

void Image::setPicture(std::string path) {
    picture_ = std::move(path);
    notify(Property::Picture);
}

std::optional<std::string> Image::property(std::string_view name) const {
    if (text::equalsNoCase(name, "Picture")) return picture_;
    return Control::property(name);
}

} // namespace quillmere::ui

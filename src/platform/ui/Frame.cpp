#include "platform/ui/Frame.h"

#include "platform/text/Text.h"

namespace quillmere::ui {

void Frame::setCaption(std::string caption) {
    caption_ = std::move(caption);
    notify(Property::Caption);
}

std::optional<std::string> Frame::property(std::string_view name) const {
    if (text::equalsNoCase(name, "Caption")) return caption_;
    return Control::property(name);
}

} // namespace quillmere::ui

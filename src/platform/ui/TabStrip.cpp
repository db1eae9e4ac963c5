#include "platform/ui/TabStrip.h"

#include "platform/Error.h"
#include "platform/text/Text.h"
#include "platform/ui/Form.h"

namespace quillmere::ui {

void TabStrip::setTab(int page) {
    if (page < 0 || page >= static_cast<int>(captions_.size())) throw Error(Failure::SubscriptOutOfRange);
    if (page == tab_) return;
    tab_ = page;
    notify(Property::Page);
    if (form() != nullptr) form()->dropFocusFromUnusable();
    Click.raise();
}

void TabStrip::personKeyDown(const KeyStroke& stroke) {
    if (stroke.code == key::Left && tab_ > 0) setTab(tab_ - 1);
    if (stroke.code == key::Right && tab_ + 1 < static_cast<int>(captions_.size())) setTab(tab_ + 1);
}

std::optional<std::string> TabStrip::property(std::string_view name) const {
    if (text::equalsNoCase(name, "Tab")) return std::to_string(tab_);
    return Control::property(name);
}

} // namespace quillmere::ui

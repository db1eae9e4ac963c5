#include "platform/ui/ListBox.h"

#include "platform/Error.h"
#include "platform/text/Text.h"

#include <algorithm>

namespace quillmere::ui {

void ListBox::AddItem(std::string text) {
    items_.push_back(std::move(text));
    notify(Property::Items);
}

void ListBox::setItems(std::vector<std::string> items) {
    items_ = std::move(items);
    listIndex_ = -1;
    rowUnderPointer_ = -1;
    notify(Property::Items);
}

void ListBox::Clear() { setItems({}); }

void ListBox::setListIndex(int index) {
    if (index < -1 || index >= ListCount()) throw Error(Failure::SubscriptOutOfRange);
    if (index == listIndex_) return;
    listIndex_ = index;
    notify(Property::Current);
    Click.raise();
}

std::string ListBox::Text() const {
    return listIndex_ < 0 ? std::string() : items_[static_cast<std::size_t>(listIndex_)];
}

void ListBox::personKeyDown(const KeyStroke& stroke) {
    if (items_.empty()) return;
    const int last = ListCount() - 1;
    switch (stroke.code) {
    case key::Up:
        setListIndex(std::max(0, listIndex_ - 1));
        break;
    case key::Down:
        setListIndex(std::min(last, listIndex_ + 1));
        break;
    case key::Home:
        setListIndex(0);
        break;
    case key::End:
        setListIndex(last);
        break;
    default:
        break;
    }
}

std::optional<std::string> ListBox::property(std::string_view name) const {
    if (text::equalsNoCase(name, "Text")) return Text();
    if (text::equalsNoCase(name, "ListIndex")) return std::to_string(listIndex_);
    if (text::equalsNoCase(name, "ListCount")) return std::to_string(ListCount());
    return Control::property(name);
}

} // namespace quillmere::ui

#include "platform/ui/VerticalMenu.h"

#include "platform/Error.h"
#include "platform/text/Text.h"
#include "platform/ui/Form.h"

namespace quillmere::ui {

namespace {

/// The element counted from 1, none outside.
template <class T>
T* countedFromOne(std::vector<T>& list, int number) {
    if (number < 1 || number > static_cast<int>(list.size())) return nullptr;
    return &list[static_cast<std::size_t>(number) - 1];
}

} // namespace

void VerticalMenu::addGroup(std::string caption, std::size_t itemCount) {
    groups_.push_back({std::move(caption), std::vector<Item>(itemCount)});
    notify(Property::Items);
}

void VerticalMenu::setOpenGroup(int group) {
    if (openGroup_ == group) return;
    openGroup_ = group;
    notify(Property::Current);
}

void VerticalMenu::setItemCount(std::size_t count) {
    Group* group = countedFromOne(groups_, addressedGroup_);
    if (group == nullptr) throw Error(Failure::SubscriptOutOfRange);
    group->items.assign(count, {});
    notify(Property::Items);
}

const VerticalMenu::Item& VerticalMenu::addressed() const {
    auto& groups = const_cast<std::vector<Group>&>(groups_);
    Group* group = countedFromOne(groups, addressedGroup_);
    Item* item = group == nullptr ? nullptr : countedFromOne(group->items, addressedItem_);
    if (item == nullptr) throw Error(Failure::SubscriptOutOfRange);
    return *item;
}

void VerticalMenu::setItemCaption(std::string caption) {
    addressed().caption = std::move(caption);
    notify(Property::Items);
}

void VerticalMenu::setItemKey(std::string key) { addressed().key = std::move(key); }

bool VerticalMenu::clickItem(int group, int item) {
    Group* clicked = countedFromOne(groups_, group);
    if (clicked == nullptr || countedFromOne(clicked->items, item) == nullptr) return false;
    if (!isShown() || !isUsable()) return false;
    form()->perform([&] {
        openByPerson(group);
        ItemClick.raise(group, item);
    });
    return true;
}

std::optional<std::string> VerticalMenu::property(std::string_view name) const {
    if (text::equalsNoCase(name, "OpenGroup")) return std::to_string(openGroup_);
    if (text::equalsNoCase(name, "AddressedGroup")) return std::to_string(addressedGroup_);
    if (text::equalsNoCase(name, "AddressedItem")) return std::to_string(addressedItem_);
    return Control::property(name);
}

} // namespace quillmere::ui

#pragma once

#include "platform/ui/Control.h"

#include <vector>

namespace quillmere::ui {

/// A menu of groups that stand one below the other, one of them open. Groups and items count from
/// 1. `AddressedGroup` and `AddressedItem` say what the item operations refer to; writing them
/// raises no event.
class VerticalMenu : public Control {
public:
    struct Item {
        std::string caption;
        std::string key;
    };
    struct Group {
        std::string caption;
        std::vector<Item> items;
    };

    explicit VerticalMenu(std::string name) : Control(Kind::VerticalMenu, std::move(name)) {}

    void addGroup(std::string caption, std::size_t itemCount);
    [[nodiscard]] const std::vector<Group>& groups() const { return groups_; }

    [[nodiscard]] int AddressedGroup() const { return addressedGroup_; }
    void setAddressedGroup(int group) {
        addressedGroup_ = group;
        notify(Property::Current);
    }
    [[nodiscard]] int AddressedItem() const { return addressedItem_; }
    void setAddressedItem(int item) {
        addressedItem_ = item;
        notify(Property::Current);
    }
    /// The group on show, from 1.
    [[nodiscard]] int OpenGroup() const { return openGroup_; }
    void setOpenGroup(int group);

    /// Of the addressed group. Raises SubscriptOutOfRange for a group that is not there.
    void setItemCount(std::size_t count);
    /// Of the addressed item in the addressed group. Raise SubscriptOutOfRange.
    [[nodiscard]] const std::string& ItemCaption() const { return addressed().caption; }
    void setItemCaption(std::string caption);
    [[nodiscard]] const std::string& ItemKey() const { return addressed().key; }
    void setItemKey(std::string key);

    /// A person clicks an item, opening its group first; false when there is no such item.
    bool clickItem(int group, int item);
    /// A person opens a group.
    void openByPerson(int group) { setOpenGroup(group); }

    [[nodiscard]] std::optional<std::string> property(std::string_view name) const override;

    /// Group and item.
    Event<int&, int&> ItemClick;

private:
    [[nodiscard]] const Item& addressed() const;
    [[nodiscard]] Item& addressed() { return const_cast<Item&>(std::as_const(*this).addressed()); }

    std::vector<Group> groups_;
    int addressedGroup_ = 1;
    int addressedItem_ = 1;
    int openGroup_ = 1;
};

} // namespace quillmere::ui

#pragma once

#include "metadata/cFieldItem.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quillmere {

/// The fields of one information set, in the order of the catalogue rows, keyed by "<table>_<field>"
/// without regard to case: the name of the value widget less its ending "_v".
class cFieldItems {
public:
    using Item_ptr = std::shared_ptr<cFieldItem>;

    /// Appends an item, under no key when `key` is empty. Raises KeyAlreadyUsed.
    cFieldItem& Add(Item_ptr item, std::string_view key);
    /// By position from 1 (SubscriptOutOfRange), or by key (InvalidCall when unknown).
    [[nodiscard]] cFieldItem& Item(std::int32_t index) const;
    [[nodiscard]] cFieldItem& Item(std::string_view key) const;
    /// None when there is no such key.
    [[nodiscard]] cFieldItem* find(std::string_view key) const;
    [[nodiscard]] std::int32_t Count() const { return static_cast<std::int32_t>(items_.size()); }
    void remove(std::int32_t index);
    void remove(std::string_view key);

    /// In the order of insertion.
    [[nodiscard]] auto begin() const { return items_.begin(); }
    [[nodiscard]] auto end() const { return items_.end(); }

private:
    std::vector<Item_ptr> items_;
    std::unordered_map<std::string, Item_ptr> byKey_;
};

} // namespace quillmere

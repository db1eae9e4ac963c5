#include "metadata/cFieldItems.h"

#include "platform/Error.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <utility>

namespace quillmere {

cFieldItem& cFieldItems::Add(Item_ptr item, std::string_view key) {
    cFieldItem& added = *item;
    if (!key.empty() && !byKey_.try_emplace(text::lower(key), item).second) {
        throw Error(Failure::KeyAlreadyUsed);
    }
    items_.push_back(std::move(item));
    return added;
}

cFieldItem& cFieldItems::Item(std::int32_t index) const {
    if (index < 1 || index > Count()) throw Error(Failure::SubscriptOutOfRange);
    return *items_[static_cast<std::size_t>(index - 1)];
}

cFieldItem& cFieldItems::Item(std::string_view key) const {
    cFieldItem* item = find(key);
    if (item == nullptr) throw Error(Failure::InvalidCall);
    return *item;
}

cFieldItem* cFieldItems::find(std::string_view key) const {
    const auto found = byKey_.find(text::lower(key));
    return found == byKey_.end() ? nullptr : found->second.get();
}

void cFieldItems::remove(std::int32_t index) {
    const cFieldItem* item = &Item(index);
    std::erase_if(byKey_, [&](const auto& entry) { return entry.second.get() == item; });
    items_.erase(items_.begin() + (index - 1));
}

void cFieldItems::remove(std::string_view key) {
    const cFieldItem* item = &Item(key);
    const auto place = std::ranges::find(items_, item, &Item_ptr::get);
    remove(static_cast<std::int32_t>(place - items_.begin()) + 1);
}

} // namespace quillmere

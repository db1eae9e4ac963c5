#include "metadata/cFieldItem.h"

#include "metadata/cFieldItems.h"

namespace quillmere {

cFieldItem::cFieldItem() = default;
cFieldItem::~cFieldItem() = default;

cFieldItems& cFieldItem::children() {
    if (!children_) children_ = std::make_unique<cFieldItems>();
    return *children_;
}

} // namespace quillmere

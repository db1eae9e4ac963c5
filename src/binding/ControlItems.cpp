#include "binding/ControlItems.h"

#include "platform/Error.h"

namespace quillmere {

namespace {

using PlainEvent = ui::Event<ui::Control&> ControlItems::*;
using BagEvent = ui::Event<ui::Control&, PropertyBag&> ControlItems::*;

template <class EventMember>
struct Route {
    std::string_view name;
    EventMember event;
};

constexpr Route<PlainEvent> plainRoutes[] = {
    {"GotFocus", &ControlItems::GotFocus},   {"LostFocus", &ControlItems::LostFocus},
    {"DblClick", &ControlItems::DblClick},   {"Change", &ControlItems::Change},
    {"ColResize", &ControlItems::ColResize}, {"MouseMove", &ControlItems::MouseMove},
};

constexpr Route<BagEvent> bagRoutes[] = {
    {"LButtonDown", &ControlItems::LButtonDown},
    {"RButtonDown", &ControlItems::RButtonDown},
};

std::ptrdiff_t offsetOf(std::int32_t index, std::int32_t count) {
    if (index < 1 || index > count) throw Error(Failure::SubscriptOutOfRange);
    return index - 1;
}

} // namespace

ControlItem& ControlItems::AddControl(ui::Control& control) {
    auto item = std::make_unique<ControlItem>();
    item->Init(control, *this);
    items_.push_back(std::move(item));
    return *items_.back();
}

void ControlItems::remove(std::int32_t index) { items_.erase(items_.begin() + offsetOf(index, Count())); }

ControlItem& ControlItems::Item(std::int32_t index) const {
    return *items_[static_cast<std::size_t>(offsetOf(index, Count()))];
}

void ControlItems::RaiseFor(ControlItem& item, PropertyBag& bag, std::string_view eventName) {
    if (item.Ctrl == nullptr) return;
    ui::Control& control = *item.Ctrl;
    for (const auto& route : plainRoutes)
        if (route.name == eventName) (this->*route.event).raise(control);
    for (const auto& route : bagRoutes)
        if (route.name == eventName) (this->*route.event).raise(control, bag);
}

void ControlItems::RaiseValidate(ControlItem& item, bool& cancel) {
    if (item.Ctrl != nullptr) Validate.raise(*item.Ctrl, cancel);
}

} // namespace quillmere

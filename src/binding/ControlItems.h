#pragma once

#include "binding/ControlItem.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace quillmere {

/// The wrapped widgets of a panel: their events come out as one set of events, each with the widget
/// as argument.
class ControlItems {
public:
    /// Wraps a widget of whatever kind.
    ControlItem& AddControl(ui::Control& control);
    /// By position from 1. Raise SubscriptOutOfRange.
    void remove(std::int32_t index);
    [[nodiscard]] ControlItem& Item(std::int32_t index) const;
    [[nodiscard]] std::int32_t Count() const { return static_cast<std::int32_t>(items_.size()); }
    void Clear() { items_.clear(); }

    ui::Event<ui::Control&, PropertyBag&> LButtonDown;
    ui::Event<ui::Control&> GotFocus;
    ui::Event<ui::Control&, bool&> Validate;
    ui::Event<ui::Control&> LostFocus;
    ui::Event<ui::Control&> DblClick;
    ui::Event<ui::Control&> Change;
    ui::Event<ui::Control&, PropertyBag&> RButtonDown;
    ui::Event<ui::Control&> ColResize;
    ui::Event<ui::Control&> MouseMove;

    /// For wrappers only: raises the event of that name; an unknown name raises nothing.
    void RaiseFor(ControlItem& item, PropertyBag& bag, std::string_view eventName);
    void RaiseValidate(ControlItem& item, bool& cancel);

private:
    std::vector<std::unique_ptr<ControlItem>> items_;
};

} // namespace quillmere

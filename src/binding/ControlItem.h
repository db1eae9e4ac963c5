#pragma once

#include "platform/data/Value.h"
#include "platform/ui/Control.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

class ControlItems;

/// Named values that hang on a wrapped widget.
using PropertyBag = std::map<std::string, data::Value, std::less<>>;

/// Wraps one widget: takes the events of its kind and hands each on to the collection that owns it.
class ControlItem {
public:
    /// The slot in use: "controlt" (text box), "controll" (label), "controlc" (check box),
    /// "controli" (image), "controlMe" (masked edit box); empty for a widget of any other kind.
    std::string ControlKind;
    PropertyBag Properties;
    ui::Control* Ctrl = nullptr;

    /// Subscribes to the widget by its kind. A data grid has a slot by its nature but is never given
    /// one: it stays a widget without events here, as required.
    void Init(ui::Control& control, ControlItems& parent);

    /// A named value of `Properties`, else the default, else an empty value.
    [[nodiscard]] data::Value GetProperty(std::string_view name,
                                          const std::optional<data::Value>& defaultValue = {}) const;

private:
    void forward(std::string_view eventName);
    void subscribeTextBox();
    void subscribeMasked();
    void subscribeCheckBox();
    void subscribeMouseDown();
    void subscribeMouseMove();
    void subscribeFocus();

    ControlItems* parent_ = nullptr;
    std::vector<ui::Subscription> subscriptions_;
};

} // namespace quillmere

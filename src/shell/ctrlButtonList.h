#pragma once

#include "platform/ui/Toolbar.h"
#include "platform/ui/UserControl.h"

#include <string>

namespace quillmere {

/// A toolbar of its own for walking through persons and records. Hosts of the component's controls
/// may place it; no form or panel of the system does, and its keys command nothing by themselves.
class ctrlButtonList final : public ui::UserControl {
public:
    explicit ctrlButtonList(std::string name);

    /// Any object, kept and given back.
    ui::Control* UControl = nullptr;

    /// A button was clicked.
    ui::Event<ui::Toolbar::Button&> ButtonClick;

    [[nodiscard]] ui::Toolbar& toolbar() const { return *Toolbar1_; }

private:
    ui::Toolbar* Toolbar1_ = nullptr;
};

} // namespace quillmere

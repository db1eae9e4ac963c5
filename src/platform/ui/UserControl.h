#pragma once

#include "platform/ui/ControlHost.h"

namespace quillmere::ui {

/// A control that bears controls of its own and sees keys before they do.
class UserControl : public Control, public ControlHost {
public:
    /// Not visible until told so.
    explicit UserControl(std::string name);

    [[nodiscard]] Form* topForm() override { return host() == nullptr ? nullptr : host()->topForm(); }
    [[nodiscard]] Control* asControl() override { return this; }

    /// The control is on show, when the operation that made it visible has run to its end.
    Event<> Shown;
    Event<> Resize;

    /// Moves and sizes the control; raises Resize when the size differs.
    void moveTo(const Rect& rect);

protected:
    void becameVisible() override;
};

} // namespace quillmere::ui

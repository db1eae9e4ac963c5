#pragma once

#include "platform/ui/Control.h"

namespace quillmere::ui {

/// Groups the controls whose container it is; what it is denied, they are denied.
class Frame : public Control {
public:
    explicit Frame(std::string name, std::string caption = {})
        : Control(Kind::Frame, std::move(name)), caption_(std::move(caption)) {}

    [[nodiscard]] const std::string& Caption() const { return caption_; }
    void setCaption(std::string caption);
    /// A frame that is out of use stands far to the left of the screen.
    [[nodiscard]] bool isPutAway() const override { return geometry().left < -5000; }
    [[nodiscard]] std::optional<std::string> property(std::string_view name) const override;

private:
    std::string caption_;
};

/// A rule.
class Line : public Control {
public:
    explicit Line(std::string name) : Control(Kind::Line, std::move(name)) {}
};

} // namespace quillmere::ui

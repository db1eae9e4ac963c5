#pragma once

#include "platform/ui/Control.h"

namespace quillmere::ui {

class CommandButton : public Control {
public:
    explicit CommandButton(std::string name, std::string caption = {})
        : Control(Kind::CommandButton, std::move(name)), caption_(std::move(caption)) {}

    /// With "&" before the shortcut letter.
    [[nodiscard]] const std::string& Caption() const { return caption_; }
    void setCaption(std::string caption);
    [[nodiscard]] std::optional<std::string> property(std::string_view name) const override;

protected:
    [[nodiscard]] bool isFocusKind() const override { return true; }
    void personCharacter(char32_t character) override;

private:
    std::string caption_;
};

} // namespace quillmere::ui

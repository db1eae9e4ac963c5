#pragma once

#include "platform/ui/Control.h"

namespace quillmere::ui {

class CheckBox : public Control {
public:
    explicit CheckBox(std::string name) : Control(Kind::CheckBox, std::move(name)) {}

    /// 0 not checked, 1 checked.
    [[nodiscard]] int Value() const { return value_; }
    void setValue(int value);
    [[nodiscard]] std::optional<std::string> property(std::string_view name) const override;

protected:
    [[nodiscard]] bool isFocusKind() const override { return true; }
    void personCharacter(char32_t character) override;
    void personClick() override;

private:
    int value_ = 0;
};

} // namespace quillmere::ui

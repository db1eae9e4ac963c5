#pragma once

#include "platform/ui/Control.h"

#include <memory>
#include <vector>

namespace quillmere::ui {

/// A row of buttons that take no focus.
class Toolbar : public Control {
public:
    class Button {
    public:
        Button(Toolbar& owner, std::string key, std::string caption, bool separator)
            : owner_(&owner), key_(std::move(key)), caption_(std::move(caption)), separator_(separator) {}

        [[nodiscard]] const std::string& Key() const { return key_; }
        /// With "&" before the shortcut letter.
        [[nodiscard]] const std::string& Caption() const { return caption_; }
        [[nodiscard]] bool isSeparator() const { return separator_; }
        [[nodiscard]] bool Enabled() const { return enabled_; }
        void setEnabled(bool enabled);

    private:
        Toolbar* owner_;
        std::string key_;
        std::string caption_;
        bool separator_;
        bool enabled_ = true;
    };

    explicit Toolbar(std::string name) : Control(Kind::Toolbar, std::move(name)) {}

    Button& addButton(std::string key, std::string caption);
    void addSeparator();
    [[nodiscard]] const std::vector<std::unique_ptr<Button>>& buttons() const { return buttons_; }
    /// By key, compared exactly. Raises ItemNotFound.
    [[nodiscard]] Button& Buttons(std::string_view key) const;
    /// A person clicks a button; false when it is disabled or a separator.
    bool clickButton(Button& button);

    /// "Add.Enabled" and the like.
    [[nodiscard]] std::optional<std::string> property(std::string_view name) const override;

    Event<Button&> ButtonClick;

private:
    std::vector<std::unique_ptr<Button>> buttons_;
};

} // namespace quillmere::ui

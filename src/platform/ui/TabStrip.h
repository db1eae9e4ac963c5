#pragma once

#include "platform/ui/Control.h"

#include <vector>

namespace quillmere::ui {

/// A container of pages; controls on it say with `setPage` where they stand.
class TabStrip : public Control {
public:
    TabStrip(std::string name, std::vector<std::string> captions)
        : Control(Kind::TabStrip, std::move(name)), captions_(std::move(captions)) {}

    [[nodiscard]] const std::vector<std::string>& captions() const { return captions_; }
    /// The page in front, from 0.
    [[nodiscard]] int Tab() const { return tab_; }
    /// Raises SubscriptOutOfRange for a page that is not there.
    void setTab(int page);
    [[nodiscard]] std::optional<std::string> property(std::string_view name) const override;

protected:
    [[nodiscard]] bool isFocusKind() const override { return true; }
    void personKeyDown(const KeyStroke& stroke) override;

private:
    std::vector<std::string> captions_;
    int tab_ = 0;
};

} // namespace quillmere::ui

#pragma once

#include "adapters/qt/Companion.h"
#include "scenario/Toolkit.h"
#include "scenario/qt/QtHand.h"

#include <quillmere/Qt.h>

#include <optional>

namespace quillmere::scenario {

/// Real windows: on a display where there is one, else off the screen.
class QtToolkit final : public Toolkit, private qt::Companion {
public:
    QtToolkit();
    ~QtToolkit() override;

    void employ(Player* player) override { player_ = player; }
    Hand& hand() override { return hand_; }
    void takePicture(const std::string& path) override;
    [[nodiscard]] bool isFailing() const override;

private:
    void formOpened(ui::Form& form) override;
    void formClosed(ui::Form& form) override;
    std::optional<ui::Answer> messageOpened(const ui::MessageBox& message) override;
    std::optional<std::string> fileAsked(const ui::FileDialog& dialog) override;
    void beepHeard() override;

    std::optional<qt::Toolkit> toolkit_;
    QtHand hand_;
    Player* player_ = nullptr;
};

} // namespace quillmere::scenario

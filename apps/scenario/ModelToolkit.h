#pragma once

#include "scenario/ModelHand.h"
#include "scenario/Toolkit.h"

#include "platform/ui/ScreenlessDesktop.h"

namespace quillmere::scenario {

/// The widget model alone, without a screen.
class ModelToolkit final : public Toolkit, private ui::ScreenlessPerson {
public:
    ModelToolkit();
    ~ModelToolkit() override;

    void employ(Player* player) override { player_ = player; }
    Hand& hand() override { return hand_; }
    void takePicture(const std::string& /*path*/) override {}
    /// There is no loop: a failure comes out of the operation that met it.
    [[nodiscard]] bool isFailing() const override { return false; }

private:
    ui::Answer answer(const ui::MessageBox& box) override;
    void work(ui::Form& form) override;
    std::string choose(const ui::FileDialog& dialog) override;
    void hearBeep() override;
    void seeOpened(ui::Form& form) override;
    void seeClosed(ui::Form& form) override;

    ui::ScreenlessDesktop desktop_;
    ModelHand hand_;
    Player* player_ = nullptr;
};

} // namespace quillmere::scenario

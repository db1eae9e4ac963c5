#include "scenario/Player.h"
#include "scenario/Engine.h"
#include "scenario/ModelToolkit.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>

// What a player does with what a toolkit puts in front, apart from any window of the system.

namespace quillmere::scenario {

namespace {

class PlayerTest : public testing::Test {
protected:
    /// Something in front of a player of `script`; what it came to.
    template <class Work>
    auto inFront(std::string_view script, const Work& work) {
        Player player{Script(script), scene};
        toolkit.employ(&player);
        return work(player);
    }

    ui::Answer answer(std::string_view script, const ui::MessageBox& box) {
        return inFront(script, [&](Player&) { return ui::desktop().msgBox(box); });
    }

    std::string choose(std::string_view script, const ui::FileDialog& dialog) {
        return inFront(script, [&](Player&) { return ui::desktop().openFile(dialog); });
    }

    ModelToolkit toolkit;
    std::ostringstream out;
    Transcript transcript{out};
    std::unique_ptr<Engine> engine = makeEngine("sqlite");
    Scene scene{transcript, toolkit, *engine};
};

TEST_F(PlayerTest, ABoxIsShownWithAllThatItHas) {
    using ui::Buttons;
    using ui::Icon;
    (void)answer("answer ok", {"文字", "标题", Buttons::Ok, Icon::Information});
    (void)answer("answer ok", {"a\r\nb", "", Buttons::Ok, Icon::None});
    (void)answer("answer yes", {"", "", Buttons::YesNo, Icon::Warning});
    (void)answer("answer no", {"", "", Buttons::YesNo, Icon::Question});
    (void)answer("answer ok", {"", "", Buttons::Ok, Icon::Error});
    EXPECT_EQ(out.str(), "MSG 标题|文字|ok|information\n> answer ok\n"
                         "MSG |a\\r\\nb|ok|none\n> answer ok\n"
                         "MSG ||yesno|warning\n> answer yes\n"
                         "MSG ||yesno|question\n> answer no\n"
                         "MSG ||ok|error\n> answer ok\n");
}

TEST_F(PlayerTest, AnAnswerPressesItsButton) {
    EXPECT_EQ(answer("answer ok", {}), ui::Answer::Ok);
    EXPECT_EQ(answer("answer yes", {"", "", ui::Buttons::YesNo}), ui::Answer::Yes);
    EXPECT_EQ(answer("answer no", {"", "", ui::Buttons::YesNo}), ui::Answer::No);
}

TEST_F(PlayerTest, ABoxStandsForPicturesUntilItsAnswer) {
    EXPECT_EQ(answer("shot asked\nshot again\nanswer yes", {"", "", ui::Buttons::YesNo}), ui::Answer::Yes);
    EXPECT_EQ(out.str(), "MSG ||yesno|none\n> shot asked\n> shot again\n> answer yes\n");
}

TEST_F(PlayerTest, APictureOfABoxNeedsItsName) {
    EXPECT_THROW((void)answer("shot\nanswer ok", {}), Stop);
    EXPECT_THROW((void)answer("shot asked", {}), Stop);
}

TEST_F(PlayerTest, AFileDialogIsShownAndTakesANameOrNone) {
    const ui::FileDialog dialog{"图片|*.jpg", "photos"};
    EXPECT_EQ(choose("choose a.jpg", dialog), "a.jpg");
    EXPECT_EQ(choose("choose none", dialog), "");
    EXPECT_EQ(out.str(),
              "FILEDIALOG 图片|*.jpg|photos\n> choose a.jpg\nFILEDIALOG 图片|*.jpg|photos\n> choose none\n");
}

TEST_F(PlayerTest, AChosenNameIsAFileOfThePhotoDirectory) {
    scene.photos.make("player-test");
    EXPECT_EQ(choose("choose a.jpg", {}), "player-test/a.jpg");
    EXPECT_EQ(choose("choose /elsewhere/a.jpg", {}), "/elsewhere/a.jpg");
}

TEST_F(PlayerTest, AFileDialogTakesOnlyAChoice) {
    EXPECT_THROW((void)choose("answer ok", {}), Stop);
    EXPECT_THROW((void)choose("toolbar Save", {}), Stop);
    EXPECT_THROW((void)choose("", {}), Stop);
}

TEST_F(PlayerTest, ABeepIsHeard) {
    inFront("", [](Player&) { ui::desktop().beep(); });
    EXPECT_EQ(out.str(), "BEEP\n");
}

TEST_F(PlayerTest, AfterAStopNoLineIsReadAnyMore) {
    inFront("frobnicate\nanswer ok", [](Player& player) {
        EXPECT_THROW(player.play(), Stop);
        EXPECT_THROW((void)ui::desktop().msgBox({}), Stop);
    });
    EXPECT_EQ(out.str(), "> frobnicate\n");
}

} // namespace

} // namespace quillmere::scenario

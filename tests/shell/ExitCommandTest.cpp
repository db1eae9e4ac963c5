#include "shell/RecordCommandTest.h"

// Exit: its question, and what the host is told.

namespace quillmere::test {

namespace {

class ExitCommand : public RecordCommandTest {
protected:
    /// A run in which the name is changed and Exit pressed; whether the window stands afterwards.
    bool changeAndExit() {
        bool stands = true;
        told = run(4, id, 2, [&](frmPersonWh& shown) {
            type("A01_A0101_v", "新");
            journal.clear();
            press("Exit");
            stands = shown.isOpen();
        });
        return stands;
    }
    [[nodiscard]] std::string storedName() { return database.cell("select A0101 from A01"); }

    bool told = true; // What the last run told the host.
};

TEST_F(ExitCommand, WithoutEditsAsksNothing) {
    run(4, id, 2, [this](frmPersonWh& shown) {
        journal.clear();
        press("Exit");
        EXPECT_FALSE(shown.isOpen());
        EXPECT_EQ(journal.lines(), Lines{"- A1ctrlUserA01"});
    });
}

TEST_F(ExitCommand, LeavesWithoutTheEditsOnNo) {
    person.expectBox(keepEditsAtExit, windowTitle, ui::Answer::No);
    EXPECT_FALSE(changeAndExit());
    EXPECT_FALSE(told);
    EXPECT_EQ(journal.lines(), (Lines{box(windowTitle, keepEditsAtExit), "- A1ctrlUserA01"}));
    EXPECT_EQ(storedName(), "秦志明");
    EXPECT_EQ(person.boxes().at(0).buttons, ui::Buttons::YesNo);
}

TEST_F(ExitCommand, StoresTheEditsOnYesAndLeavesWithoutTellingTheHost) {
    person.expectBox(keepEditsAtExit, windowTitle, ui::Answer::Yes);
    EXPECT_FALSE(changeAndExit());
    EXPECT_FALSE(told);
    EXPECT_EQ(storedName(), "新秦志明");
    const Lines lines = story();
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[0], box(windowTitle, keepEditsAtExit));
    EXPECT_TRUE(lines[1].starts_with("SQL update A01 set A0101 = '新秦志明',"));
    EXPECT_EQ(lines[4], "- A1ctrlUserA01");
}

TEST_F(ExitCommand, StaysInTheWindowWhereSaveIsRefused) {
    person.expectBox(keepEditsAtExit, windowTitle, ui::Answer::Yes);
    person.expectBox("断线", "信息保存");
    database.failing().failOn("update A01", "断线");
    EXPECT_TRUE(changeAndExit());
    EXPECT_EQ(journal.lines().back(), "- A1ctrlUserA01");
    EXPECT_EQ(journal.count("BOX"), 2);
    EXPECT_EQ(storedName(), "秦志明");
}

TEST_F(ExitCommand, TellsTheHostOfARecordThatTheButtonSavedEarlier) {
    person.expectBox(saved, "提示");
    person.expectBox(keepEditsAtExit, windowTitle, ui::Answer::No);
    EXPECT_TRUE(run(4, id, 2, [](frmPersonWh&) {
        press("Save");
        type("A01_A0101_v", "新");
        press("Exit");
    }));
}

} // namespace

} // namespace quillmere::test

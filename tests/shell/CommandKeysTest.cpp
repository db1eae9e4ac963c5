#include "shell/RecordCommandTest.h"

// Which command a button stands for.

namespace quillmere::test {

namespace {

using CommandKeys = RecordCommandTest;

TEST_F(CommandKeys, AreComparedExactlyAndAnyOtherKeyDoesNothing) {
    run(4, id, 2, [this](frmPersonWh& shown) {
        type("A01_A0101_v", "新");
        ui::Toolbar others("others");
        journal.clear();
        for (const char* key :
             {"add", "ADD", "Add ", "", "Modify", "PrePerson", "NextPerson", "PreItem", "NextItem"})
            shown.TbMain_ButtonClick(others.addButton(key, ""));
        EXPECT_EQ(journal.lines(), Lines{});
        EXPECT_TRUE(shown.isOpen());
        EXPECT_EQ(text("A01_A0101_v"), "新秦志明");
    });
}

TEST_F(CommandKeys, DoNothingOnAWindowWithoutAPanelExitIncluded) {
    run(9, id, 2, [this](frmPersonWh& shown) {
        ASSERT_EQ(panelName(), "(none)");
        journal.clear();
        for (const char* key : {"Add", "Delete", "Save", "Cancel", "Exit"}) {
            press(key);
            EXPECT_EQ(journal.lines(), Lines{}) << key;
            EXPECT_TRUE(shown.isOpen()) << key;
        }
        EXPECT_FALSE(shown.IsSaved);
    });
}

} // namespace

} // namespace quillmere::test

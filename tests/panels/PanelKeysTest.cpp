#include "panels/PanelBench.h"

namespace quillmere {
namespace {

using Clicks = std::vector<std::string>;

using PanelKeysTest = test::PanelBench;

TEST_F(PanelKeysTest, CtrlNAndCtrlSClickTheirButtonWhenItIsEnabled) {
    A1ctrlUser& panel = open(setRow);
    window.toolbarButton("Save").setEnabled(true);
    press(panel, 78);
    EXPECT_EQ(window.clicked, (Clicks{"Add"}));
    press(panel, 83);
    EXPECT_EQ(window.clicked, (Clicks{"Add", "Save"}));
}

TEST_F(PanelKeysTest, ADisabledButtonIsNotClicked) {
    A1ctrlUser& panel = prepare(setRow);
    press(panel, 78);
    press(panel, 83);
    EXPECT_TRUE(window.clicked.empty());
}

TEST_F(PanelKeysTest, CtrlCommaAndCtrlPeriodMoveBetweenTheRecords) {
    A1ctrlUser& panel = open(setRow);
    press(panel, 190);
    EXPECT_EQ(panel.WhInfo.id, 2);
    press(panel, 190);
    EXPECT_EQ(panel.WhInfo.id, 3);
    press(panel, 188);
    EXPECT_EQ(panel.WhInfo.id, 2);
}

TEST_F(PanelKeysTest, TheRecordKeysMakeTheGridLive) {
    A1ctrlUser& panel = open(setRow);
    stopLoading(panel);
    press(panel, 190);
    EXPECT_EQ(panel.WhInfo.id, 2);
}

TEST_F(PanelKeysTest, TheRecordKeysStopAtTheEnds) {
    A1ctrlUser& panel = open(setRow);
    press(panel, 188);
    EXPECT_EQ(panel.AdodcRs()->AbsolutePosition(), 1);
    panel.AdodcRs()->MoveLast();
    db.clearStatements();
    press(panel, 190);
    EXPECT_EQ(panel.AdodcRs()->AbsolutePosition(), 3);
    EXPECT_TRUE(db.statements().empty());
}

TEST_F(PanelKeysTest, BehindTheLastRecordTheRecordKeysDoNothing) {
    A1ctrlUser& panel = open(setRow);
    stopLoading(panel);
    panel.AdodcRs()->MoveLast();
    panel.AdodcRs()->MoveNext();
    press(panel, 190);
    press(panel, 188);
    EXPECT_TRUE(panel.AdodcRs()->EOF_());
    EXPECT_TRUE(db.statements().empty());
}

TEST_F(PanelKeysTest, BeforeTheFirstRecordOnlyTheNextKeyMoves) {
    A1ctrlUser& panel = open(setRow);
    stopLoading(panel);
    panel.AdodcRs()->MovePrevious();
    press(panel, 188);
    EXPECT_TRUE(panel.AdodcRs()->BOF());
    press(panel, 190);
    EXPECT_EQ(panel.AdodcRs()->AbsolutePosition(), 1);
}

TEST_F(PanelKeysTest, WithOneRecordTheRecordKeysDoNothing) {
    db.run("delete from T where T99 > 1");
    A1ctrlUser& panel = open(setRow);
    press(panel, 190);
    press(panel, 188);
    EXPECT_TRUE(db.statements().empty());
    EXPECT_EQ(panel.AdodcRs()->AbsolutePosition(), 1);
}

TEST_F(PanelKeysTest, OnlyCtrlAloneCounts) {
    A1ctrlUser& panel = open(setRow);
    window.toolbarButton("Save").setEnabled(true);
    for (const int shift : {0, 1, 3, 4, 6, 7}) {
        for (const int code : {78, 83, 188, 190})
            press(panel, code, shift);
    }
    EXPECT_TRUE(window.clicked.empty());
    EXPECT_EQ(panel.AdodcRs()->AbsolutePosition(), 1);
}

TEST_F(PanelKeysTest, AnyOtherKeyWithCtrlDoesNothing) {
    A1ctrlUser& panel = open(setRow);
    window.toolbarButton("Save").setEnabled(true);
    for (const int code : {77, 79, 82, 84, 187, 189, 191})
        press(panel, code);
    EXPECT_TRUE(window.clicked.empty());
    EXPECT_EQ(panel.AdodcRs()->AbsolutePosition(), 1);
}

TEST_F(PanelKeysTest, KeysReachThePanelFromItsFields) {
    A1ctrlUser& panel = open(setRow);
    person.show(window, [&](ui::Form& form) {
        form.moveFocus(*panel.find("T_T02_v"));
        form.pressKey({ui::key::Period, ui::shift::Ctrl});
        EXPECT_EQ(panel.WhInfo.id, 2);
    });
}

TEST_F(PanelKeysTest, AChangedRowAsksBeforeARecordKeyLeavesIt) {
    A1ctrlUser& panel = open(setRow);
    panel.WhInfo.IsChange = true;
    person.expectBox("数据已被修改并未保存，是否继续？", "", ui::Answer::No);
    press(panel, 190);
    EXPECT_EQ(panel.AdodcRs()->AbsolutePosition(), 1);
}

TEST_F(PanelKeysTest, TheApostropheIsSwallowed) {
    A1ctrlUser& panel = open(setRow);
    person.show(window, [&](ui::Form& form) {
        auto& box = on<ui::TextBox>(panel, "T_T01_v");
        box.setText("");
        form.moveFocus(box);
        test::typeText(form, "O'Brien\"‘’");
        EXPECT_EQ(box.Text(), "OBrien\"‘’");
    });
}

} // namespace
} // namespace quillmere

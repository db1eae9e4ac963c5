#include "shell/RecordCommandTest.h"

// Cancel: its question, the question of the reload behind it, and where the window stands then.

namespace quillmere::test {

namespace {

class CancelCommand : public RecordCommandTest {
protected:
    CancelCommand() {
        addStudy(1);
        addStudy(2);
    }
    [[nodiscard]] Lines reload() const { return gate(id) + replacedPanel("A1ctrlUserA02", "A1ctrlUserA02"); }
};

TEST_F(CancelCommand, WithoutEditsAsksNothingAndStandsOnTheFirstRecord) {
    run(4, id, 2, [this](frmPersonWh&) {
        open("A02");
        panel().AdodcRs()->MoveNext();
        ASSERT_EQ(panel().WhInfo.id, 2);
        journal.clear();
        press("Cancel");
        EXPECT_EQ(journal.count("BOX"), 0);
        EXPECT_EQ(journal.count("+ A1ctrlUserA02"), 1);
        EXPECT_EQ(panel().WhInfo.id, 1);
    });
}

TEST_F(CancelCommand, WithEditsEndsAtANo) {
    person.expectBox(dropEdits, windowTitle, ui::Answer::No);
    run(4, id, 2, [this](frmPersonWh&) {
        open("A02");
        type("A02_A0203_v", "新");
        journal.clear();
        press("Cancel");
        EXPECT_EQ(journal.lines(), Lines{box(windowTitle, dropEdits)});
        EXPECT_TRUE(panel().WhInfo.IsChange);
        EXPECT_EQ(text("A02_A0203_v"), "新学校1");
    });
    EXPECT_EQ(person.boxes().at(0).buttons, ui::Buttons::YesNo);
}

TEST_F(CancelCommand, WithEditsAsksTwiceAndDropsThemOnYesAndNo) {
    person.expectBox(dropEdits, windowTitle, ui::Answer::Yes);
    person.expectBox(keepEdits, windowTitle, ui::Answer::No);
    run(4, id, 2, [this](frmPersonWh&) {
        open("A02");
        type("A02_A0203_v", "新");
        journal.clear();
        press("Cancel");
        const Lines expected = Lines{box(windowTitle, dropEdits), box(windowTitle, keepEdits)} + reload();
        const Lines lines = story();
        ASSERT_GE(lines.size(), expected.size());
        expectLines(Lines(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(expected.size())),
                    expected);
        EXPECT_EQ(text("A02_A0203_v"), "学校1");
    });
    EXPECT_EQ(database.column("select A0203 from A02 order by A0299"), (Lines{"学校1", "学校2"}));
}

TEST_F(CancelCommand, WithEditsStoresThemAfterAllOnYesAndYes) {
    person.expectBox(dropEdits, windowTitle, ui::Answer::Yes);
    person.expectBox(keepEdits, windowTitle, ui::Answer::Yes);
    run(4, id, 2, [this](frmPersonWh& shown) {
        open("A02");
        type("A02_A0203_v", "新");
        journal.clear();
        press("Cancel");
        const Lines lines = story();
        ASSERT_GE(lines.size(), 12U);
        expectLines(Lines(lines.begin(), lines.begin() + 12),
                    (Lines{box(windowTitle, dropEdits), box(windowTitle, keepEdits),
                           sql("delete from A02 where A00='" + id + "'  and A0299 = 1"),
                           sql("insert into A02( A00 ,A0299,A0201,A0203,A0204,A0205) values('" + id +
                               "','1','2001-07','新学校1','','')"),
                           sql("update A02 set A0299 = A0299 +200 where a00='" + id + "'"),
                           sql("select * from A02 where A00 ='" + id + "' order by A0201"),
                           sql("update A02 set A0299 = 1 where a00='" + id + "' and A0299 = 201"),
                           sql("update A02 set A0299 = 2 where a00='" + id + "' and A0299 = 202")}) +
                        reload());
        EXPECT_EQ(text("A02_A0203_v"), "新学校1");
        EXPECT_FALSE(shown.IsSaved);
    });
}

TEST_F(CancelCommand, KeepsThePanelWhereTheSecondYesIsRefused) {
    person.expectBox(dropEdits, windowTitle, ui::Answer::Yes);
    person.expectBox(keepEdits, windowTitle, ui::Answer::Yes);
    person.expectBox("就读院校（系） 为必填项", "错误信息");
    run(4, id, 2, [this](frmPersonWh&) {
        open("A02");
        empty("A02_A0203_v");
        journal.clear();
        press("Cancel");
        expectLines(story(), (Lines{box(windowTitle, dropEdits), box(windowTitle, keepEdits),
                                    sql("delete from A02 where A00='" + id + "'  and A0299 = 1"),
                                    box("错误信息", "就读院校（系） 为必填项")}));
        EXPECT_TRUE(panel().WhInfo.IsChange);
        EXPECT_EQ(text("A02_A0203_v"), "");
    });
}

TEST_F(CancelCommand, WithoutEditsOnANewRecordOfASetWithRowsGoesBackToTheFirst) {
    run(4, id, 2, [this](frmPersonWh&) {
        open("A02");
        press("Add");
        ASSERT_EQ(panel().WhInfo.id, 3);
        press("Cancel");
        EXPECT_EQ(panel().WhInfo.id, 1);
        EXPECT_EQ(text("A02_A0203_v"), "学校1");
        EXPECT_EQ(labOpt(), modifyMode);
        EXPECT_TRUE(enabled("Add"));
        EXPECT_TRUE(enabled("Delete"));
        EXPECT_EQ(journal.count("BOX"), 0);
    });
}

TEST_F(CancelCommand, OnANewRecordOfASetWithoutRowsAddsAgain) {
    database.run("delete from A02");
    run(4, id, 2, [this](frmPersonWh&) {
        open("A02");
        journal.clear();
        press("Cancel");
        expectLines(story(),
                    reload() +
                        Lines{sql("select * from A02 where a00 ='" + id + "' and A0299=1"),
                              "toolbar Add on, Delete off", "toolbar Add on, Delete on", "frmCtrl off"} +
                        limitOfStudies() + nextStudy(1) + Lines{"frmCtrl on"} + addAndDelete(false));
        EXPECT_EQ(labOpt(), addMode);
        EXPECT_FALSE(enabled("Add"));
    });
}

TEST_F(CancelCommand, InWorkState0EnablesAddOnceTheReloadIsOver) {
    run(0, "{8A1C44E0-5B7D-4F13-9A60-27D1C3E5F901}", 2, [this](frmPersonWh&) {
        journal.clear();
        press("Cancel");
        EXPECT_EQ(journal.lines().back(), "toolbar Add on, Delete off");
        EXPECT_FALSE(enabled("Delete"));
    });
}

} // namespace

} // namespace quillmere::test

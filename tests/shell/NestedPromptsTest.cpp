#include "shell/RecordCommandTest.h"

#include <algorithm>

// Commands run inside commands: the questions of the inner one come in the middle of the outer one.

namespace quillmere::test {

namespace {

constexpr auto newIdentity = "{8A1C44E0-5B7D-4F13-9A60-27D1C3E5F901}";

class NestedPrompts : public RecordCommandTest {
protected:
    [[nodiscard]] Lines boxes() const {
        Lines found;
        std::ranges::copy_if(journal.lines(), std::back_inserter(found),
                             [](const std::string& line) { return line.starts_with("BOX "); });
        return found;
    }
    /// What the insert of a new person tells, long lists of columns cut.
    [[nodiscard]] Lines shortStory() const {
        Lines lines = story();
        for (std::string& line : lines) {
            if (line.starts_with("SQL insert into A01(")) line = "SQL insert into A01";
        }
        return lines;
    }
    [[nodiscard]] static Lines storingPerson(const std::string& made) {
        return {sql("select iif(max(A0199) is null,0,max(A0199)) from a01  "),
                sql("select count(*) from A01 where A0101 = '张三'"),
                "SQL insert into A01",
                sql("select iif(a0101 is null,'',a0101) from a01 where a00='" + made + "'"),
                "name 张三",
                sql("insert into P01 (A00,P0123,P0120) values('" + made + "','01','')")};
    }
};

TEST_F(NestedPrompts, AClickStoresAPersonThenOpensAnEmptySetWhichAddsARecord) {
    person.expectBox(keepEdits, windowTitle, ui::Answer::Yes);
    run(0, newIdentity, 2, [this](frmPersonWh& shown) {
        type("A01_A0101_v", "张三");
        journal.clear();
        const std::string made = shown.personID;
        open("A02");
        const Lines add{
            sql("select iif(maxnumber is null,0,maxnumber) as maxnumber from  s_infotable  where tblname "
                "='A02'"),
            sql("select count(*) from A02 where a00='" + made + "'"),
            sql("select iif(max(A0299) is null,0,max(A0299))+1  from A02 where A00 ='" + made + "' "),
            sql("select * from A02 where a00 ='" + made + "' and A0299=1"),
            "frmCtrl on",
            "toolbar Add off, Delete on",
            "toolbar Add off, Delete off"};
        expectLines(shortStory(), Lines{box(windowTitle, keepEdits)} + storingPerson(made) + gate(made) +
                                      replacedPanel("A1ctrlUserA01", "A1ctrlUserA02") + addAndDelete(true) +
                                      Lines{"frmCtrl off"} + add);
        // Stored by a question: the window still takes the person for a new one.
        EXPECT_FALSE(shown.IsSaved);
        EXPECT_EQ(shown.WhState(), 0);
    });
}

TEST_F(NestedPrompts, AClickEndsWhereTheNameIsRefusedAndThePositionIsNotTouched) {
    person.expectBox(keepEdits, windowTitle, ui::Answer::Yes);
    person.expectBox(sameName, "提示", ui::Answer::No);
    run(0, newIdentity, 2, [this](frmPersonWh& shown) {
        type("A01_A0101_v", "秦志明");
        journal.clear();
        shown.VMenu1_ItemClick(1, 2);
        expectLines(
            story(),
            (Lines{box(windowTitle, keepEdits), sql("select iif(max(A0199) is null,0,max(A0199)) from a01  "),
                   sql("select count(*) from A01 where A0101 = '秦志明'"), box("提示", sameName)}));
        EXPECT_EQ(shown.menu().AddressedItem(), 1);
        EXPECT_EQ(panelName(), "A1ctrlUserA01");
        EXPECT_TRUE(panel().WhInfo.IsChange);
    });
}

TEST_F(NestedPrompts, CancelAsksTwiceThenAboutTheNameAndNoToThatKeepsThePanel) {
    person.expectBox(dropEdits, windowTitle, ui::Answer::Yes);
    person.expectBox(keepEdits, windowTitle, ui::Answer::Yes);
    person.expectBox(sameName, "提示", ui::Answer::No);
    run(0, newIdentity, 2, [this](frmPersonWh&) {
        type("A01_A0101_v", "秦志明");
        journal.clear();
        press("Cancel");
        EXPECT_EQ(boxes(),
                  (Lines{box(windowTitle, dropEdits), box(windowTitle, keepEdits), box("提示", sameName)}));
        EXPECT_EQ(journal.count("- "), 0);
        EXPECT_EQ(text("A01_A0101_v"), "秦志明");
        // The reload ended early, and Cancel goes on behind it.
        EXPECT_TRUE(enabled("Add"));
    });
    EXPECT_EQ(database.column("select A00 from A01"), Lines{id});
}

TEST_F(NestedPrompts, CancelThatStoresANewPersonShowsTheStateOfANewOne) {
    person.expectBox(dropEdits, windowTitle, ui::Answer::Yes);
    person.expectBox(keepEdits, windowTitle, ui::Answer::Yes);
    run(0, newIdentity, 2, [this](frmPersonWh& shown) {
        type("A01_A0101_v", "张三");
        journal.clear();
        const std::string made = shown.personID;
        press("Cancel");
        expectLines(shortStory(), Lines{box(windowTitle, dropEdits)} + Lines{box(windowTitle, keepEdits)} +
                                      storingPerson(made) + gate(made) +
                                      replacedPanel("A1ctrlUserA01", "A1ctrlUserA01") + addAndDelete(true));
        EXPECT_EQ(shown.WhState(), 0);
        EXPECT_FALSE(shown.IsSaved);
        EXPECT_EQ(shown.personID, made);
        EXPECT_EQ(labOpt(), modifyMode);
        // Work state 0 loads no values.
        EXPECT_EQ(text("A01_A0101_v"), "");
    });
}

TEST_F(NestedPrompts, AddStoresANewPersonThenBeginsTheNext) {
    person.expectBox(keepEdits, "", ui::Answer::Yes);
    run(0, newIdentity, 2, [this](frmPersonWh& shown) {
        press("Cancel");
        type("A01_A0101_v", "张三");
        journal.clear();
        const std::string made = shown.personID;
        press("Add");
        const Lines expected = Lines{box("", keepEdits)} + storingPerson(made);
        const Lines lines = shortStory();
        ASSERT_GT(lines.size(), expected.size());
        expectLines(Lines(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(expected.size())),
                    expected);
        EXPECT_NE(shown.personID, made);
        EXPECT_EQ(shown.WhState(), 0);
        EXPECT_EQ(shown.nameLabel().Caption(), "");
    });
    EXPECT_EQ(database.cell("select count(*) from A01"), "2");
}

TEST_F(NestedPrompts, ExitAsksAboutTheNameInTheMiddleAndNoKeepsTheWindow) {
    person.expectBox(keepEditsAtExit, windowTitle, ui::Answer::Yes);
    person.expectBox(sameName, "提示", ui::Answer::No);
    run(0, newIdentity, 2, [this](frmPersonWh& shown) {
        type("A01_A0101_v", "秦志明");
        journal.clear();
        press("Exit");
        EXPECT_EQ(boxes(), (Lines{box(windowTitle, keepEditsAtExit), box("提示", sameName)}));
        EXPECT_TRUE(shown.isOpen());
    });
}

TEST_F(NestedPrompts, AClickOnASetWhoseRowsHaveNoNumberMeetsTheLimitInsideIt) {
    // The click counts numbered rows only, the limit counts them all.
    addStudy(0);
    database.run("update s_infotable set maxnumber=1 where tblname='A02'");
    person.expectBox("此信息集最多只能录入1条记录。", windowTitle);
    run(4, id, 2, [this](frmPersonWh& shown) {
        journal.clear();
        open("A02");
        const Lines lines = story();
        ASSERT_GE(lines.size(), 4U);
        expectLines(Lines(lines.end() - 4, lines.end()),
                    Lines{"frmCtrl off"} + limitOfStudies() +
                        Lines{box(windowTitle, "此信息集最多只能录入1条记录。")});
        // The click goes on behind the message; nothing has opened the frame.
        EXPECT_EQ(journal.lines().back(),
                  sql("select iif(tbldesc is null,'',tbldesc)  from s_infotable where tblname ='A02'"));
        EXPECT_FALSE(shown.panelFrame().Enabled());
        EXPECT_TRUE(enabled("Add"));
    });
}

TEST_F(NestedPrompts, SaveItsReloadAndItsAddAskNothingAboutEdits) {
    // The mark of a change is cleared before the reload.
    addStudy(1);
    run(4, id, 2, [this](frmPersonWh&) {
        open("A02");
        type("A02_A0203_v", "新");
        journal.clear();
        press("Save");
        EXPECT_EQ(boxes(), Lines{});
        EXPECT_EQ(labOpt(), addMode);
    });
}

TEST_F(NestedPrompts, ADeletedPersonWithEditsCannotBeStoredByTheQuestionOfTheReload) {
    person.expectBox(deletePerson, windowTitle, ui::Answer::Yes);
    person.expectBox(keepEdits, windowTitle, ui::Answer::Yes);
    person.expectBox("BOF 或 EOF 中有一个是“真”，或者当前的记录已被删除，所需的操作要求一个当前的记录。",
                     "信息保存");
    run(4, id, 2, [this](frmPersonWh& shown) {
        type("A01_A0101_v", "新");
        journal.clear();
        press("Delete");
        const Lines lines = story();
        ASSERT_EQ(lines.size(), 7U);
        expectLines(Lines(lines.begin(), lines.begin() + 4),
                    (Lines{box(windowTitle, deletePerson), sql("delete from A01 where A00='" + id + "' "),
                           sql("delete from P01 where A00='" + id + "'"), box(windowTitle, keepEdits)}));
        EXPECT_TRUE(lines[4].starts_with("SQL update A01 set "));
        EXPECT_EQ(shown.personID, id);
        EXPECT_EQ(shown.WhState(), 4);
        EXPECT_EQ(text("A01_A0101_v"), "新秦志明");
    });
    EXPECT_EQ(database.column("select A00 from A01"), Lines{});
}

} // namespace

} // namespace quillmere::test

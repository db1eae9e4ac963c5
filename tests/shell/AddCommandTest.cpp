#include "shell/RecordCommandTest.h"

// Add: the limit, the question about edits, the number that is taken, and the new person.

namespace quillmere::test {

namespace {

class AddCommand : public RecordCommandTest {
protected:
    AddCommand() {
        addStudy(1);
        addStudy(2);
    }
    void limit(int records) {
        database.run("update s_infotable set maxnumber=" + std::to_string(records) + " where tblname='A02'");
    }
};

TEST_F(AddCommand, AtTheLimitNamesItBeforeAnyQuestionAboutTheEditsOnShow) {
    limit(2);
    person.expectBox("此信息集最多只能录入2条记录。", windowTitle);
    run(4, id, 2, [this](frmPersonWh&) {
        open("A02");
        type("A02_A0203_v", "新");
        journal.clear();
        press("Add");
        EXPECT_EQ(journal.lines(),
                  limitOfStudies() + Lines{box(windowTitle, "此信息集最多只能录入2条记录。")});
        EXPECT_TRUE(panel().WhInfo.IsChange);
        EXPECT_EQ(panel().WhInfo.id, 1);
        EXPECT_EQ(text("A02_A0203_v"), "新学校1");
        EXPECT_EQ(labOpt(), modifyMode);
    });
    EXPECT_EQ(person.boxes().at(0).buttons, ui::Buttons::Ok);
}

TEST_F(AddCommand, WithoutEditsAsksNothing) {
    run(4, id, 2, [this](frmPersonWh&) {
        open("A02");
        journal.clear();
        press("Add");
        expectLines(story(), limitOfStudies() + nextStudy(3) + addAndDelete(false));
        EXPECT_EQ(panel().WhInfo.id, 3);
        EXPECT_EQ(labOpt(), addMode);
    });
}

TEST_F(AddCommand, AsksAboutEditsBehindTheLimitAndDropsThemOnNo) {
    person.expectBox(keepEdits, "", ui::Answer::No);
    run(4, id, 2, [this](frmPersonWh&) {
        open("A02");
        type("A02_A0203_v", "新");
        journal.clear();
        press("Add");
        expectLines(story(),
                    limitOfStudies() + Lines{box("", keepEdits)} + nextStudy(3) + addAndDelete(false));
        EXPECT_FALSE(panel().WhInfo.IsChange);
        EXPECT_EQ(text("A02_A0203_v"), "");
        EXPECT_EQ(labOpt(), addMode);
    });
    EXPECT_EQ(person.boxes().at(0).buttons, ui::Buttons::YesNo);
    EXPECT_EQ(database.column("select A0203 from A02 order by A0299"), (Lines{"学校1", "学校2"}));
}

TEST_F(AddCommand, StoresTheEditsOnYesBeforeItTakesTheNextNumber) {
    person.expectBox(keepEdits, "", ui::Answer::Yes);
    run(4, id, 2, [this](frmPersonWh& shown) {
        open("A02");
        type("A02_A0203_v", "新");
        journal.clear();
        press("Add");
        const Lines storing{sql("delete from A02 where A00='" + id + "'  and A0299 = 1"),
                            sql("insert into A02( A00 ,A0299,A0201,A0203,A0204,A0205) values('" + id +
                                "','1','2001-07','新学校1','','')"),
                            sql("update A02 set A0299 = A0299 +200 where a00='" + id + "'"),
                            sql("select * from A02 where A00 ='" + id + "' order by A0201"),
                            sql("update A02 set A0299 = 1 where a00='" + id + "' and A0299 = 201"),
                            sql("update A02 set A0299 = 2 where a00='" + id + "' and A0299 = 202")};
        expectLines(story(), limitOfStudies() + Lines{box("", keepEdits)} + storing + nextStudy(3) +
                                 addAndDelete(false));
        EXPECT_FALSE(shown.IsSaved);
    });
}

TEST_F(AddCommand, EndsWhereTheRecordIsRefused) {
    person.expectBox(keepEdits, "", ui::Answer::Yes);
    person.expectBox("就读院校（系） 为必填项", "错误信息");
    run(4, id, 2, [this](frmPersonWh&) {
        open("A02");
        empty("A02_A0203_v");
        journal.clear();
        press("Add");
        expectLines(story(),
                    limitOfStudies() + Lines{box("", keepEdits),
                                             sql("delete from A02 where A00='" + id + "'  and A0299 = 1"),
                                             box("错误信息", "就读院校（系） 为必填项")});
        EXPECT_TRUE(panel().WhInfo.IsChange);
        EXPECT_EQ(panel().WhInfo.id, 1);
        EXPECT_EQ(labOpt(), modifyMode);
        EXPECT_TRUE(enabled("Add"));
    });
}

TEST_F(AddCommand, TakesTheNumberAtOnceAndNotWhenTheRecordIsSaved) {
    run(4, id, 2, [this](frmPersonWh&) {
        open("A02");
        press("Add");
        addStudy(7);
        type("A02_A0203_v", "新");
        EXPECT_EQ(panel().WhInfo.id, 3);
    });
}

TEST_F(AddCommand, TakesNumber1ForTheFirstRecordOfAPerson) {
    database.run("delete from A02");
    run(4, id, 2, [](frmPersonWh&) {
        open("A02");
        EXPECT_EQ(panel().WhInfo.id, 1);
        EXPECT_EQ(labOpt(), addMode);
    });
}

TEST_F(AddCommand, BeyondA16BitNumberFails) {
    database.run("update A02 set A0299=32767 where A0299=2");
    EXPECT_EQ(failureOf([&] {
                  run(4, id, 2, [](frmPersonWh&) {
                      open("A02");
                      press("Add");
                  });
              }),
              number(Failure::Overflow));
}

TEST_F(AddCommand, LooksNeitherAtItsButtonNorAtALimitOnASingleRecordSet) {
    database.run("update s_infotable set maxnumber=1 where tblname='A10'");
    database.run("insert into A10 (A00,A1001) values ('" + id + "','创新')");
    run(4, id, 2, [this](frmPersonWh&) {
        open("A10");
        EXPECT_FALSE(enabled("Add"));
        panel().WhInfo.id = 5;
        journal.clear();
        command("Add");
        expectLines(story(), Lines{sql("select * from A10 where a00 ='" + id + "'")});
        EXPECT_EQ(panel().WhInfo.id, 0);
        EXPECT_EQ(labOpt(), addMode);
    });
}

TEST_F(AddCommand, OnAPersonWithEditsAnsweredNoReplacesTheIdentityAndLeavesTheOldRecordAsStored) {
    person.expectBox(keepEdits, "", ui::Answer::No);
    run(4, id, 2, [this](frmPersonWh& shown) {
        type("A01_A0101_v", "新");
        journal.clear();
        press("Add");
        const std::string made = shown.personID;
        EXPECT_NE(made, id);
        expectLines(story(),
                    Lines{box("", keepEdits)} + addAndDelete(false) +
                        Lines{sql(" delete from S_GUID "), sql("insert into S_GUID(val) values('a')"),
                              sql("select id from S_GUID where val='a'"),
                              sql("select * from A01 where a00 ='" + made + "'"), "name "});
        EXPECT_EQ(panel().WhInfo.personID, made);
        EXPECT_EQ(shown.WhState(), 0);
        EXPECT_EQ(labOpt(), addMode);
    });
    EXPECT_EQ(database.column("select A00||A0101 from A01"), Lines{id + "秦志明"});
}

TEST_F(AddCommand, OnAPersonWithEditsAnsweredYesStoresThemUnderTheOldIdentityFirst) {
    person.expectBox(keepEdits, "", ui::Answer::Yes);
    run(4, id, 2, [this](frmPersonWh& shown) {
        type("A01_A0101_v", "新");
        journal.clear();
        press("Add");
        const Lines lines = story();
        ASSERT_GE(lines.size(), 4U);
        EXPECT_EQ(lines[0], box("", keepEdits));
        EXPECT_TRUE(lines[1].starts_with("SQL update A01 set A0101 = '新秦志明',")) << lines[1];
        EXPECT_TRUE(lines[1].ends_with(" where A00='" + id + "'")) << lines[1];
        EXPECT_EQ(lines[2], sql("select iif(a0101 is null,'',a0101) from a01 where a00='" + id + "'"));
        EXPECT_EQ(lines[3], "name 新秦志明");
        EXPECT_EQ(lines.back(), "name ");
        EXPECT_NE(shown.personID, id);
        EXPECT_FALSE(shown.IsSaved);
    });
}

TEST_F(AddCommand, OnAUnitKeepsTheIdentityOfTheHost) {
    database.run("update ZZStyle set ZZType='6'");
    run(0, "{8A1C44E0-5B7D-4F13-9A60-27D1C3E5F901}", 6, [](frmPersonWh& shown) {
        ASSERT_EQ(panelName(), "A1ctrlUserB01");
        command("Add");
        EXPECT_EQ(shown.personID, "{8A1C44E0-5B7D-4F13-9A60-27D1C3E5F901}");
        EXPECT_EQ(shown.WhState(), 0);
        EXPECT_EQ(labOpt(), addMode);
    });
}

} // namespace

} // namespace quillmere::test

#include "platform/ui/MaskEdBox.h"
#include "shell/RecordCommandTest.h"

#include <algorithm>

// Save: what it does behind the stored record: the marks, the reload, the next record, the message.

namespace quillmere::test {

namespace {

class SaveCommand : public RecordCommandTest {
protected:
    void limit(int records) {
        database.run("update s_infotable set maxnumber=" + std::to_string(records) + " where tblname='A02'");
    }
    /// Types what a new study needs.
    static void typeStudy(std::string_view date) {
        ASSERT_TRUE(window().moveFocus(controlOf<ui::MaskEdBox>(window(), "A02_A0201_v")));
        typeText(window(), date);
        type("A02_A0203_v", "学校");
    }
    [[nodiscard]] Lines reload() const { return gate(id) + replacedPanel("A1ctrlUserA02", "A1ctrlUserA02"); }
    /// The reload reads record 1 for the panel and again for the first row that the grid arrives at.
    [[nodiscard]] Lines arrivingAtFirst() const {
        const std::string read = sql("select * from A02 where a00 ='" + id + "' and A0299=1");
        return Lines{read, read} + addAndDelete(true);
    }
    /// The story from this line on.
    [[nodiscard]] Lines from(const std::string& line) const {
        const Lines lines = story();
        return {std::ranges::find(lines, line), lines.end()};
    }
};

TEST_F(SaveCommand, BelowTheLimitTakesItReloadsAndGoesOnWithAnEmptyRecord) {
    run(4, id, 2, [this](frmPersonWh& shown) {
        open("A02");
        typeStudy("200109");
        journal.clear();
        press("Save");
        const Lines storing{sql("delete from A02 where A00='" + id + "'  and A0299 = 1"),
                            sql("insert into A02( A00 ,A0299,A0201,A0203,A0204,A0205) values('" + id +
                                "','1','2001-09','学校','','')"),
                            sql("update A02 set A0299 = A0299 +200 where a00='" + id + "'"),
                            sql("select * from A02 where A00 ='" + id + "' order by A0201"),
                            sql("update A02 set A0299 = 1 where a00='" + id + "' and A0299 = 201")};
        // The limit is asked for by Save before the reload, and by Add, which comes last, once more.
        expectLines(story(), storing + limitOfStudies() + reload() + arrivingAtFirst() + limitOfStudies() +
                                 nextStudy(2) + addAndDelete(false));
        EXPECT_EQ(panel().WhInfo.id, 2);
        EXPECT_EQ(labOpt(), addMode);
        EXPECT_TRUE(shown.IsSaved);
        EXPECT_EQ(shown.WhState(), 4);
    });
}

TEST_F(SaveCommand, ThatReachesTheLimitAddsNothingAndSaysNothing) {
    limit(2);
    addStudy(1);
    run(4, id, 2, [this](frmPersonWh&) {
        open("A02");
        press("Add");
        typeStudy("200909");
        journal.clear();
        press("Save");
        EXPECT_EQ(journal.count("BOX"), 0);
        // The count of the limit takes in the row that this save stored.
        expectLines(from(limitOfStudies().front()), limitOfStudies() + reload() + arrivingAtFirst());
        EXPECT_EQ(panel().WhInfo.id, 1);
        EXPECT_EQ(labOpt(), modifyMode);
        EXPECT_TRUE(enabled("Add"));
    });
    EXPECT_EQ(numbers(), (Lines{"1", "2"}));
}

TEST_F(SaveCommand, OnASingleRecordSetStaysOnTheSavedRecord) {
    run(4, id, 2, [this](frmPersonWh&) {
        open("A10");
        EXPECT_EQ(labOpt(), addMode);
        type("A10_A1001_v", "创新");
        journal.clear();
        press("Save");
        EXPECT_EQ(journal.count("BOX"), 0);
        EXPECT_EQ(journal.count("+ A1ctrlUserA10"), 1);
        EXPECT_EQ(labOpt(), modifyMode);
        EXPECT_EQ(text("A10_A1001_v"), "创新");
        EXPECT_FALSE(enabled("Add"));
    });
}

TEST_F(SaveCommand, OnAPersonTellsSuccessAfterThePanelIsRebuilt) {
    person.expectBox(saved, "提示");
    run(4, id, 2, [this](frmPersonWh&) {
        type("A01_A0101_v", "新");
        journal.clear();
        press("Save");
        const Lines lines = story();
        expectLines(Lines(lines.end() - 6, lines.end()),
                    gate(id) + replacedPanel("A1ctrlUserA01", "A1ctrlUserA01") +
                        Lines{sql("select * from A01 where a00 ='" + id + "'"), box("提示", saved)});
        EXPECT_EQ(journal.lines().back(), box("提示", saved));
        EXPECT_EQ(labOpt(), modifyMode);
    });
    EXPECT_EQ(person.boxes().at(0).buttons, ui::Buttons::Ok);
}

TEST_F(SaveCommand, OnAUnitTellsSuccessAfterThePanelIsRebuilt) {
    addUnit(someUnit, "第一测绘院");
    person.expectBox(saved, "提示");
    run(4, someUnit, 6, [this](frmPersonWh&) {
        ASSERT_EQ(panelName(), "A1ctrlUserB01");
        journal.clear();
        press("Save");
        const Lines lines = story();
        const Lines rebuilt = replacedPanel("A1ctrlUserB01", "A1ctrlUserB01");
        EXPECT_NE(std::ranges::search(lines, rebuilt).begin(), lines.end());
        EXPECT_EQ(journal.lines().back(), box("提示", saved));
        EXPECT_EQ(journal.count("BOX"), 1);
    });
}

TEST_F(SaveCommand, OnAnotherSetTellsNothing) {
    addStudy(1);
    run(4, id, 2, [this](frmPersonWh&) {
        open("A02");
        journal.clear();
        press("Save");
        EXPECT_EQ(journal.count("BOX"), 0);
        EXPECT_EQ(journal.count("+ A1ctrlUserA02"), 1);
    });
}

TEST_F(SaveCommand, OnANewPersonLoadsTheStoredRowSinceTheWorkStateIsSetBeforeTheReload) {
    person.expectBox(saved, "提示");
    run(0, "{8A1C44E0-5B7D-4F13-9A60-27D1C3E5F901}", 2, [this](frmPersonWh& shown) {
        type("A01_A0101_v", "张三");
        journal.clear();
        press("Save");
        EXPECT_EQ(journal.lines().back(), box("提示", saved));
        const Lines reloaded = journal.after("+ A1ctrlUserA01");
        EXPECT_NE(std::ranges::find(reloaded, sql("select * from A01 where a00 ='" + shown.personID + "'")),
                  reloaded.end());
        EXPECT_EQ(text("A01_A0101_v"), "张三");
        EXPECT_EQ(shown.WhState(), 4);
    });
}

TEST_F(SaveCommand, ThatIsRefusedDoesNothingFurther) {
    person.expectBox("姓名 为必填项", "错误信息");
    run(4, id, 2, [this](frmPersonWh& shown) {
        empty("A01_A0101_v");
        journal.clear();
        press("Save");
        EXPECT_EQ(journal.lines(), Lines{box("错误信息", "姓名 为必填项")});
        EXPECT_FALSE(shown.IsSaved);
        EXPECT_TRUE(panel().WhInfo.IsChange);
        EXPECT_EQ(text("A01_A0101_v"), "");
    });
}

TEST_F(SaveCommand, WhoseReloadFailsHasSavedAllTheSame) {
    addStudy(1);
    IUserCtrl host;
    give(host, 4, id);
    EXPECT_EQ(failureOf([&] {
                  run(host, [this](frmPersonWh&) {
                      open("A02");
                      type("A02_A0203_v", "新");
                      database.failing().failOn("select count(A00) from a01", "断线");
                      press("Save");
                  });
              }),
              number(Failure::StatementFailed));
    EXPECT_TRUE(window().IsSaved);
    EXPECT_EQ(database.column("select A0203 from A02"), Lines{"新学校1"});
}

// A new person of whom half is stored.

class HalfSavedPerson : public RecordCommandTest {
protected:
    /// Saves a new person with this statement failing, then does the rest.
    void runNewPerson(const char* failing, const std::function<void(frmPersonWh&)>& rest) {
        person.expectBox("断线", "信息保存");
        run(0, "{8A1C44E0-5B7D-4F13-9A60-27D1C3E5F901}", 2, [&](frmPersonWh& shown) {
            type("A01_A0101_v", "张三");
            database.failing().failOn(failing, "断线");
            journal.clear();
            press("Save");
            EXPECT_EQ(journal.lines().back(), box("信息保存", "断线"));
            EXPECT_EQ(shown.WhState(), 0);
            EXPECT_FALSE(shown.IsSaved);
            EXPECT_TRUE(panel().WhInfo.IsChange);
            EXPECT_EQ(database.column("select A0101 from A01 where A00='" + shown.personID + "'"),
                      Lines{"张三"});
            EXPECT_EQ(database.column("select A00 from P01 where A00='" + shown.personID + "'"), Lines{});
            rest(shown);
        });
    }
};

TEST_F(HalfSavedPerson, ByAFailingLabelQueryIsRefusedByTheDatabaseWhenSavedAgain) {
    runNewPerson("select iif(a0101", [this](frmPersonWh& shown) {
        person.expectBox(sameName, "提示", ui::Answer::Yes);
        person.expectBox("数据重复，违反唯一性约束：UNIQUE constraint failed: A01.A00", "信息保存");
        press("Save");
        EXPECT_EQ(shown.nameLabel().Caption(), "");
        EXPECT_EQ(shown.WhState(), 0);
        EXPECT_EQ(database.column("select A00 from A01 where A0101='张三'"), Lines{shown.personID});
    });
    EXPECT_EQ(database.column("select A00 from P01"), Lines{id});
}

TEST_F(HalfSavedPerson, ByAFailingProjectRowHasItsNameOverThePanel) {
    runNewPerson("insert into P01",
                 [](frmPersonWh& shown) { EXPECT_EQ(shown.nameLabel().Caption(), "张三"); });
}

TEST_F(HalfSavedPerson, IsABaseRecordForTheOtherSets) {
    runNewPerson("select iif(a0101", [this](frmPersonWh&) {
        person.expectBox(keepEdits, windowTitle, ui::Answer::No);
        open("A02");
        EXPECT_EQ(panelName(), "A1ctrlUserA02");
    });
}

} // namespace

} // namespace quillmere::test

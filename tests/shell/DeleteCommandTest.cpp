#include "shell/RecordCommandTest.h"

// Delete: its question, what it removes, the numbers that it closes up or leaves, and the reload.

namespace quillmere::test {

namespace {

class DeleteCommand : public RecordCommandTest {
protected:
    /// Deletes the study on show; `edits` answers the question about edits, where one comes.
    void deleteStudy() {
        person.expectBox(deleteRecord, windowTitle, ui::Answer::Yes);
        press("Delete");
    }
    [[nodiscard]] std::string deletion(int number) const {
        return sql("delete from A02 where A00='" + id + "'  and A0299 = " + std::to_string(number));
    }
    [[nodiscard]] std::string remaining() const {
        return sql("select * from A02 where A00='" + id + "' order by A0201");
    }
    [[nodiscard]] std::string renumbering(int to, int from) const {
        return sql("update A02 set A0299 = " + std::to_string(to) + " where a00='" + id +
                   "' and A0299 = " + std::to_string(from));
    }
    /// The studies open, the cursor on this row.
    void stand(int row) {
        open("A02");
        for (int at = 1; at < row; ++at)
            panel().AdodcRs()->MoveNext();
        journal.clear();
    }
    /// Reads of A02 that a reload makes: record 1, and the record of the first row.
    [[nodiscard]] Lines reading(std::initializer_list<int> records) const {
        Lines lines;
        for (const int record : records)
            lines.push_back(
                sql("select * from A02 where a00 ='" + id + "' and A0299=" + std::to_string(record)));
        return lines;
    }
    [[nodiscard]] Lines reload() const { return gate(id) + replacedPanel("A1ctrlUserA02", "A1ctrlUserA02"); }
};

TEST_F(DeleteCommand, AsksAndDoesNothingOnNo) {
    addStudy(1);
    person.expectBox(deleteRecord, windowTitle, ui::Answer::No);
    run(4, id, 2, [this](frmPersonWh&) {
        stand(1);
        press("Delete");
        EXPECT_EQ(journal.lines(), Lines{box(windowTitle, deleteRecord)});
    });
    EXPECT_EQ(person.boxes().at(0).buttons, ui::Buttons::YesNo);
    EXPECT_EQ(numbers(), Lines{"1"});
}

TEST_F(DeleteCommand, WithTwoRowsLeftOutOfThreeRenumbersNothingAndTheNextAddTakesNumber4) {
    for (const int number : {1, 2, 3})
        addStudy(number);
    run(4, id, 2, [this](frmPersonWh&) {
        stand(2);
        deleteStudy();
        expectLines(story(), Lines{box(windowTitle, deleteRecord)} + Lines{deletion(2), remaining()} +
                                 reload() + reading({1, 1}));
        EXPECT_EQ(panel().WhInfo.id, 1);
        EXPECT_EQ(labOpt(), modifyMode);
        press("Add");
        EXPECT_EQ(panel().WhInfo.id, 4);
    });
    EXPECT_EQ(numbers(), (Lines{"1", "3"}));
}

TEST_F(DeleteCommand, WithOneRowLeftMakesItsNumber3Number1) {
    addStudy(1);
    addStudy(3);
    run(4, id, 2, [this](frmPersonWh&) {
        stand(1);
        deleteStudy();
        expectLines(story(), Lines{box(windowTitle, deleteRecord)} +
                                 Lines{deletion(1), remaining(), renumbering(1, 3)} + reload() +
                                 reading({1, 1}));
        EXPECT_EQ(panel().WhInfo.id, 1);
        EXPECT_EQ(text("A02_A0203_v"), "学校3");
        press("Add");
        EXPECT_EQ(panel().WhInfo.id, 2);
    });
    EXPECT_EQ(numbers(), Lines{"1"});
}

TEST_F(DeleteCommand, OfTheLastRowRenumbersNothingAndTheReloadOpensAddWithNumber1) {
    addStudy(1);
    run(4, id, 2, [this](frmPersonWh& shown) {
        stand(1);
        deleteStudy();
        // Add runs inside the reload, behind the new panel, and takes the limit anew.
        expectLines(story(), Lines{box(windowTitle, deleteRecord)} + Lines{deletion(1), remaining()} +
                                 reload() + reading({1}) + Lines{"frmCtrl off"} + limitOfStudies() +
                                 nextStudy(1) + Lines{"frmCtrl on"} + addAndDelete(false));
        EXPECT_EQ(panel().WhInfo.id, 1);
        EXPECT_EQ(labOpt(), addMode);
        EXPECT_TRUE(shown.panelFrame().Enabled());
    });
    EXPECT_EQ(numbers(), Lines{});
}

TEST_F(DeleteCommand, OfTheLastRowRunsAddBeforeTheClickEnds) {
    addStudy(1);
    run(4, id, 2, [this](frmPersonWh&) {
        stand(1);
        deleteStudy();
        EXPECT_EQ(journal.lines().back(),
                  sql("select iif(tbldesc is null,'',tbldesc)  from s_infotable where tblname ='A02'"));
    });
}

TEST_F(DeleteCommand, OfANewRecordFindsNothingToDelete) {
    addStudy(1);
    addStudy(2);
    run(4, id, 2, [this](frmPersonWh&) {
        open("A02");
        press("Add");
        journal.clear();
        person.expectBox(deleteRecord, windowTitle, ui::Answer::Yes);
        command("Delete");
        EXPECT_EQ(story().at(1), deletion(3));
        EXPECT_EQ(panel().WhInfo.id, 1);
        EXPECT_EQ(labOpt(), modifyMode);
    });
    EXPECT_EQ(numbers(), (Lines{"1", "2"}));
}

TEST_F(DeleteCommand, OnASingleRecordSetTakesTheRowAndRenumbersNothing) {
    database.run("insert into A10 (A00,A1001) values ('" + id + "','创新')");
    person.expectBox(deleteRecord, windowTitle, ui::Answer::Yes);
    run(4, id, 2, [this](frmPersonWh&) {
        open("A10");
        journal.clear();
        command("Delete");
        const Lines lines = story();
        ASSERT_GE(lines.size(), 4U);
        expectLines(Lines(lines.begin(), lines.begin() + 4),
                    (Lines{box(windowTitle, deleteRecord), sql("delete from A10 where A00='" + id + "' ")}) +
                        gate(id));
        EXPECT_EQ(labOpt(), addMode);
    });
}

TEST_F(DeleteCommand, OfEditsAsksAboutThemOnlyBehindTheDeletion) {
    addStudy(1);
    addStudy(2);
    run(4, id, 2, [this](frmPersonWh&) {
        stand(1);
        type("A02_A0203_v", "新");
        journal.clear();
        person.expectBox(deleteRecord, windowTitle, ui::Answer::Yes);
        person.expectBox(keepEdits, windowTitle, ui::Answer::No);
        press("Delete");
        expectLines(story(),
                    Lines{box(windowTitle, deleteRecord)} +
                        Lines{deletion(1), remaining(), renumbering(1, 2), box(windowTitle, keepEdits)} +
                        reload() + reading({1, 1}));
    });
    EXPECT_EQ(database.column("select A0203 from A02"), Lines{"学校2"});
}

TEST_F(DeleteCommand, OfEditsThatAreKeptAfterAllStoresTheRecordAnew) {
    addStudy(1);
    run(4, id, 2, [this](frmPersonWh&) {
        stand(1);
        type("A02_A0203_v", "新");
        person.expectBox(deleteRecord, windowTitle, ui::Answer::Yes);
        person.expectBox(keepEdits, windowTitle, ui::Answer::Yes);
        press("Delete");
        EXPECT_EQ(labOpt(), modifyMode);
    });
    EXPECT_EQ(database.column("select A0203 from A02"), Lines{"新学校1"});
}

TEST_F(DeleteCommand, OfAUnitRemovesItsRowAndTheProjectsAndKeepsTheIdentity) {
    addUnit(someUnit, "第一测绘院");
    const std::string unit{someUnit};
    database.run("insert into P01 (A00,P0123,P0120) values ('" + unit + "','01','')");
    person.expectBox(deleteUnit, windowTitle, ui::Answer::Yes);
    run(4, unit, 6, [&](frmPersonWh& shown) {
        ASSERT_EQ(panelName(), "A1ctrlUserB01");
        EXPECT_FALSE(enabled("Delete"));
        journal.clear();
        command("Delete");
        const Lines lines = story();
        ASSERT_GE(lines.size(), 5U);
        expectLines(Lines(lines.begin(), lines.begin() + 5),
                    (Lines{box(windowTitle, deleteUnit), sql("delete from B01 where A00='" + unit + "' "),
                           sql("delete from P01 where A00='" + unit + "'")}) +
                        gate(unit));
        EXPECT_EQ(shown.personID, unit);
        EXPECT_EQ(shown.WhState(), 4);
        EXPECT_EQ(labOpt(), addMode);
    });
    EXPECT_EQ(database.column("select A00 from B01"), Lines{});
    EXPECT_EQ(database.column("select A00 from P01"), Lines{id});
}

// A connection that fails between the steps.

struct FailingStep {
    const char* statement;
    Lines left;
};

class FailingDelete : public DeleteCommand, public testing::WithParamInterface<FailingStep> {};

TEST_P(FailingDelete, LeavesTheWindowAndWhatRanStays) {
    addStudy(1);
    addStudy(2);
    person.expectBox(deleteRecord, windowTitle, ui::Answer::Yes);
    EXPECT_EQ(failureOf([&] {
                  run(4, id, 2, [this](frmPersonWh&) {
                      stand(1);
                      database.failing().failOn(GetParam().statement, "断线");
                      press("Delete");
                  });
              }),
              number(Failure::StatementFailed));
    EXPECT_EQ(numbers(), GetParam().left);
    EXPECT_FALSE(window().isLoaded());
}

INSTANTIATE_TEST_SUITE_P(AtEachStep, FailingDelete,
                         testing::Values(FailingStep{"delete from A02", {"1", "2"}},
                                         FailingStep{"order by A0201", {"2"}},
                                         FailingStep{"update A02 set A0299 = 1", {"2"}},
                                         FailingStep{"select count(A00) from a01", {"1"}},
                                         FailingStep{"select Property", {"1"}}));

} // namespace

} // namespace quillmere::test

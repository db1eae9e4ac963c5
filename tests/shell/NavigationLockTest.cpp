#include "platform/text/Text.h"
#include "shell/NavigationTest.h"

#include <gtest/gtest.h>

// What the project's stage locks at the end of a click.

namespace quillmere::test {

namespace {

/// Passes on to a register in which the fields of a table G01 are those of A01, as the skilled worker's
/// panel shows them: no table of the catalogue begins with that letter.
class WithTableG01 final : public data::Connection {
public:
    explicit WithTableG01(std::shared_ptr<data::Connection> target) : target_(std::move(target)) {}
    data::RowSet query(std::string_view sql) override {
        return target_->query(sql.find("s_infoitem") == std::string_view::npos
                                  ? std::string(sql)
                                  : text::replaceAll(sql, "'G01'", "'A01'"));
    }
    void execute(std::string_view sql) override { target_->execute(sql); }
    [[nodiscard]] bool isOpen() const override { return target_->isOpen(); }
    void close() override { target_->close(); }

private:
    std::shared_ptr<data::Connection> target_;
};

struct LockRow {
    const char* stage;
    int group;
    const char* key;
    /// The set has a row; else Add runs before the lock.
    bool hasRow;
    bool open;
};

void PrintTo(const LockRow& row, std::ostream* out) {
    *out << "stage " << row.stage << ", group " << row.group << ", " << row.key
         << (row.hasRow ? " with a row" : " without a row");
}

class LockFor : public NavigationTest, public testing::WithParamInterface<LockRow> {
protected:
    void prepare(const LockRow& row) {
        database.run(std::string("update P01 set P0123='") + row.stage + "'");
        const std::string key(row.key);
        if (key == "G01") {
            database.run("create table G01 as select * from A01");
            if (!row.hasRow) database.run("delete from G01");
        } else if (text::lower(key) == "a01" || text::lower(key) == "p01") {
            return;
        } else if (row.hasRow) {
            addRow(key);
        }
    }
};

TEST_P(LockFor, TheFrameFollowsTheLetterOfTheTableTheStageAndTheGroup) {
    const LockRow& row = GetParam();
    prepare(row);
    IUserCtrl host;
    give(host, 4, id);
    host.setConnection(std::make_shared<WithTableG01>(host.Connection()));
    run(host, [&](frmPersonWh& shown) {
        clickAs(shown, row.group, row.key, "信息集");
        ASSERT_EQ(shown.GetUserCtrl()->WhInfo.TabId, row.key);
        EXPECT_EQ(shown.panelFrame().Enabled(), row.open);
        EXPECT_EQ(labOpt(), row.hasRow ? "当前操作：修改" : "当前操作：增加");
        // The lock works through the frame alone.
        const bool several = shown.GetUserCtrl()->WhInfo.IsMult;
        const bool addable = row.hasRow && (several || std::string_view(row.key) == "A01");
        EXPECT_EQ(enabled("Add"), addable);
        EXPECT_EQ(enabled("Delete"), addable);
        EXPECT_TRUE(enabled("Save"));
        EXPECT_TRUE(enabled("Cancel"));
        EXPECT_TRUE(enabled("Exit"));
    });
}

INSTANTIATE_TEST_SUITE_P(
    Stage02, LockFor,
    testing::Values(LockRow{"02", 1, "A01", true, false}, LockRow{"02", 1, "A02", true, false},
                    LockRow{"02", 1, "A02", false, false}, LockRow{"02", 1, "A10", true, false},
                    LockRow{"02", 1, "A10", false, false}, LockRow{"02", 1, "B01", true, false},
                    LockRow{"02", 1, "B01", false, false}, LockRow{"02", 1, "B02", true, false},
                    LockRow{"02", 2, "C01", true, false}, LockRow{"02", 2, "C02", true, false},
                    LockRow{"02", 2, "C02", false, false}, LockRow{"02", 2, "P06", true, false},
                    LockRow{"02", 2, "P06", false, false}, LockRow{"02", 2, "P04", true, false},
                    LockRow{"02", 1, "G01", true, false}, LockRow{"02", 1, "G01", false, false},
                    LockRow{"02", 4, "E02", true, true}, LockRow{"02", 4, "E02", false, true},
                    LockRow{"02", 4, "M02", true, true}, LockRow{"02", 5, "F02", true, true},
                    LockRow{"02", 5, "F05", false, true}, LockRow{"02", 5, "N02", true, true}));

INSTANTIATE_TEST_SUITE_P(Stage02TheProject, LockFor,
                         testing::Values(LockRow{"02", 1, "P01", true, false},
                                         LockRow{"02", 2, "P01", true, false},
                                         LockRow{"02", 3, "P01", true, true},
                                         LockRow{"02", 4, "P01", true, false},
                                         LockRow{"02", 5, "P01", true, false}));

// The group counts for the project alone.
INSTANTIATE_TEST_SUITE_P(Stage02OtherTablesInThePlanGroup, LockFor,
                         testing::Values(LockRow{"02", 3, "P06", true, false},
                                         LockRow{"02", 3, "A02", true, false},
                                         LockRow{"02", 2, "Plan1", true, true},
                                         LockRow{"02", 1, "E02", true, true}));

INSTANTIATE_TEST_SUITE_P(
    Stage03, LockFor,
    testing::Values(LockRow{"03", 1, "A01", true, false}, LockRow{"03", 1, "A02", true, false},
                    LockRow{"03", 1, "A10", false, false}, LockRow{"03", 1, "B01", true, false},
                    LockRow{"03", 2, "C02", true, false}, LockRow{"03", 2, "P06", true, false},
                    LockRow{"03", 2, "P06", false, false}, LockRow{"03", 1, "G01", true, false},
                    LockRow{"03", 3, "Plan1", true, false}, LockRow{"03", 3, "Plan1", false, false},
                    LockRow{"03", 3, "Plan5", true, false}, LockRow{"03", 4, "E02", true, false},
                    LockRow{"03", 4, "E02", false, false}, LockRow{"03", 4, "E06", true, false},
                    LockRow{"03", 4, "M02", true, false}, LockRow{"03", 4, "M02", false, false},
                    LockRow{"03", 5, "F02", true, true}, LockRow{"03", 5, "F02", false, true},
                    LockRow{"03", 5, "F05", false, true}, LockRow{"03", 5, "N02", true, true},
                    LockRow{"03", 5, "N03", false, true}, LockRow{"03", 4, "F02", true, true}));

INSTANTIATE_TEST_SUITE_P(Stage03TheProject, LockFor,
                         testing::Values(LockRow{"03", 1, "P01", true, false},
                                         LockRow{"03", 2, "P01", true, false},
                                         LockRow{"03", 3, "P01", true, false},
                                         LockRow{"03", 4, "P01", true, false},
                                         LockRow{"03", 5, "P01", true, true}));

INSTANTIATE_TEST_SUITE_P(Stage03OtherTablesInTheClosingGroup, LockFor,
                         testing::Values(LockRow{"03", 5, "P06", true, false},
                                         LockRow{"03", 5, "E02", true, false}));

INSTANTIATE_TEST_SUITE_P(
    NoLockInAnyOtherStage, LockFor,
    testing::Values(LockRow{"01", 1, "A01", true, true}, LockRow{"01", 2, "P01", true, true},
                    LockRow{"01", 4, "E02", true, true}, LockRow{"", 1, "A01", true, true},
                    LockRow{"04", 2, "P06", true, true}, LockRow{"2", 1, "A02", true, true},
                    LockRow{"3", 4, "M02", true, true}, LockRow{" 02", 1, "A02", true, true},
                    LockRow{"022", 1, "A02", false, true}, LockRow{"二", 2, "C01", false, true}));

INSTANTIATE_TEST_SUITE_P(
    NoLockOnAKeyInSmallLetters, LockFor,
    testing::Values(LockRow{"02", 1, "a02", true, true}, LockRow{"02", 1, "a10", false, true},
                    LockRow{"02", 1, "b02", true, true}, LockRow{"02", 2, "c01", true, true},
                    LockRow{"02", 2, "p01", true, true}, LockRow{"02", 5, "p01", true, true},
                    LockRow{"02", 3, "plan1", true, true}, LockRow{"03", 4, "e02", true, true},
                    LockRow{"03", 4, "m02", true, true}, LockRow{"03", 2, "p01", true, true},
                    LockRow{"03", 3, "pLAN1", true, true}));

// The plan tables in stage 02.

struct PlanRow {
    bool hasRow;
    bool report;
    bool collectiveReport;
};

void PrintTo(const PlanRow& row, std::ostream* out) {
    *out << (row.hasRow ? "a row" : "no row") << (row.report ? ", a report" : "")
         << (row.collectiveReport ? ", a collective report" : "");
}

class PlanLock : public NavigationTest {
protected:
    PlanLock() : NavigationTest("02") {}

    void report(bool ordinary, bool collective) {
        if (ordinary) addRow("E06");
        if (collective) addRow("M02");
    }
    void expectCounted() {
        EXPECT_EQ(journal.count("SQL select count(1) from E06 where a00 ='" + id + "'"), 1);
        EXPECT_EQ(journal.count("SQL select count(1) from M02 where a00 ='" + id + "'"), 1);
    }
};

class PlanLockFor : public PlanLock, public testing::WithParamInterface<PlanRow> {};

TEST_P(PlanLockFor, ThePlanIsOpenWithReportsOrWithout) {
    report(GetParam().report, GetParam().collectiveReport);
    if (GetParam().hasRow) addRow("Plan1");
    maintain([this](frmPersonWh& shown) {
        click(shown, 5, "F05");
        EXPECT_TRUE(shown.panelFrame().Enabled());
        journal.clear();
        click(shown, 3, "Plan1");
        EXPECT_TRUE(shown.panelFrame().Enabled());
        EXPECT_EQ(labOpt(), GetParam().hasRow ? "当前操作：修改" : "当前操作：增加");
        expectCounted();
        // Without rows it is shut, and opened again by Add.
        EXPECT_EQ(journal.count("frmCtrl off"), GetParam().hasRow ? 0 : 1);
    });
}

INSTANTIATE_TEST_SUITE_P(Rows, PlanLockFor,
                         testing::Values(PlanRow{false, false, false}, PlanRow{false, true, false},
                                         PlanRow{false, false, true}, PlanRow{false, true, true},
                                         PlanRow{true, false, false}, PlanRow{true, true, false},
                                         PlanRow{true, false, true}, PlanRow{true, true, true}));

/// A set that counts as without rows and is full all the same, so that Add stops at its limit.
class FullPlanLockFor : public PlanLock, public testing::WithParamInterface<PlanRow> {
protected:
    FullPlanLockFor() {
        database.run("update s_infotable set maxnumber=1 where tblname='Plan1'");
        database.run("insert into Plan1 (A00,Plan199) values ('" + id + "',0)");
    }
};

TEST_P(FullPlanLockFor, APlanThatAddLeavesShutIsOpenedOnlyWithoutReports) {
    report(GetParam().report, GetParam().collectiveReport);
    person.expectBox("此信息集最多只能录入1条记录。", windowCaption);
    maintain([this](frmPersonWh& shown) {
        click(shown, 3, "Plan1");
        EXPECT_EQ(shown.panelFrame().Enabled(), !GetParam().report && !GetParam().collectiveReport);
    });
}

INSTANTIATE_TEST_SUITE_P(Rows, FullPlanLockFor,
                         testing::Values(PlanRow{true, false, false}, PlanRow{true, true, false},
                                         PlanRow{true, false, true}, PlanRow{true, true, true}));

TEST_F(PlanLock, AReportOfSomeoneElseIsNone) {
    addRow("E06");
    database.run("update E06 set A00='" + std::string(someUnit) + "'");
    database.run("update s_infotable set maxnumber=1 where tblname='Plan1'");
    database.run("insert into Plan1 (A00,Plan199) values ('" + id + "',0)");
    person.answerAnyBox(ui::Answer::No);
    maintain([](frmPersonWh& shown) {
        click(shown, 3, "Plan1");
        EXPECT_TRUE(shown.panelFrame().Enabled());
    });
}

TEST_F(PlanLock, ReportsAreCountedForThePlanTablesAlone) {
    maintain([this](frmPersonWh& shown) {
        journal.clear();
        click(shown, 3, "P01");
        click(shown, 2, "P06");
        click(shown, 1, "A01");
        click(shown, 4, "E02");
        EXPECT_EQ(journal.count("SQL select count(1) from"), 0);
        click(shown, 3, "Plan2");
        expectCounted();
    });
}

TEST_F(PlanLock, ReportsAreNotCountedInStage03) {
    database.run("update P01 set P0123='03'");
    maintain([this](frmPersonWh& shown) {
        click(shown, 3, "Plan2");
        EXPECT_FALSE(shown.panelFrame().Enabled());
        EXPECT_EQ(journal.count("SQL select count(1) from"), 0);
    });
}

TEST_F(PlanLock, TheStageIsThatOfTheOpening) {
    maintain([this](frmPersonWh& shown) {
        database.run("update P01 set P0123='01'");
        click(shown, 1, "A01");
        EXPECT_FALSE(shown.panelFrame().Enabled());
    });
}

} // namespace

} // namespace quillmere::test

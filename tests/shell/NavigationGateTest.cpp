#include "panels/A1ctrlUser.h"
#include "shell/NavigationTest.h"

#include <gtest/gtest.h>

// No set but the base records before there is a base record.

namespace quillmere::test {

namespace {

class NavigationGate : public NavigationTest {
protected:
    NavigationGate() { allowDuplicates(); }

    /// So many rows of the identity in A01 and B01, from now on.
    void hold(int persons, int units) {
        database.run("delete from A01");
        database.run("delete from B01");
        for (int row = 1; row <= persons; ++row)
            database.run("insert into A01 (A00,A0199) values ('" + id + "'," + std::to_string(row) + ")");
        for (int row = 1; row <= units; ++row)
            database.run("insert into B01 (A00,B0199) values ('" + id + "'," + std::to_string(row) + ")");
    }
};

struct GateRow {
    int persons;
    int units;
    bool passes;
};

void PrintTo(const GateRow& row, std::ostream* out) {
    *out << row.persons << " persons and " << row.units << " units";
}

class GateFor : public NavigationGate, public testing::WithParamInterface<GateRow> {};

TEST_P(GateFor, ASetTakesExactlyOnePersonOrExactlyOneUnit) {
    const bool passes = GetParam().passes;
    if (!passes) person.expectBox(gateQuestion, windowCaption);
    maintain([&](frmPersonWh& shown) {
        click(shown, 1, "A03");
        const A1ctrlUser* before = shown.GetUserCtrl();
        hold(GetParam().persons, GetParam().units);
        journal.clear();
        click(shown, 2, "P06");
        EXPECT_EQ(panelName(), passes ? "A1ctrlUserP06" : "A1ctrlUserA03");
        EXPECT_EQ(position(shown), passes ? "2.6" : "1.1");
        if (passes) return;
        EXPECT_EQ(shown.GetUserCtrl(), before);
        EXPECT_EQ(
            journal.lines(),
            (std::vector<std::string>{"OpenGroup 2", "SQL select count(A00) from a01 where a00 ='" + id + "'",
                                      "SQL select count(A00) from B01 where a00 ='" + id + "'",
                                      "BOX [信息维护] " + gateQuestion}));
    });
}

TEST_P(GateFor, TheKeysOfBothBaseRecordsPass) {
    person.answerAnyBox(ui::Answer::No);
    maintain([&](frmPersonWh& shown) {
        hold(GetParam().persons, GetParam().units);
        clickAs(shown, 2, "B01", "单位");
        EXPECT_EQ(panelName(), "A1ctrlUserB01");
        EXPECT_EQ(position(shown), "2.1");
        clickAs(shown, 1, "A01", "人员");
        EXPECT_EQ(panelName(), "A1ctrlUserA01");
        EXPECT_EQ(position(shown), "1.1");
    });
    EXPECT_TRUE(person.boxes().empty());
}

INSTANTIATE_TEST_SUITE_P(Counts, GateFor,
                         testing::Values(GateRow{0, 0, false}, GateRow{1, 0, true}, GateRow{0, 1, true},
                                         GateRow{2, 0, false}, GateRow{0, 2, false}, GateRow{1, 1, true},
                                         GateRow{2, 1, true}, GateRow{1, 2, true}, GateRow{2, 2, false},
                                         GateRow{3, 0, false}));

TEST_F(NavigationGate, TellsWithOneButton) {
    person.expectBox(gateQuestion, windowCaption);
    maintain([&](frmPersonWh& shown) {
        hold(0, 0);
        click(shown, 1, "A02");
    });
    ASSERT_EQ(person.boxes().size(), 1U);
    EXPECT_EQ(person.boxes()[0].buttons, ui::Buttons::Ok);
    EXPECT_EQ(person.boxes()[0].icon, ui::Icon::None);
}

TEST_F(NavigationGate, IsPassedByAPersonsKeyWithoutARowAndAFreshIdentityIsTaken) {
    maintain([&](frmPersonWh& shown) {
        hold(0, 0);
        click(shown, 1, "A01");
        EXPECT_EQ(panelName(), "A1ctrlUserA01");
        EXPECT_NE(shown.personID, id);
        EXPECT_EQ(shown.GetUserCtrl()->WhInfo.personID, shown.personID);
        EXPECT_EQ(shown.WhState(), 0);
    });
}

TEST_F(NavigationGate, IsPassedByAUnitsKeyWithoutARowAndTheHostsIdentityIsKept) {
    maintain([&](frmPersonWh& shown) {
        hold(0, 0);
        clickAs(shown, 1, "B01", "单位");
        EXPECT_EQ(panelName(), "A1ctrlUserB01");
        EXPECT_EQ(shown.personID, id);
        EXPECT_EQ(shown.GetUserCtrl()->WhInfo.personID, id);
        EXPECT_EQ(shown.GetUserCtrl()->WhInfo.id, 0);
        EXPECT_EQ(labOpt(), "当前操作：增加");
        EXPECT_EQ(shown.WhState(), 4);
    });
}

TEST_F(NavigationGate, ComparesTheKeysExactly) {
    for (const char* key : {"a01", "b01", "A01 ", "A010"}) {
        person.expectBox(gateQuestion, windowCaption);
        maintain([&](frmPersonWh& shown) {
            hold(0, 0);
            clickAs(shown, 1, key, "人员");
            EXPECT_EQ(panelName(), "A1ctrlUserA01") << key;
        });
        hold(1, 0);
    }
}

TEST_F(NavigationGate, OfANewPersonRefusesUntilThePersonIsSaved) {
    person.expectBox(gateQuestion, windowCaption);
    person.expectBox("保存成功!", "提示");
    run(0, "{11111111-2222-3333-4444-555555555555}", 2, [this](frmPersonWh& shown) {
        click(shown, 2, "P06");
        EXPECT_EQ(panelName(), "A1ctrlUserA01");
        EXPECT_EQ(position(shown), "1.1");
        type("A01_A0101_v", "李敏");
        press("Save");
        click(shown, 2, "P06");
        EXPECT_EQ(panelName(), "A1ctrlUserP06");
    });
}

TEST_F(NavigationGate, LeavesACommandOfTheOldPanelToTheFirstItem) {
    person.expectBox(gateQuestion, windowCaption);
    maintain([this](frmPersonWh& shown) {
        click(shown, 1, "A03");
        hold(2, 0);
        click(shown, 2, "P06");
        EXPECT_EQ(panelName(), "A1ctrlUserA03");
        // The position is that of the first item, so this is what Cancel loads again.
        press("Cancel");
        EXPECT_EQ(panelName(), "A1ctrlUserA01");
    });
}

} // namespace

} // namespace quillmere::test

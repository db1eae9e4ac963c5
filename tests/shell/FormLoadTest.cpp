#include "metadata/Globals.h"
#include "platform/ui/Skin.h"
#include "shell/RegisterTest.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

// How a maintenance run starts: what the window is opened for, the skin, failures.

namespace quillmere::test {

namespace {

using FormLoad = RegisterTest;

/// What the window is opened for, type 2 and a person whose project is at stage "01".
struct Opening {
    std::int16_t operationType;
    int openGroup;
    int group;
    const char* panel;
    const char* name;
};

class OpeningFor : public RegisterTest, public testing::WithParamInterface<Opening> {};

TEST_P(OpeningFor, SetsTheStateTheOpenGroupAndTheFirstItem) {
    const Opening& expected = GetParam();
    addPerson(somePerson, "秦志明");
    run(expected.operationType, somePerson, 2, [&](frmPersonWh& shown) {
        EXPECT_EQ(shown.WhState(), expected.operationType);
        EXPECT_EQ(shown.menu().OpenGroup(), expected.openGroup);
        EXPECT_EQ(shown.menu().AddressedGroup(), expected.group);
        EXPECT_EQ(shown.menu().AddressedItem(), 1);
        EXPECT_EQ(panelName(), expected.panel);
        EXPECT_EQ(shown.nameLabel().Caption(), expected.name);
    });
    EXPECT_TRUE(person.boxes().empty());
}

INSTANTIATE_TEST_SUITE_P(FormLoad, OpeningFor,
                         testing::Values(Opening{1, 3, 3, "A1ctrlUserPP01", "秦志明"},
                                         Opening{2, 4, 4, "A1ctrlUserE02", "秦志明"},
                                         Opening{3, 5, 5, "A1ctrlUserJP01", "秦志明"},
                                         Opening{4, 2, 1, "A1ctrlUserA01", "秦志明"}));

TEST_F(FormLoad, OperationType0OpensGroup2AndClicksTheFirstItemWithoutAnIdentityCheck) {
    run(0, somePerson, 2, [](frmPersonWh& shown) {
        EXPECT_EQ(shown.WhState(), 0);
        EXPECT_EQ(shown.menu().OpenGroup(), 2);
        EXPECT_EQ(shown.menu().AddressedGroup(), 1);
        EXPECT_EQ(shown.menu().AddressedItem(), 1);
        EXPECT_EQ(panelName(), "A1ctrlUserA01");
        EXPECT_EQ(shown.nameLabel().Caption(), "");
    });
    EXPECT_EQ(journal.count("SQL select a0101 from a01"), 0);
    EXPECT_EQ(journal.count("SQL select B0101 from B01"), 0);
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(FormLoad, OperationType0ClearsTheNameAlsoOfAPersonThatIsThere) {
    addPerson(somePerson, "秦志明");
    run(0, somePerson, 2, [](frmPersonWh& shown) { EXPECT_EQ(shown.nameLabel().Caption(), ""); });
}

TEST_F(FormLoad, RunsItsStepsInOrder) {
    addPerson(somePerson, "秦志明", "02");
    IUserCtrl host;
    give(host, 4, somePerson);
    host.setSkinPath("blue.skn");
    run(host);
    const std::string id(somePerson);
    auto begin = journal.before("+ A1ctrlUserA01");
    // The widgets of the run before are replaced first; they are no matter here.
    std::erase_if(begin, [](const std::string& line) { return line[0] == '+' || line[0] == '-'; });
    const std::vector<std::string> expected{
        "SQL select * from P01 where A00='" + id + "'",
        "SQL select * from TS_SetCustomize where DmCod='02'",
        "SQL SELECT * FROM s_infotable where tblname in "
        "('A01','A02','A03','A04','A05','A06','A07','A08','A09','A10') order by otherprop",
        "SQL select * from TS_SetCustomize where DmCod='02'",
        "SQL SELECT * FROM s_infotable where tblname in "
        "('P01','P10','P02','P03','P04','P05','P06','P17','P18') order by otherprop",
        "SQL select * from TS_SetCustomize where DmCod='02'",
        "SQL SELECT * FROM s_infotable where tblname in ('P01','Plan1','Plan2','Plan3','Plan4') order by "
        "otherprop",
        "SQL SELECT * FROM s_infotable where tblname like 'E%' order by otherprop",
        "SQL SELECT * FROM s_infotable where tblname like 'F%' or tblname='P01' order by otherprop",
        "SQL select a0101 from a01 where a00='" + id + "'",
        "SQL select B0101 from B01 where A00='" + id + "'",
        "name 秦志明",
        "OpenGroup 4",
        "SQL select count(A00) from a01 where a00 ='" + id + "'",
        "SQL select count(A00) from B01 where a00 ='" + id + "'",
    };
    EXPECT_EQ(begin, expected);
    const auto end = journal.after("skin blue.skn");
    EXPECT_EQ(end, (std::vector<std::string>{"OPENED frmPersonWh", "- A1ctrlUserA01"}));
}

TEST_F(FormLoad, IsUnsavedOnlyOnceTheMenuIsComposed) {
    addPerson(somePerson, "秦志明");
    IUserCtrl host;
    give(host, 4, somePerson);
    // The public field stands as the program left it when the load breaks off before that.
    window().IsSaved = true;
    window().personID = somePerson;
    publishConnection(host.Connection());
    window().OperationType = 4;
    window().ZZtype = 2;
    database.failing().failOn("tblname like 'F%'", "断线");
    EXPECT_EQ(failureOf([&] { person.desktop().showModal(window()); }), number(Failure::StatementFailed));
    EXPECT_TRUE(window().IsSaved);
    database.failing().failOn("select a0101 from a01", "断线");
    EXPECT_EQ(failureOf([&] { person.desktop().showModal(window()); }), number(Failure::StatementFailed));
    EXPECT_FALSE(window().IsSaved);
}

// OperationType 4 and the project's stage.

struct StageRow {
    const char* stage;
    int openGroup;
};

class OpenGroupByStage : public RegisterTest, public testing::WithParamInterface<StageRow> {};

TEST_P(OpenGroupByStage, OfEverythingIsKeptApartFromTheItemLoaded) {
    addPerson(somePerson, "秦志明", GetParam().stage);
    run(4, somePerson, 2, [&](frmPersonWh& shown) {
        EXPECT_EQ(shown.ProjectStage(), GetParam().stage);
        EXPECT_EQ(shown.menu().OpenGroup(), GetParam().openGroup);
        EXPECT_EQ(shown.menu().AddressedGroup(), 1);
        EXPECT_EQ(shown.menu().AddressedItem(), 1);
        EXPECT_EQ(panelName(), "A1ctrlUserA01");
    });
}

INSTANTIATE_TEST_SUITE_P(FormLoad, OpenGroupByStage,
                         testing::Values(StageRow{"01", 2}, StageRow{"02", 4}, StageRow{"03", 5},
                                         StageRow{"", 2}, StageRow{"04", 2}, StageRow{"2", 2},
                                         StageRow{"02 ", 2}));

TEST_F(FormLoad, TheStageMovesTheOpenGroupForOperationType4Alone) {
    addPerson(somePerson, "秦志明", "03");
    run(1, somePerson, 2, [](frmPersonWh& shown) { EXPECT_EQ(shown.menu().OpenGroup(), 3); });
    run(2, somePerson, 2, [](frmPersonWh& shown) { EXPECT_EQ(shown.menu().OpenGroup(), 4); });
}

// The skin.

TEST_F(FormLoad, AnEmptySkinPathIsAppliedLikeAnyOther) {
    addPerson(somePerson, "秦志明");
    run(4, somePerson, 2, [](frmPersonWh& shown) {
        const auto& skin = controlOf<ui::Skin>(shown, "Skin1");
        EXPECT_EQ(skin.path(), "");
        EXPECT_TRUE(skin.isApplied());
    });
    EXPECT_EQ(journal.count("skin "), 1);
}

// Failures while loading.

TEST_F(FormLoad, AFailureOfAnyStatementReachesTheHostAndTheNextRunIsWhole) {
    addPerson(somePerson, "秦志明", "02");
    run(4, somePerson, 2);
    const auto whole = journal.statements();
    ASSERT_GT(whole.size(), 15U);
    for (std::size_t k = 1; k <= whole.size(); ++k) {
        journal.clear();
        person.forget();
        IUserCtrl host;
        give(host, 4, somePerson);
        database.failing().failAfter(static_cast<int>(k), "断线");
        EXPECT_EQ(failureOf([&] { (void)runUnseen(host); }), number(Failure::StatementFailed))
            << whole[k - 1];
        EXPECT_EQ(journal.statements().size(), k) << whole[k - 1];
        EXPECT_EQ(journal.statements().back(), whole[k - 1]);
        EXPECT_FALSE(window().isLoaded()) << whole[k - 1];
        EXPECT_EQ(window().GetUserCtrl(), nullptr) << whole[k - 1];
        EXPECT_TRUE(person.opened().empty());
        EXPECT_TRUE(person.boxes().empty());
    }
    journal.clear();
    EXPECT_FALSE(run(4, somePerson, 2));
    EXPECT_EQ(journal.statements(), whole);
}

} // namespace

} // namespace quillmere::test

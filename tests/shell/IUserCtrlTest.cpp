#include "quillmere/IUserCtrl.h"

#include "metadata/Globals.h"
#include "platform/data/UnopenedConnection.h"
#include "shell/RegisterTest.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

// The entry object: what it stores, and what the one operation takes over and gives back.

namespace quillmere::test {

namespace {

TEST(EntryObject, StartsWithZerosEmptyTextsAndNoConnectionOfItsOwn) {
    const IUserCtrl host;
    EXPECT_EQ(host.OperationType(), 0);
    EXPECT_EQ(host.ZZtype(), 0);
    EXPECT_EQ(host.PersonType(), 0);
    EXPECT_EQ(host.PhotoPath(), "");
    EXPECT_EQ(host.personID(), "");
    EXPECT_EQ(host.UnitCode(), "");
    EXPECT_EQ(host.SkinPath(), "");
    EXPECT_FALSE(host.Connection()->isOpen());
}

TEST(EntryObject, KeepsWhatIsWrittenWithoutAnyCheck) {
    IUserCtrl host;
    constexpr auto lowest = std::numeric_limits<std::int16_t>::min();
    constexpr auto highest = std::numeric_limits<std::int16_t>::max();
    host.setOperationType(lowest);
    host.setZZtype(highest);
    host.setPersonType(-1);
    host.setPhotoPath("无此目录\\?*");
    host.setPersonID("不是'编号");
    host.setUnitCode(" 01 ");
    host.setSkinPath("nowhere.skn");
    EXPECT_EQ(host.OperationType(), lowest);
    EXPECT_EQ(host.ZZtype(), highest);
    EXPECT_EQ(host.PersonType(), -1);
    EXPECT_EQ(host.PhotoPath(), "无此目录\\?*");
    EXPECT_EQ(host.personID(), "不是'编号");
    EXPECT_EQ(host.UnitCode(), " 01 ");
    EXPECT_EQ(host.SkinPath(), "nowhere.skn");
}

TEST(EntryObject, ConnectionReadBeforeAnyWriteIsANewUnopenedOneThatIsKept) {
    const IUserCtrl host;
    const auto first = host.Connection();
    ASSERT_NE(first, nullptr);
    EXPECT_FALSE(first->isOpen());
    EXPECT_EQ(host.Connection(), first);
    EXPECT_NE(IUserCtrl().Connection(), first);
}

TEST(EntryObject, ConnectionReadAfterAWriteIsTheOneWritten) {
    IUserCtrl host;
    const auto given = std::make_shared<data::UnopenedConnection>();
    host.setConnection(given);
    EXPECT_EQ(host.Connection(), given);
}

TEST(EntryObject, ConnectionTakenBackReadsAsANewUnopenedOne) {
    IUserCtrl host;
    const auto given = std::make_shared<data::UnopenedConnection>();
    host.setConnection(given);
    host.setConnection(nullptr);
    ASSERT_NE(host.Connection(), nullptr);
    EXPECT_NE(host.Connection(), given);
}

using ShowPersonWh = RegisterTest;

TEST_F(ShowPersonWh, OnAConnectionNeverSetFailsAtTheFirstQuery) {
    IUserCtrl host;
    host.setOperationType(4);
    EXPECT_EQ(failureOf([&] { (void)host.ShowPersonWh(); }), number(Failure::InvalidConnection));
    EXPECT_FALSE(window().isLoaded());
    EXPECT_EQ(journal.count("OPENED"), 0);
    EXPECT_EQ(&gConn(), host.Connection().get());
}

TEST_F(ShowPersonWh, MarksTheWindowUnsavedBeforeItIsShown) {
    window().IsSaved = true;
    IUserCtrl host;
    give(host, 4, somePerson);
    database.failing().failAfter(1, "断线");
    EXPECT_EQ(failureOf([&] { (void)runUnseen(host); }), number(Failure::StatementFailed));
    EXPECT_FALSE(window().IsSaved);
}

TEST_F(ShowPersonWh, PublishesTheConnectionBeforeTheFirstStatement) {
    addPerson(somePerson, "秦志明");
    IUserCtrl host;
    give(host, 4, somePerson);
    run(host, [&](frmPersonWh&) { EXPECT_EQ(&gConn(), host.Connection().get()); });
    EXPECT_FALSE(database.statements().empty());
}

TEST_F(ShowPersonWh, LeavesTheConnectionOpenAndPublished) {
    addPerson(somePerson, "秦志明");
    IUserCtrl host;
    give(host, 4, somePerson);
    run(host);
    EXPECT_TRUE(host.Connection()->isOpen());
    EXPECT_EQ(&gConn(), host.Connection().get());
}

TEST_F(ShowPersonWh, CopiesEveryPropertyOntoTheWindow) {
    addPerson(somePerson, "秦志明");
    IUserCtrl host;
    give(host, 3, somePerson, 5);
    host.setPersonType(12);
    host.setPhotoPath("photos");
    host.setUnitCode("0101");
    host.setSkinPath("blue.skn");
    window().IsSaved = true;
    run(host, [&](frmPersonWh& shown) {
        EXPECT_EQ(shown.personID, somePerson);
        EXPECT_EQ(shown.PersonType, 12);
        EXPECT_EQ(shown.OperationType, 3);
        EXPECT_EQ(shown.PhotoPath, "photos");
        EXPECT_EQ(shown.ZZtype, 5);
        EXPECT_EQ(shown.UnitCode, "0101");
        EXPECT_EQ(shown.SkinPath, "blue.skn");
        EXPECT_FALSE(shown.IsSaved);
    });
}

TEST_F(ShowPersonWh, PersonTypeChangesNothing) {
    addPerson(somePerson, "秦志明");
    std::vector<std::vector<std::string>> journals;
    for (const std::int16_t personType : std::array<std::int16_t, 3>{0, 1, 99}) {
        journal.clear();
        IUserCtrl host;
        give(host, 4, somePerson);
        host.setPersonType(personType);
        run(host);
        journals.push_back(journal.lines());
    }
    EXPECT_EQ(journals[1], journals[0]);
    EXPECT_EQ(journals[2], journals[0]);
}

TEST_F(ShowPersonWh, BlocksUntilTheWindowIsClosed) {
    addPerson(somePerson, "秦志明");
    bool worked = false;
    run(4, somePerson, 2, [&](frmPersonWh& shown) {
        EXPECT_TRUE(shown.isOpen());
        worked = true;
    });
    EXPECT_TRUE(worked);
    EXPECT_FALSE(window().isOpen());
    EXPECT_FALSE(window().isLoaded());
}

TEST_F(ShowPersonWh, ReturnsFalseWhenNothingWasSaved) {
    addPerson(somePerson, "秦志明");
    EXPECT_FALSE(run(4, somePerson, 2));
}

TEST_F(ShowPersonWh, ReturnsTrueAfterTheSaveButton) {
    addPerson(somePerson, "秦志明");
    person.expectBox("保存成功!", "提示");
    EXPECT_TRUE(run(4, somePerson, 2, [](frmPersonWh&) {
        type("A01_A0101_v", "老");
        press("Save");
    }));
    EXPECT_EQ(database.cell("select A0101 from A01"), "老秦志明");
}

TEST_F(ShowPersonWh, ReturnsTrueForASaveOfNoEdits) {
    addPerson(somePerson, "秦志明");
    person.expectBox("保存成功!", "提示");
    EXPECT_TRUE(run(4, somePerson, 2, [](frmPersonWh&) { press("Save"); }));
}

TEST_F(ShowPersonWh, ReturnsFalseAfterASaveThatWasRefused) {
    addPerson(somePerson, "秦志明");
    database.failing().failOn("update A01", "不能写入");
    person.expectBox("不能写入", "信息保存");
    EXPECT_FALSE(run(4, somePerson, 2, [](frmPersonWh&) {
        type("A01_A0101_v", "老");
        press("Save");
    }));
}

TEST_F(ShowPersonWh, ReturnsFalseForARunThatSavesOnlyThroughTheExitPrompt) {
    addPerson(somePerson, "秦志明");
    person.expectBox("数据被修改但未保存，是否保存？", "信息维护", ui::Answer::Yes);
    EXPECT_FALSE(run(4, somePerson, 2, [](frmPersonWh& shown) {
        type("A01_A0101_v", "老");
        press("Exit");
        EXPECT_FALSE(shown.isOpen());
    }));
    EXPECT_EQ(database.cell("select A0101 from A01"), "老秦志明");
}

TEST_F(ShowPersonWh, ReturnsFalseForARunThatSavesOnlyThroughAMenuClick) {
    addPerson(somePerson, "秦志明");
    person.expectBox("数据被修改且未保存，是否保存？", "信息维护", ui::Answer::Yes);
    EXPECT_FALSE(run(4, somePerson, 2, [](frmPersonWh& shown) {
        type("A01_A0101_v", "老");
        EXPECT_TRUE(shown.menu().clickItem(1, 2));
    }));
    EXPECT_EQ(database.cell("select A0101 from A01"), "老秦志明");
}

TEST_F(ShowPersonWh, ReturnsFalseForARunThatSavesOnlyThroughTheAddPrompt) {
    addPerson(somePerson, "秦志明");
    person.expectBox("数据被修改且未保存，是否保存？", "", ui::Answer::Yes);
    EXPECT_FALSE(run(4, somePerson, 2, [](frmPersonWh&) {
        type("A01_A0101_v", "老");
        press("Add");
    }));
    EXPECT_EQ(database.cell("select A0101 from A01"), "老秦志明");
}

TEST_F(ShowPersonWh, ClosedByTheFrameAsksNothingAndDropsTheEdits) {
    addPerson(somePerson, "秦志明");
    EXPECT_FALSE(run(4, somePerson, 2, [](frmPersonWh& shown) {
        type("A01_A0101_v", "老");
        shown.closeByFrame();
    }));
    EXPECT_TRUE(person.boxes().empty());
    EXPECT_EQ(database.cell("select A0101 from A01"), "秦志明");
}

TEST_F(ShowPersonWh, ClosedByTheFrameAfterTheSaveButtonStillReturnsTrue) {
    addPerson(somePerson, "秦志明");
    person.expectBox("保存成功!", "提示");
    EXPECT_TRUE(run(4, somePerson, 2, [](frmPersonWh& shown) {
        press("Save");
        type("A01_A0101_v", "老");
        shown.closeByFrame();
    }));
}

TEST_F(ShowPersonWh, TellsTheHostNothingOfANewIdentity) {
    addPerson(somePerson, "秦志明");
    IUserCtrl host;
    give(host, 4, somePerson);
    run(host, [](frmPersonWh& shown) {
        press("Add");
        EXPECT_NE(shown.personID, somePerson);
    });
    EXPECT_EQ(host.personID(), somePerson);
}

TEST_F(ShowPersonWh, ASecondRunOnANewObjectUsesTheSameWindowAndStartsUnsaved) {
    addPerson(somePerson, "秦志明");
    addPerson(someUnit, "赵敏", "02");
    const frmPersonWh* first = nullptr;
    person.expectBox("保存成功!", "提示");
    EXPECT_TRUE(run(4, somePerson, 2, [&](frmPersonWh& shown) {
        first = &shown;
        press("Save");
    }));
    journal.clear();
    EXPECT_FALSE(run(4, someUnit, 6, [&](frmPersonWh& shown) {
        EXPECT_EQ(&shown, first);
        EXPECT_FALSE(shown.IsSaved);
        EXPECT_EQ(shown.nameLabel().Caption(), "赵敏");
        EXPECT_EQ(shown.ProjectStage(), "02");
        EXPECT_EQ(gZZType, 6);
    }));
    const auto statements = journal.statements();
    ASSERT_FALSE(statements.empty());
    EXPECT_EQ(statements.front(), "select * from P01 where A00='" + std::string(someUnit) + "'");
}

TEST_F(ShowPersonWh, TheWindowKeepsItsFieldsAndTheGlobalsTheirValuesBetweenTwoRuns) {
    addPerson(somePerson, "秦志明", "03");
    IUserCtrl host;
    give(host, 3, somePerson, 5);
    host.setUnitCode("0101");
    run(host);
    EXPECT_EQ(gZZType, 5);
    EXPECT_EQ(gZZYear, "2026");
    EXPECT_EQ(window().personID, somePerson);
    EXPECT_EQ(window().UnitCode, "0101");
    EXPECT_EQ(window().WhState(), 3);
    EXPECT_EQ(window().ProjectStage(), "03");
}

TEST_F(ShowPersonWh, NoPanelOutlivesTheWindow) {
    addPerson(somePerson, "秦志明");
    run(4, somePerson, 2, [](frmPersonWh&) { EXPECT_EQ(panelName(), "A1ctrlUserA01"); });
    EXPECT_EQ(window().GetUserCtrl(), nullptr);
}

TEST_F(ShowPersonWh, FromInsideARunIsRefusedAndLeavesTheRunAsItIs) {
    addPerson(somePerson, "秦志明");
    addPerson(someUnit, "赵敏");
    run(4, somePerson, 2, [&](frmPersonWh& shown) {
        IUserCtrl second;
        second.setOperationType(4);
        second.setPersonID(std::string(someUnit));
        EXPECT_EQ(failureOf([&] { (void)second.ShowPersonWh(); }), number(Failure::InvalidCall));
        EXPECT_EQ(shown.personID, somePerson);
        EXPECT_TRUE(shown.isOpen());
        EXPECT_NE(&gConn(), second.Connection().get());
    });
}

TEST_F(ShowPersonWh, AFailureOfACommandClosesTheWindowAndReachesTheHost) {
    addPerson(somePerson, "秦志明");
    database.failing().failOn("select Property from s_infotable  where TblName ='A02'", "断线");
    EXPECT_EQ(
        failureOf([&] { run(4, somePerson, 2, [](frmPersonWh& shown) { shown.menu().clickItem(1, 2); }); }),
        number(Failure::StatementFailed));
    EXPECT_FALSE(window().isLoaded());
    EXPECT_FALSE(run(4, somePerson, 2, [](frmPersonWh&) { EXPECT_EQ(panelName(), "A1ctrlUserA01"); }));
}

} // namespace

} // namespace quillmere::test

#include "metadata/Globals.h"
#include "platform/convert/Clock.h"
#include "platform/data/UnopenedConnection.h"
#include "shell/RegisterTest.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <array>

// The sponsorship type and year, and the project's stage, as the window finds them when it opens.

namespace quillmere::test {

namespace {

/// As a freshly made identity: 38 characters, and the shortest that counts as one.
const std::string freshIdentity = "{8A1C44E0-5B7D-4F13-9A60-27D1C3E5F901}";
const std::string longIdentity(33, 'F');
const std::string shortIdentity(32, 'F');

class Sponsorship : public RegisterTest {
protected:
    void setStyle(const std::optional<std::string>& type, const std::optional<std::string>& year) {
        database.run("delete from ZZStyle");
        database.run("insert into ZZStyle values (" + literal(type) + "," + literal(year) + ")");
    }
    void openNew(std::string_view id) { run(0, id, 0); }
};

TEST_F(Sponsorship, OfAnyOtherOperationIsTheHostsTypeAndTheCurrentYearWithoutADatabaseRead) {
    addPerson(somePerson, "秦志明");
    database.run("update A01 set A0136='03', A0137='1999'");
    setStyle("5", "2006");
    run(4, somePerson, 6);
    EXPECT_EQ(gZZType, 6);
    EXPECT_EQ(gZZYear, "2026");
    EXPECT_EQ(journal.statements().front(), "select * from P01 where A00='" + std::string(somePerson) + "'");
    EXPECT_EQ(journal.count("SQL select * from ZZStyle"), 0);
    EXPECT_EQ(journal.count("SQL select A0136"), 0);
}

TEST_F(Sponsorship, OfAnyOtherOperationFollowsTheClock) {
    addPerson(somePerson, "秦志明");
    clock::fix(convert::DateTime{2031, 1, 1, 0, 0, 0});
    run(1, somePerson, 2);
    EXPECT_EQ(gZZYear, "2031");
}

TEST_F(Sponsorship, OfAnyOtherOperationIsNotCheckedForItsRange) {
    addPerson(somePerson, "秦志明");
    IUserCtrl host;
    give(host, 4, somePerson, 300);
    EXPECT_EQ(failureOf([&] { (void)runUnseen(host); }), number(Failure::StatementFailed));
    EXPECT_EQ(gZZType, 300);
}

TEST_F(Sponsorship, OfOperation7AndOfANegativeOneIsTheHosts) {
    run(7, freshIdentity, 3);
    EXPECT_EQ(gZZType, 3);
    run(-1, freshIdentity, 4);
    EXPECT_EQ(gZZType, 4);
    EXPECT_EQ(gZZYear, "2026");
}

TEST_F(Sponsorship, OfAFreshIdentityComesFromTheSetting) {
    setStyle("5", "2006");
    IUserCtrl host;
    give(host, 0, freshIdentity, 2);
    run(host);
    EXPECT_EQ(gZZType, 5);
    EXPECT_EQ(gZZYear, "2006");
    EXPECT_EQ(journal.statements().front(), "select * from ZZStyle");
}

TEST_F(Sponsorship, OfAFreshIdentityKnowsTheTypes1To7) {
    for (int type = 1; type <= 7; ++type) {
        setStyle(std::to_string(type), "20" + std::to_string(10 + type));
        openNew(freshIdentity);
        EXPECT_EQ(gZZType, type);
        EXPECT_EQ(gZZYear, "20" + std::to_string(10 + type));
    }
}

TEST_F(Sponsorship, OfAFreshIdentityIsType1ForAnyOtherSettingAndKeepsItsYear) {
    for (const char* type : {"9", "0", "8", "", "05", " 5", "5 ", "A"}) {
        setStyle(type, "2006");
        gZZYear.clear();
        openNew(freshIdentity);
        EXPECT_EQ(gZZType, 1) << type;
        EXPECT_EQ(gZZYear, "2006") << type;
    }
}

TEST_F(Sponsorship, OfAFreshIdentityIsType1ForASettingWithoutAType) {
    setStyle(std::nullopt, "2006");
    openNew(freshIdentity);
    EXPECT_EQ(gZZType, 1);
    EXPECT_EQ(gZZYear, "2006");
}

TEST_F(Sponsorship, OfAFreshIdentityTakesTheFirstRowOfTheSetting) {
    setStyle("5", "2006");
    database.run("insert into ZZStyle values ('3','2007')");
    openNew(freshIdentity);
    EXPECT_EQ(gZZType, 5);
    EXPECT_EQ(gZZYear, "2006");
}

TEST_F(Sponsorship, OfAFreshIdentityKeepsTheYearAsItIsWritten) {
    setStyle("2", " 二〇〇六 ");
    openNew(freshIdentity);
    EXPECT_EQ(gZZYear, " 二〇〇六 ");
}

TEST_F(Sponsorship, WithAnEmptySettingIsType1WithTheYearUnchangedAndNoMessage) {
    database.run("delete from ZZStyle");
    gZZType = 4;
    gZZYear = "1998";
    openNew(freshIdentity);
    EXPECT_EQ(gZZType, 1);
    EXPECT_EQ(gZZYear, "1998");
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(Sponsorship, WithASettingWithoutAYearIsType1WithTheYearUnchanged) {
    setStyle("5", std::nullopt);
    gZZYear = "1998";
    openNew(freshIdentity);
    EXPECT_EQ(gZZType, 1);
    EXPECT_EQ(gZZYear, "1998");
}

TEST_F(Sponsorship, WithASettingThatCannotBeReadIsType1AndTheLoadGoesOn) {
    setStyle("5", "2006");
    gZZYear = "1998";
    database.failing().failOn("select * from ZZStyle", "断线");
    openNew(freshIdentity);
    EXPECT_EQ(gZZType, 1);
    EXPECT_EQ(gZZYear, "1998");
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(Sponsorship, OfAStoredPersonOf32CharactersIsType1WhateverIsStored) {
    addPerson(shortIdentity, "秦志明");
    setStyle("5", "2006");
    for (const char* type : {"06", "07", "01"}) {
        database.run(std::string("update A01 set A0137='2020', A0136='") + type + "'");
        gZZYear = "1998";
        journal.clear();
        openNew(shortIdentity);
        EXPECT_EQ(gZZType, 1) << type;
        EXPECT_EQ(gZZYear, "1998") << type;
        EXPECT_EQ(journal.statements().front(), "select A0136 from A01 where A00='" + shortIdentity + "'");
        EXPECT_EQ(journal.count("SQL select * from ZZStyle"), 0);
    }
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(Sponsorship, OfAShortIdentityThatIsNotStoredIsType1) {
    setStyle("5", "2006");
    gZZType = 3;
    openNew("");
    EXPECT_EQ(gZZType, 1);
    EXPECT_EQ(gZZYear, "");
    EXPECT_EQ(journal.statements().front(), "select A0136 from A01 where A00=''");
}

TEST_F(Sponsorship, KeepsTheYearOfTheOpeningBeforeForAShortIdentity) {
    addPerson(somePerson, "秦志明");
    clock::fix(convert::DateTime{2019, 5, 1, 0, 0, 0});
    run(4, somePerson, 6);
    clock::fix(convert::DateTime{2026, 5, 1, 0, 0, 0});
    openNew(shortIdentity);
    EXPECT_EQ(gZZType, 1);
    EXPECT_EQ(gZZYear, "2019");
}

TEST_F(Sponsorship, Takes33CharactersForAFreshIdentity) {
    setStyle("5", "2006");
    openNew(longIdentity);
    EXPECT_EQ(gZZType, 5);
}

TEST_F(Sponsorship, CountsTheCharactersOfAnIdentityAndNotItsBytes) {
    setStyle("5", "2006");
    std::string identity;
    for (int character = 0; character < 32; ++character)
        identity += "人";
    openNew(identity);
    EXPECT_EQ(gZZType, 1);
    openNew(identity + "人");
    EXPECT_EQ(gZZType, 5);
}

TEST_F(Sponsorship, WithoutAnOpenConnectionIsSwallowedAndTheLoadFailsAtTheStage) {
    gZZYear = "1998";
    IUserCtrl host;
    host.setConnection(journal.over(std::make_shared<data::UnopenedConnection>()));
    host.setPersonID(freshIdentity);
    EXPECT_EQ(failureOf([&] { (void)runUnseen(host); }), number(Failure::InvalidConnection));
    EXPECT_EQ(gZZType, 1);
    EXPECT_EQ(gZZYear, "1998");
    EXPECT_EQ(journal.statements(),
              (std::vector<std::string>{"select * from ZZStyle",
                                        "select * from P01 where A00='" + freshIdentity + "'"}));
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(Sponsorship, OfTheSettingComposesTheMenuAndGoesIntoANewPerson) {
    setStyle("7", "2006");
    // Two boxes: the name is new, so that only the save itself is told.
    person.expectBox("保存成功!", "提示");
    run(0, freshIdentity, 2, [](frmPersonWh& shown) {
        EXPECT_EQ(shown.menu().groups()[0].items.size(), 6U);
        EXPECT_EQ(panelName(), "A1ctrlUserG01");
        type("A01_A0101_v", "王芳");
        press("Save");
    });
    EXPECT_EQ(database.cell("select A0136 from A01"), "07");
    EXPECT_EQ(database.cell("select A0137 from A01"), "2006");
}

TEST_F(Sponsorship, OfACollectiveProjectOpensANewUnitUnderTheHostsIdentity) {
    addPerson(somePerson, "秦志明");
    run(3, somePerson, 2);
    setStyle("6", "2006");
    run(0, freshIdentity, 2, [](frmPersonWh& shown) {
        EXPECT_EQ(panelName(), "A1ctrlUserB01");
        EXPECT_EQ(shown.WhState(), 0);
        EXPECT_EQ(shown.personID, freshIdentity);
    });
}

// The project's stage.

using Stage = RegisterTest;

TEST_F(Stage, IsEmptyWithoutAProjectRow) {
    addUnit(someUnit, "第一测绘院");
    run(4, someUnit, 6, [](frmPersonWh& shown) { EXPECT_EQ(shown.ProjectStage(), ""); });
}

TEST_F(Stage, IsEmptyForANull) {
    addPerson(somePerson, "秦志明");
    database.run("update P01 set P0123=null");
    run(4, somePerson, 2, [](frmPersonWh& shown) { EXPECT_EQ(shown.ProjectStage(), ""); });
}

TEST_F(Stage, IsThatOfTheFirstRow) {
    allowDuplicates();
    addPerson(somePerson, "秦志明", "03");
    database.run("insert into P01 (A00,P0123) values ('" + std::string(somePerson) + "','02')");
    run(4, somePerson, 2, [](frmPersonWh& shown) { EXPECT_EQ(shown.ProjectStage(), "03"); });
}

TEST_F(Stage, OfAnEarlierOpeningIsForgotten) {
    addPerson(somePerson, "秦志明", "03");
    addUnit(someUnit, "第一测绘院");
    run(4, somePerson, 2);
    run(4, someUnit, 6, [](frmPersonWh& shown) { EXPECT_EQ(shown.ProjectStage(), ""); });
}

TEST_F(Stage, IsReadForEveryOperation) {
    addPerson(somePerson, "秦志明", "03");
    for (const std::int16_t operationType : std::array<std::int16_t, 6>{0, 1, 2, 3, 4, 7}) {
        journal.clear();
        run(operationType, somePerson, 2, [](frmPersonWh& shown) { EXPECT_EQ(shown.ProjectStage(), "03"); });
        EXPECT_EQ(journal.count("SQL select * from P01 where A00='"), 1) << operationType;
    }
}

TEST_F(Stage, IsNotReadAgainWhileTheWindowIsOpen) {
    addPerson(somePerson, "秦志明", "01");
    database.run("update s_infoitem set \"IsNUll\"=true where TblName='P01'");
    run(4, somePerson, 2, [this](frmPersonWh& shown) {
        database.run("update P01 set P0123='02'");
        shown.menu().clickItem(2, 1);
        press("Save");
        EXPECT_TRUE(shown.IsSaved);
        EXPECT_EQ(shown.ProjectStage(), "01");
        EXPECT_TRUE(shown.panelFrame().Enabled());
        shown.menu().clickItem(1, 2);
        EXPECT_TRUE(shown.panelFrame().Enabled());
    });
    run(4, somePerson, 2, [](frmPersonWh& shown) {
        EXPECT_EQ(shown.ProjectStage(), "02");
        EXPECT_FALSE(shown.panelFrame().Enabled());
    });
}

} // namespace

} // namespace quillmere::test

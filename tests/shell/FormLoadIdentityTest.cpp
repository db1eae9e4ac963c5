#include "shell/RegisterTest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

// Whom the window is opened for: the identity check of a run that starts.

namespace quillmere::test {

namespace {

const std::string nothingToMaintain = "无法维护此条信息。可能不存在此Id号或Id号重复。";
const std::string baseSetFirst = "必须先维护基本信息集，然后再维护其它信息集。";

using FormLoadIdentity = RegisterTest;

std::vector<std::string> expectedIdentityCheck(std::string_view id) {
    return {"SQL select a0101 from a01 where a00='" + std::string(id) + "'",
            "SQL select B0101 from B01 where A00='" + std::string(id) + "'"};
}

TEST_F(FormLoadIdentity, TheIdentityCheckAsksForThePersonAndThenForTheUnit) {
    addPerson(somePerson, "秦志明");
    run(4, somePerson, 2);
    const auto check = expectedIdentityCheck(somePerson);
    const auto found = std::ranges::search(journal.lines(), check);
    EXPECT_FALSE(found.empty());
}

TEST_F(FormLoadIdentity, APersonWithoutANameLeavesTheStripEmpty) {
    addPerson(somePerson, "秦志明");
    database.run("update A01 set A0101=null");
    run(4, somePerson, 2, [](frmPersonWh& shown) { EXPECT_EQ(shown.nameLabel().Caption(), ""); });
}

TEST_F(FormLoadIdentity, AUnitShowsItsName) {
    addUnit(someUnit, "第一测绘院");
    run(4, someUnit, 6, [](frmPersonWh& shown) {
        EXPECT_EQ(shown.nameLabel().Caption(), "第一测绘院");
        EXPECT_EQ(panelName(), "A1ctrlUserB01");
    });
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(FormLoadIdentity, AUnitWithoutANameLeavesTheStripEmpty) {
    addUnit(someUnit, "第一测绘院");
    database.run("update B01 set B0101=null");
    run(4, someUnit, 6, [](frmPersonWh& shown) { EXPECT_EQ(shown.nameLabel().Caption(), ""); });
}

TEST_F(FormLoadIdentity, AnIdentityOfAPersonAndOfAUnitShowsThePersonsName) {
    addUnit(somePerson, "第一测绘院");
    addPerson(somePerson, "秦志明");
    run(4, somePerson, 2, [](frmPersonWh& shown) { EXPECT_EQ(shown.nameLabel().Caption(), "秦志明"); });
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(FormLoadIdentity, APersonWithoutANameTakesPrecedenceOverAUnitAllTheSame) {
    addUnit(somePerson, "第一测绘院");
    addPerson(somePerson, "秦志明");
    database.run("update A01 set A0101=null");
    run(4, somePerson, 2, [](frmPersonWh& shown) { EXPECT_EQ(shown.nameLabel().Caption(), ""); });
}

TEST_F(FormLoadIdentity, TwoPersonsAndOneUnitOfAnIdentityShowTheUnitWithoutAMessage) {
    allowDuplicates();
    addPerson(somePerson, "秦志明");
    addPerson(somePerson, "赵敏");
    addUnit(somePerson, "第一测绘院");
    run(4, somePerson, 2, [](frmPersonWh& shown) { EXPECT_EQ(shown.nameLabel().Caption(), "第一测绘院"); });
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(FormLoadIdentity, AnUnknownIdentityIsToldAndTheWindowDoesNotStayOpen) {
    for (const std::int16_t operationType : std::array<std::int16_t, 4>{1, 2, 3, 4}) {
        IUserCtrl host;
        give(host, operationType, somePerson);
        person.forget();
        person.expectBox(nothingToMaintain, "信息维护");
        // The first item of the groups behind the first is refused on top of it.
        if (operationType != 4) person.expectBox(baseSetFirst, "信息维护");
        EXPECT_FALSE(runUnseen(host)) << operationType;
        EXPECT_FALSE(window().isLoaded()) << operationType;
        EXPECT_TRUE(person.opened().empty()) << operationType;
        EXPECT_EQ(person.boxes()[0].buttons, ui::Buttons::Ok);
    }
}

TEST_F(FormLoadIdentity, TwoRowsOfAnIdentityAreToldLikeNone) {
    allowDuplicates();
    addPerson(somePerson, "秦志明");
    addPerson(somePerson, "赵敏");
    IUserCtrl host;
    give(host, 4, somePerson);
    person.expectBox(nothingToMaintain, "信息维护");
    EXPECT_FALSE(runUnseen(host));
    EXPECT_FALSE(window().isLoaded());
}

TEST_F(FormLoadIdentity, TwoUnitsOfAnIdentityAreToldLikeNone) {
    allowDuplicates();
    addUnit(someUnit, "第一测绘院");
    addUnit(someUnit, "第二测绘院");
    IUserCtrl host;
    give(host, 4, someUnit, 6);
    person.expectBox(nothingToMaintain, "信息维护");
    EXPECT_FALSE(runUnseen(host));
}

TEST_F(FormLoadIdentity, TheLoadRunsOnBehindTheMessageOfTheIdentityCheck) {
    IUserCtrl host;
    give(host, 4, somePerson);
    host.setSkinPath("blue.skn");
    person.expectBox(nothingToMaintain, "信息维护");
    EXPECT_FALSE(runUnseen(host));
    const auto behind = journal.after("BOX [信息维护] " + nothingToMaintain);
    const auto at = [&](const std::string& line) { return std::ranges::find(behind, line); };
    ASSERT_NE(at("OpenGroup 2"), behind.end());
    ASSERT_NE(at("+ A1ctrlUserA01"), behind.end());
    ASSERT_NE(at("skin blue.skn"), behind.end());
    EXPECT_LT(at("OpenGroup 2"), at("+ A1ctrlUserA01"));
    EXPECT_LT(at("+ A1ctrlUserA01"), at("skin blue.skn"));
    EXPECT_EQ(behind.back(), "- A1ctrlUserA01");
}

TEST_F(FormLoadIdentity, ARunAfterARefusedIdentityIsLikeAnyOther) {
    addPerson(someUnit, "赵敏");
    IUserCtrl host;
    give(host, 4, somePerson);
    person.expectBox(nothingToMaintain, "信息维护");
    EXPECT_FALSE(runUnseen(host));
    run(4, someUnit, 2, [](frmPersonWh& shown) {
        EXPECT_EQ(shown.nameLabel().Caption(), "赵敏");
        EXPECT_EQ(panelName(), "A1ctrlUserA01");
        EXPECT_EQ(labOpt(), "当前操作：修改");
    });
}

} // namespace

} // namespace quillmere::test

#include "RegisterOnScreen.h"

#include "platform/Error.h"

#include <QDir>
#include <QLineEdit>

#include <set>

namespace quillmere::host {
namespace {

using test::clickOn;
using test::pressKey;
using test::typeKeys;
using test::widgetNamed;

class RegisterWindowTest : public RegisterOnScreen {};

TEST_F(RegisterWindowTest, OpensOnThePersonsWithTheFirstOneSelected) {
    open();
    EXPECT_EQ(rows(), 6);
    EXPECT_EQ(selectedName(), name(0));
    EXPECT_EQ(child<QLabel>("count").text(), QStringLiteral("共 6 人"));
    EXPECT_TRUE(test::focusComesTo("list"));
}

TEST_F(RegisterWindowTest, ADoubleClickMaintains) {
    addPerson("x", "祁望舒");
    addPerson("y", "甲");
    open();
    test::doubleClickRow(table(), "祁望舒");
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0].operation, Operation::Maintain);
    EXPECT_EQ(runs[0].personId, "x");
}

TEST_F(RegisterWindowTest, AnEmptyRegisterSaysSo) {
    connection->execute("delete from A01");
    open();
    EXPECT_TRUE(child<QLabel>("emptyTitle").isVisible());
    EXPECT_EQ(child<QLabel>("emptyTitle").text(), QStringLiteral("还没有人员"));
    EXPECT_FALSE(child<QToolButton>("maintain").isEnabled());
}

TEST_F(RegisterWindowTest, EachButtonHandsOverItsOperationAndTheSelectedPerson) {
    addPerson("x", "祁望舒", "04");
    open();
    const std::pair<const char*, int> buttons[] = {
        {"plan", 1}, {"progress", 2}, {"closing", 3}, {"maintain", 4}};
    for (const auto& [button, operation] : buttons) {
        runs.clear();
        clickOn(child<QToolButton>(button));
        ASSERT_EQ(runs.size(), 1U) << button;
        EXPECT_EQ(static_cast<int>(runs[0].operation), operation) << button;
        EXPECT_EQ(runs[0].sponsorshipType, 4) << button;
        EXPECT_EQ(runs[0].personId, "x") << button;
        EXPECT_EQ(runs[0].unitCode, "0104") << button;
        EXPECT_EQ(runs[0].photoPath, "/photos") << button;
        EXPECT_EQ(runs[0].connection, connection) << button;
    }
}

TEST_F(RegisterWindowTest, AUnitIsOpenedUnderTheCollectiveType) {
    open();
    clickOn(child<QWidget>("units"));
    EXPECT_EQ(rows(), 3);
    clickOn(child<QToolButton>("progress"));
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0].sponsorshipType, 6);
    EXPECT_EQ(runs[0].personId, cell("select A00 from B01 where B0199=3"));
}

TEST_F(RegisterWindowTest, ANewPersonHasAFreshIdentityThatIsLongEnough) {
    open();
    clickOn(child<QToolButton>("newRecord"));
    pressKey(Qt::Key_N, Qt::ControlModifier);
    ASSERT_EQ(runs.size(), 2U);
    for (const MaintenanceRun& run : runs) {
        EXPECT_EQ(static_cast<int>(run.operation), 0);
        EXPECT_GT(run.personId.size(), 32U);
        EXPECT_EQ(run.unitCode, "0104");
        EXPECT_EQ(run.photoPath, "/photos");
    }
    EXPECT_NE(runs[0].personId, runs[1].personId);
}

TEST_F(RegisterWindowTest, ChoosingTheCollectiveTypeMakesNewUnits) {
    open();
    EXPECT_EQ(child<QToolButton>("newRecord").text(), QStringLiteral("新建人员"));
    chooseType(QStringLiteral("集体项目资助"));
    EXPECT_EQ(child<QToolButton>("newRecord").text(), QStringLiteral("新建单位"));
    EXPECT_EQ(cell("select ZZType from ZZStyle"), "6");
    maintenance = [this](const MaintenanceRun& run) {
        connection->execute("insert into B01 (A00,B0199,B0101) values('" + run.personId + "',9000,'新单位')");
        return true;
    };
    pressKey(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(child<QLabel>("count").text(), QStringLiteral("共 4 个单位"));
    EXPECT_EQ(selectedName(), QStringLiteral("新单位"));
}

TEST_F(RegisterWindowTest, TheComponentMakesTheNewUnitUnderTheFreshIdentity) {
    setCollective();
    std::string identity;
    maintenance = [&](MaintenanceRun run) {
        run.photoPath = folder.filePath(QStringLiteral("photos")).toStdString();
        identity = run.personId;
        return openMaintenance(run);
    };
    open();
    screen.person.expectBox("保存成功!", "提示");
    screen.person.onForm(
        [](ui::Form& form) {
            ASSERT_TRUE(form.moveFocus(*form.findDeep("B01_B0101_v")));
            typeKeys("望舒桥梁研究院");
            clickOn(widgetNamed("TbMain_Save"));
            clickOn(widgetNamed("TbMain_Exit"));
        },
        "frmPersonWh");
    clickOn(child<QToolButton>("newRecord"));
    EXPECT_EQ(outcome(), QStringLiteral("saved")) << message().toStdString();
    EXPECT_EQ(selectedName(), QStringLiteral("望舒桥梁研究院"));
    EXPECT_EQ(cell("select B0101 from B01 where A00='" + identity + "'"), "望舒桥梁研究院");
    EXPECT_EQ(cell("select P0111 from P01 where A00='" + identity + "'"), "0104");
    EXPECT_TRUE(QDir(folder.filePath(QStringLiteral("photos"))).exists());
}

TEST_F(RegisterWindowTest, ATypeSetBySomeoneElseCountsForTheNextNewRecord) {
    open();
    setCollective();
    clickOn(child<QToolButton>("newRecord"));
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0].sponsorshipType, 6);
    EXPECT_EQ(child<QToolButton>("newRecord").text(), QStringLiteral("新建单位"));
}

TEST_F(RegisterWindowTest, ASavedNewPersonIsSelectedWhateverWasSearched) {
    addPerson("x", "祁望舒");
    open();
    searchFor("望舒");
    ASSERT_EQ(found().size(), 1);
    maintenance = [this](const MaintenanceRun&) {
        addPerson("made", "甲");
        return true;
    };
    pressKey(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(child<QLineEdit>("search").text(), QString());
    EXPECT_EQ(rows(), 8);
    EXPECT_EQ(selectedName(), QStringLiteral("甲"));
    EXPECT_EQ(outcome(), QStringLiteral("saved"));
}

TEST_F(RegisterWindowTest, ANewPersonThatWasNotSavedLeavesTheSelection) {
    open();
    table().selectRow(3);
    const QString before = selectedName();
    clickOn(child<QToolButton>("newRecord"));
    EXPECT_EQ(selectedName(), before);
    EXPECT_EQ(table().currentIndex().row(), 3);
}

TEST_F(RegisterWindowTest, TheListIsReadAgainWithTheSameSelection) {
    addPerson("x", "祁望舒");
    open();
    maintenance = [this](const MaintenanceRun&) {
        connection->execute("update A01 set A0101='祁连' where A00='x'");
        addPerson("y", "甲");
        return true;
    };
    clickOn(child<QToolButton>("maintain"));
    EXPECT_EQ(rows(), 8);
    EXPECT_EQ(name(0), QStringLiteral("甲"));
    EXPECT_EQ(selectedName(), QStringLiteral("祁连"));
}

TEST_F(RegisterWindowTest, WhatWasStoredWithoutTheSaveButtonIsShownToo) {
    addPerson("x", "祁望舒");
    open();
    maintenance = [this](const MaintenanceRun&) {
        connection->execute("update A01 set A0101='祁连' where A00='x'");
        return false;
    };
    clickOn(child<QToolButton>("maintain"));
    EXPECT_EQ(selectedName(), QStringLiteral("祁连"));
    EXPECT_EQ(outcome(), QStringLiteral("none"));
}

TEST_F(RegisterWindowTest, AfterADeletionTheRecordInItsPlaceIsSelected) {
    open();
    table().selectRow(2);
    const QString next = name(3);
    maintenance = [this](const MaintenanceRun& run) {
        connection->execute("delete from A01 where A00='" + run.personId + "'");
        return false;
    };
    clickOn(child<QToolButton>("maintain"));
    EXPECT_EQ(rows(), 5);
    EXPECT_EQ(selectedName(), next);
}

TEST_F(RegisterWindowTest, EachKindKeepsItsSelection) {
    open();
    table().selectRow(4);
    const QString person = selectedName();
    clickOn(child<QWidget>("units"));
    table().selectRow(2);
    const QString unit = selectedName();
    clickOn(child<QWidget>("persons"));
    EXPECT_EQ(selectedName(), person);
    clickOn(child<QWidget>("units"));
    EXPECT_EQ(selectedName(), unit);
}

TEST_F(RegisterWindowTest, TellsThatSomethingWasSaved) {
    addPerson("x", "祁望舒");
    open();
    maintenance = [](const MaintenanceRun&) { return true; };
    clickOn(child<QToolButton>("plan"));
    EXPECT_EQ(outcome(), QStringLiteral("saved"));
    EXPECT_EQ(message(), QStringLiteral("已保存 — 祁望舒：计划"));
}

TEST_F(RegisterWindowTest, TellsNumberAndDescriptionOfAFailure) {
    addPerson("x", "祁望舒");
    open();
    maintenance = [](const MaintenanceRun&) -> bool {
        throw Error(Failure::TypeMismatch, "类型不匹配", "Quillmere");
    };
    clickOn(child<QToolButton>("closing"));
    EXPECT_EQ(outcome(), QStringLiteral("failure"));
    EXPECT_EQ(message(), QStringLiteral("祁望舒：结题 — 错误 13：类型不匹配"));
    EXPECT_EQ(selectedName(), QStringLiteral("祁望舒"));
}

TEST_F(RegisterWindowTest, ALostDatabaseIsToldAndTheListStays) {
    open();
    connection->close();
    pressKey(Qt::Key_F5);
    EXPECT_EQ(outcome(), QStringLiteral("failure"));
    EXPECT_TRUE(message().startsWith(QStringLiteral("读取名单 — 错误 3709"))) << message().toStdString();
    EXPECT_EQ(rows(), 6);
}

TEST_F(RegisterWindowTest, FreshIdentitiesHaveThirtyEightCharacters) {
    std::set<std::string> made;
    for (int i = 0; i < 100; ++i)
        made.insert(freshIdentity());
    EXPECT_EQ(made.size(), 100U);
    for (const std::string& id : made)
        EXPECT_EQ(id.size(), 38U) << id;
}

} // namespace
} // namespace quillmere::host

#include "RegisterOnScreen.h"

#include "platform/Error.h"
#include "platform/data/ObservedConnections.h"

#include <QAccessible>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>

#include <QTest>

#include <latch>

namespace quillmere::host {
namespace {

using test::clickOn;
using test::pressKey;
using test::typeKeys;
using test::waitUntil;

class RegisterSearchWindowTest : public RegisterOnScreen {
protected:
    void addProject(const std::string& id, const std::string& stage) const {
        connection->execute("insert into P01 (A00,P0123) values('" + id + "','" + stage + "')");
    }
    void choose(const char* box, const QString& text) const {
        auto& choice = child<QComboBox>(box);
        ASSERT_GE(choice.findText(text), 0) << text.toStdString();
        choice.setCurrentIndex(choice.findText(text));
    }
    [[nodiscard]] QString title() const { return child<QLabel>("emptyTitle").text(); }
    [[nodiscard]] QString hint() const { return child<QLabel>("emptyHint").text(); }
};

TEST_F(RegisterSearchWindowTest, ASearchTypedNarrowsTheList) {
    addPerson("x", "祁望舒");
    addPerson("y", "祁连山");
    open();
    searchFor("祁");
    EXPECT_EQ(found().size(), 2);
    EXPECT_EQ(countText(), QStringLiteral("找到 2 人"));
    typeKeys("望");
    ASSERT_TRUE(waitUntil([this] { return rows() == 1; }));
    EXPECT_EQ(selectedName(), QStringLiteral("祁望舒"));
}

TEST_F(RegisterSearchWindowTest, InitialsAndUnitsAreFoundToo) {
    addPerson("x", "祁望舒");
    connection->execute("update A01 set A0114='石榴研究所' where A0101='祁望舒'");
    open();
    searchFor("qws");
    EXPECT_EQ(found(), QStringList({"祁望舒"}));
    pressKey(Qt::Key_Escape);
    searchFor("石榴");
    EXPECT_EQ(found(), QStringList({"祁望舒"}));
}

TEST_F(RegisterSearchWindowTest, ASlashInTheListGoesToTheSearch) {
    open();
    ASSERT_TRUE(test::focusComesTo("list"));
    QTest::keyClick(&table(), Qt::Key_Slash);
    EXPECT_TRUE(test::focusComesTo("search"));
}

TEST_F(RegisterSearchWindowTest, EscapeShowsTheWholeListAndKeepsTheSelection) {
    addPerson("x", "祁望舒");
    addPerson("y", "甲");
    open();
    searchFor("望舒");
    ASSERT_EQ(found().size(), 1);
    pressKey(Qt::Key_Escape);
    EXPECT_EQ(rows(), 8);
    EXPECT_EQ(selectedName(), QStringLiteral("祁望舒"));
    EXPECT_TRUE(test::focusComesTo("list"));
}

TEST_F(RegisterSearchWindowTest, EnterGoesToWhatIsFoundAndEnterThereMaintains) {
    addPerson("x", "祁望舒");
    addPerson("y", "甲");
    open();
    searchFor("望舒");
    // Before anything is found.
    pressKey(Qt::Key_Return);
    EXPECT_TRUE(runs.empty());
    ASSERT_TRUE(test::focusComesTo("list"));
    pressKey(Qt::Key_Return);
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0].operation, Operation::Maintain);
    EXPECT_EQ(runs[0].personId, "x");
}

TEST_F(RegisterSearchWindowTest, DownGoesToTheList) {
    addPerson("x", "祁望舒");
    open();
    searchFor("望舒");
    ASSERT_EQ(found().size(), 1);
    pressKey(Qt::Key_Down);
    EXPECT_TRUE(test::focusComesTo("list"));
    EXPECT_EQ(selectedName(), QStringLiteral("祁望舒"));
}

TEST_F(RegisterSearchWindowTest, ASearchWithoutResultSaysWhereItLookedAndHowToGoOn) {
    open();
    searchFor("zzz");
    EXPECT_TRUE(found().isEmpty());
    EXPECT_TRUE(child<QLabel>("emptyTitle").isVisible());
    EXPECT_EQ(title(), QStringLiteral("没有找到“zzz”"));
    EXPECT_EQ(hint(), QStringLiteral("查找了姓名、姓名拼音首字母、身份证号和工作单位"));
    for (const char* button : {"maintain", "plan", "progress", "closing"})
        EXPECT_FALSE(child<QToolButton>(button).isEnabled()) << button;
    EXPECT_TRUE(child<QToolButton>("newRecord").isEnabled());
    clickOn(child<QPushButton>("wayOn1"));
    EXPECT_FALSE(child<QLabel>("emptyTitle").isVisible());
    EXPECT_EQ(rows(), 6);
    EXPECT_TRUE(child<QToolButton>("maintain").isEnabled());
}

TEST_F(RegisterSearchWindowTest, WhatIsNoPersonMayBeAUnit) {
    connection->execute("update B01 set B0101='望舒桥梁院' where B0199=1");
    open();
    searchFor("望舒桥");
    EXPECT_TRUE(found().isEmpty());
    EXPECT_EQ(child<QPushButton>("wayOn2").text(), QStringLiteral("在单位中查找"));
    clickOn(child<QPushButton>("wayOn2"));
    ASSERT_TRUE(waitUntil([this] { return rows() == 1; }));
    EXPECT_EQ(name(0), QStringLiteral("望舒桥梁院"));
    EXPECT_EQ(countText(), QStringLiteral("找到 1 个单位"));
}

TEST_F(RegisterSearchWindowTest, TypeAndStageFilterTheList) {
    connection->execute("delete from A01");
    connection->execute("insert into A01 (A00,A0199,A0101,A0136) values('n',1,'丁','04')");
    addPerson("a", "甲", "04");
    addPerson("b", "乙", "04");
    addPerson("c", "丙", "05");
    addProject("a", "02");
    addProject("b", "03");
    addProject("c", "02");
    open();
    choose("types", QStringLiteral("科研项目资助（D类）"));
    EXPECT_EQ(found(), QStringList({"乙", "甲", "丁"}));
    choose("stages", QStringLiteral("在研"));
    ASSERT_TRUE(waitUntil([this] { return rows() == 1; }));
    EXPECT_EQ(name(0), QStringLiteral("甲"));
    choose("stages", QStringLiteral("申报"));
    ASSERT_TRUE(waitUntil([this] { return rows() == 0; }));
    EXPECT_TRUE(found().isEmpty());
    EXPECT_EQ(title(), QStringLiteral("没有符合条件的人员"));
    EXPECT_EQ(hint(), QStringLiteral("只看了“科研项目资助（D类）”、“申报”的人员"));
    pressKey(Qt::Key_Escape);
    EXPECT_EQ(rows(), 4);
}

TEST_F(RegisterSearchWindowTest, UnitsAreOfOneTypeAndOfferTheStageAlone) {
    open();
    EXPECT_TRUE(child<QComboBox>("types").isVisible());
    clickOn(child<QWidget>("units"));
    EXPECT_FALSE(child<QComboBox>("types").isVisible());
    EXPECT_TRUE(child<QComboBox>("stages").isVisible());
}

TEST_F(RegisterSearchWindowTest, AfterMaintenanceTheSearchIsDoneAgain) {
    addPerson("x", "祁望舒");
    addPerson("y", "祁连山");
    open();
    searchFor("祁");
    ASSERT_EQ(found().size(), 2);
    maintenance = [this](const MaintenanceRun& run) {
        connection->execute("update A01 set A0101='沈望舒' where A00='" + run.personId + "'");
        return true;
    };
    clickOn(child<QToolButton>("maintain"));
    EXPECT_TRUE(waitUntil([this] { return rows() == 1; }));
}

TEST_F(RegisterSearchWindowTest, ALongSearchShowsHowFarItIsAndCanBeStopped) {
    addPerson("x", "祁望舒");
    const auto goOn = std::make_shared<std::latch>(1);
    // Whatever becomes of the test, the search must come to its end.
    auto release = qScopeGuard([goOn] { goOn->count_down(); });
    const auto waiting = [this, goOn]() -> std::shared_ptr<data::Connection> {
        return std::make_shared<data::RecordingConnection>(connect(), [goOn](std::string_view statement) {
            if (statement.find("rowid between") != std::string_view::npos) goOn->wait();
        });
    };
    openWith(waiting);
    searchFor("祁");
    ASSERT_TRUE(waitUntil([this] { return child<QToolButton>("stop").isVisible(); }));
    EXPECT_TRUE(child<QWidget>("progress").isVisible());
    EXPECT_TRUE(countText().startsWith(QStringLiteral("正在查找"))) << countText().toStdString();
    // The window goes on meanwhile.
    clickOn(child<QToolButton>("stop"));
    EXPECT_FALSE(child<QToolButton>("stop").isVisible());
    EXPECT_TRUE(countText().startsWith(QStringLiteral("查找没有做完"))) << countText().toStdString();
    goOn->count_down();
    release.dismiss();
    pressKey(Qt::Key_F5);
    EXPECT_EQ(found(), QStringList({"祁望舒"}));
}

TEST_F(RegisterSearchWindowTest, ASearchThatFailsIsTold) {
    openWith([]() -> std::shared_ptr<data::Connection> {
        throw Error(Failure::TypeMismatch, "类型不匹配", "Quillmere");
    });
    searchFor("祁");
    ASSERT_TRUE(waitUntil([this] { return outcome() == u"failure"; }));
    EXPECT_EQ(message(), QStringLiteral("查找 — 错误 13：类型不匹配"));
    pressKey(Qt::Key_Escape);
    EXPECT_EQ(rows(), 6);
}

TEST_F(RegisterSearchWindowTest, AReadOnlyRegisterSaysSoAndOffersNothingNew) {
    connection->execute("delete from A01");
    open(true);
    EXPECT_TRUE(child<QLabel>("notice").isVisible());
    EXPECT_FALSE(child<QToolButton>("newRecord").isEnabled());
    EXPECT_EQ(hint(), QStringLiteral("这个登记库是只读的，不能新建记录"));
    pressKey(Qt::Key_N, Qt::ControlModifier);
    EXPECT_TRUE(runs.empty());
}

TEST_F(RegisterSearchWindowTest, RecordsOpenedLatelyAreOfferedAgain) {
    addPerson("x", "祁望舒");
    addPerson("y", "甲");
    open();
    EXPECT_FALSE(child<QToolButton>("recent").isEnabled());
    clickOn(child<QToolButton>("maintain"));
    test::doubleClickRow(table(), "祁望舒");
    window->close();
    window.reset();
    runs.clear();
    open();
    const QList<QAction*> offered = child<QToolButton>("recent").menu()->actions();
    ASSERT_EQ(offered.size(), 2);
    EXPECT_EQ(offered[0]->text(), QStringLiteral("祁望舒"));
    EXPECT_EQ(offered[1]->text(), QStringLiteral("甲"));
    // The menu closes first: it may be an assistive program that waits for it.
    offered[1]->trigger();
    EXPECT_TRUE(runs.empty());
    ASSERT_TRUE(waitUntil([this] { return runs.size() == 1; }));
    EXPECT_EQ(runs[0].personId, "y");
}

TEST_F(RegisterSearchWindowTest, ARecordOpenedLatelyThatIsGoneIsForgotten) {
    addPerson("x", "祁望舒");
    open();
    clickOn(child<QToolButton>("maintain"));
    connection->execute("delete from A01 where A00='x'");
    runs.clear();
    child<QToolButton>("recent").menu()->actions().front()->trigger();
    ASSERT_TRUE(waitUntil([this] { return message() == QStringLiteral("“祁望舒”已不在登记库里"); }));
    EXPECT_TRUE(runs.empty());
    EXPECT_FALSE(child<QToolButton>("recent").isEnabled());
}

TEST_F(RegisterSearchWindowTest, TheWindowOpensAsItWasLeft) {
    open();
    window->resize(1000, 620);
    table().horizontalHeader()->resizeSection(0, 133);
    clickOn(child<QWidget>("units"));
    table().horizontalHeader()->resizeSection(1, 144);
    window->close();
    window.reset();
    open();
    EXPECT_EQ(window->size(), QSize(1000, 620));
    EXPECT_EQ(table().columnWidth(0), 133);
    clickOn(child<QWidget>("units"));
    EXPECT_EQ(table().columnWidth(1), 144);
}

TEST_F(RegisterSearchWindowTest, EverythingThatTakesTheKeyboardOrAClickHasAName) {
    open();
    int seen = 0;
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        const bool works = widget->isVisible() && (widget->focusPolicy() != Qt::NoFocus ||
                                                   qobject_cast<QAbstractButton*>(widget) != nullptr);
        if (!works) continue;
        ++seen;
        const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(face, nullptr) << widget->objectName().toStdString();
        EXPECT_FALSE(face->text(QAccessible::Name).isEmpty())
            << widget->metaObject()->className() << ' ' << widget->objectName().toStdString();
    }
    EXPECT_GE(seen, 12);
}

} // namespace
} // namespace quillmere::host

#include "platform/ui/TreeView.h"
#include "qt/MaintenanceTest.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <array>

namespace quillmere::test {

namespace {

constexpr auto window = "frmPersonWh";
constexpr auto identity = "A01_A0103_v";
constexpr auto gender = "A01_A0104_v";
constexpr auto complaint = "身份证号长度应该为0或15或18位。";
constexpr auto errorTitle = "错误信息";

QAbstractButton& dotsOf(std::string_view field) {
    auto* button = widgetNamed(field).findChild<QAbstractButton*>();
    if (button == nullptr) throw std::runtime_error("no dots in " + std::string(field));
    return *button;
}

/// A clerk at work on the first panel of a person.
class ClerkTest : public MaintenanceTest {
protected:
    /// Opens the selector of the coded field by its dots and works there.
    void inSelector(std::string_view field, const std::function<void()>& work) {
        screen.person.onForm([work](ui::Form&) { work(); }, "fmGrpCod");
        clickOn(dotsOf(field));
        (void)windowNamed(window);
    }

    /// Types a number of an identity card that is too short, and stays in the field.
    static void spoilIdentity() {
        clickOn(widgetNamed(identity));
        ASSERT_TRUE(focusComesTo(identity));
        pressKey(Qt::Key_A, Qt::ControlModifier);
        typeKeys("12");
    }

    static std::string textOf(std::string_view field) {
        return widgetNamed<QLineEdit>(field).text().toStdString();
    }

    /// Tries to leave the spoiled field: one complaint, and the focus stays with the text.
    void expectOneComplaint(const std::string& how, const std::function<void()>& leave) {
        const std::size_t before = screen.person.boxes().size();
        const std::size_t opened = screen.person.seen().size();
        constexpr std::array answers{Press::EnterKey, Press::Ok, Press::EscapeKey};
        screen.person.expectBox(complaint, errorTitle, answers[before % answers.size()]);
        leave();
        EXPECT_TRUE(waitUntil([&] { return screen.person.boxes().size() > before; })) << how;
        (void)windowNamed(window);
        EXPECT_TRUE(focusComesTo(identity)) << how;
        settle();
        EXPECT_EQ(identity, focusedName()) << how;
        EXPECT_EQ(before + 1, screen.person.boxes().size()) << how;
        EXPECT_EQ(opened, screen.person.seen().size()) << how;
        EXPECT_EQ("12", textOf(identity)) << how;
    }
};

} // namespace

TEST_F(ClerkTest, EachWayOutOfASpoiledFieldIsRefusedWithOneMessage) {
    maintain([&](frmPersonWh&) {
        spoilIdentity();
        expectOneComplaint("Tab", [] { pressKey(Qt::Key_Tab); });
        expectOneComplaint("Shift+Tab", [] { pressKey(Qt::Key_Backtab, Qt::ShiftModifier); });
        expectOneComplaint("text box", [] { clickOn(widgetNamed("A01_A0101_v")); });
        expectOneComplaint("masked box", [] { clickOn(widgetNamed("A01_A0106_v")); });
        expectOneComplaint("coded field", [] { clickOn(widgetNamed(gender)); });
        expectOneComplaint("dots of a coded field", [] { clickOn(dotsOf(gender)); });
        expectOneComplaint("photo button", [] { clickOn(widgetNamed("cmdAddPhoto")); });
        expectOneComplaint("right button", [] { clickOn(widgetNamed("A01_A0101_v"), Qt::RightButton); });
        pressKey(Qt::Key_A, Qt::ControlModifier);
        typeKeys("110105780312001");
        pressKey(Qt::Key_Tab);
        EXPECT_TRUE(waitUntil([] { return focusedName() != identity; }));
    });
}

TEST_F(ClerkTest, SavingASpoiledFieldByItsShortcutComplainsOnceAndKeepsTheFocus) {
    maintain([&](frmPersonWh&) {
        spoilIdentity();
        expectOneComplaint("Alt+S", [] { pressShortcut(Qt::Key_S); });
    });
}

TEST_F(ClerkTest, TheMenuAsksOnceAboutUnsavedEditsAndNotAboutTheField) {
    maintain([&](frmPersonWh& form) {
        spoilIdentity();
        screen.person.expectBox("数据被修改且未保存，是否保存？", "信息维护", Press::No);
        clickMenu(1, 2);
        EXPECT_EQ("A1ctrlUserA02", form.GetUserCtrl()->name());
        EXPECT_EQ(1U, screen.person.boxes().size());
    });
}

TEST_F(ClerkTest, TheFrameClosesTheWindowOverASpoiledFieldWithoutAMessage) {
    maintain([&](frmPersonWh& form) {
        spoilIdentity();
        windowNamed(window).close();
        EXPECT_TRUE(waitUntil([&] { return !form.isOpen(); }));
    });
    EXPECT_TRUE(screen.person.boxes().empty());
}

TEST_F(ClerkTest, ADoubleClickOnABlueFieldOpensItsCodesAndEnterPicksOne) {
    maintain([&](frmPersonWh&) {
        screen.person.onForm(
            [](ui::Form&) {
                EXPECT_EQ("性别代码表", windowNamed("fmGrpCod").windowTitle().toStdString());
                ASSERT_TRUE(focusComesTo("tvGrpCod"));
                clickRow(widgetNamed<QTreeView>("tvGrpCod"), "未说明的性别");
                pressKey(Qt::Key_Return);
            },
            "fmGrpCod");
        doubleClickOn(widgetNamed(gender));
        (void)windowNamed(window);
        EXPECT_EQ("未说明的性别", textOf(gender));
        EXPECT_TRUE(focusComesTo(gender));
    });
}

TEST_F(ClerkTest, EscapeLeavesTheSelectorWithTheFieldAsItWas) {
    maintain([&](frmPersonWh&) {
        const std::string before = textOf(gender);
        inSelector(gender, [] {
            ASSERT_TRUE(focusComesTo("tvGrpCod"));
            pressKey(Qt::Key_Down);
            pressKey(Qt::Key_Escape);
        });
        EXPECT_EQ(before, textOf(gender));
        EXPECT_TRUE(focusComesTo(gender));
        EXPECT_EQ((std::vector<std::string>{"opened frmPersonWh", "opened fmGrpCod", "closed fmGrpCod"}),
                  screen.person.seen());
    });
}

TEST_F(ClerkTest, PartOfANameIsSearchedOnTheSecondPageAndEnterPicksTheRow) {
    maintain([&](frmPersonWh&) {
        inSelector(gender, [] {
            auto& bar = widgetNamed<QTabBar>("Tab1_bar");
            QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(1).center());
            clickOn(widgetNamed("txtDm"));
            typeKeys("未");
            pressKey(Qt::Key_Return);
            ASSERT_TRUE(focusComesTo("lstDmCpt"));
            const auto& list = widgetNamed<QListView>("lstDmCpt");
            EXPECT_TRUE(waitUntil([&] { return list.model()->rowCount() == 2; }));
            pressKey(Qt::Key_Down);
            pressKey(Qt::Key_Return);
        });
        EXPECT_EQ("未说明的性别", textOf(gender));
    });
}

TEST_F(ClerkTest, SearchingWithoutAChoiceTellsAndStaysOnTheSecondPage) {
    maintain([&](frmPersonWh&) {
        inSelector(gender, [this] {
            auto& bar = widgetNamed<QTabBar>("Tab1_bar");
            QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(1).center());
            screen.person.expectBox("请选择代码。", "");
            clickOn(widgetNamed("cmdOK"));
            EXPECT_TRUE(windowNamed("fmGrpCod").isActiveWindow());
            EXPECT_EQ(1, bar.currentIndex());
            clickOn(widgetNamed("cmdCancel"));
        });
    });
}

TEST_F(ClerkTest, ALargeCodeTableOpensAtOnceAndScrollsThroughAllItsNodes) {
    constexpr int rowHeight = 24;
    constexpr qint64 atOnce = 3000; // milliseconds, on the slowest of machines and builds
    maintain([&](frmPersonWh&) {
        QElapsedTimer clock;
        clock.start();
        screen.person.onForm(
            [&](ui::Form& form) {
                auto& view = widgetNamed<QTreeView>("tvGrpCod");
                EXPECT_LT(clock.elapsed(), atOnce);
                auto& tree = *static_cast<ui::TreeView*>(form.findDeep("tvGrpCod"));
                EXPECT_GT(tree.nodes().size(), 3000U);
                for (const auto& node : tree.nodes())
                    tree.setExpanded(*node, true);
                settle();
                std::size_t rows = 0;
                QModelIndex last;
                for (QModelIndex index = view.model()->index(0, 0); index.isValid();
                     index = view.indexBelow(index)) {
                    ++rows;
                    ASSERT_EQ(rowHeight, view.visualRect(index).height());
                    ASSERT_TRUE(!last.isValid() ||
                                view.visualRect(index).top() == view.visualRect(last).bottom() + 1);
                    last = index;
                }
                EXPECT_EQ(tree.nodes().size(), rows);
                pressKey(Qt::Key_End);
                EXPECT_EQ(last.data().toString().toStdString(), tree.SelectedItem()->text);
                EXPECT_TRUE(view.viewport()->rect().contains(view.visualRect(view.currentIndex())));
                pressKey(Qt::Key_Escape);
            },
            "fmGrpCod");
        clickOn(dotsOf("A01_A0109_v"));
    });
}

TEST_F(ClerkTest, NothingCanBePastedIntoABlueFieldByItsMenu) {
    maintain([&](frmPersonWh&) {
        const std::string before = textOf(gender);
        QApplication::clipboard()->setText(QStringLiteral("男男"));
        auto& field = widgetNamed<QLineEdit>(gender);
        clickOn(field);
        QContextMenuEvent asked(QContextMenuEvent::Mouse, field.rect().center(),
                                field.mapToGlobal(field.rect().center()));
        QApplication::sendEvent(&field, &asked);
        ASSERT_TRUE(waitUntil([] { return QApplication::activePopupWidget() != nullptr; }));
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(nullptr, menu);
        int writing = 0;
        for (const QAction* line : menu->actions()) {
            const bool writes = line->text().startsWith(QStringLiteral("粘贴")) ||
                                line->text().startsWith(QStringLiteral("剪切")) ||
                                line->text().startsWith(QStringLiteral("删除"));
            writing += writes ? 1 : 0;
            EXPECT_FALSE(writes && line->isEnabled()) << line->text().toStdString();
        }
        EXPECT_EQ(3, writing);
        menu->close();
        EXPECT_EQ(before, textOf(gender));
        EXPECT_TRUE(focusComesTo(gender));
    });
}

TEST_F(ClerkTest, TheKeyboardChoosesBetweenTheButtonsOfAQuestion) {
    maintain([&](frmPersonWh& form) {
        clickOn(widgetNamed("A01_A0101_v"));
        typeKeys("甲");
        screen.person.expectBox("数据被修改但未保存，是否保存？", "信息维护", Press::Nothing);
        QTimer::singleShot(0, [] {
            (void)windowNamed("messageBox");
            EXPECT_TRUE(focusComesTo("btnYes"));
            pressKey(Qt::Key_Tab);
            EXPECT_TRUE(focusComesTo("btnNo"));
            pressKey(Qt::Key_Left);
            EXPECT_TRUE(focusComesTo("btnYes"));
            pressKey(Qt::Key_Right);
            EXPECT_TRUE(focusComesTo("btnNo"));
            pressKey(Qt::Key_Return);
        });
        clickOn(widgetNamed("TbMain_Exit"));
        EXPECT_FALSE(form.isOpen());
    });
    EXPECT_EQ(1U, screen.person.boxes().size());
}

TEST_F(ClerkTest, AfterSavingTheFocusIsInTheFirstField) {
    maintain([&](frmPersonWh&) {
        clickOn(widgetNamed("A01_A0110_v"));
        pressKey(Qt::Key_A, Qt::ControlModifier);
        typeKeys("北京大学");
        screen.person.expectBox("保存成功!", "提示", Press::EscapeKey);
        clickOn(widgetNamed("TbMain_Save"));
        EXPECT_TRUE(windowNamed(window).isActiveWindow());
        EXPECT_TRUE(focusComesTo("A01_A0101_v"));
        settle();
        EXPECT_EQ("A01_A0101_v", focusedName());
        EXPECT_EQ("北京大学", textOf("A01_A0110_v"));
    });
}

} // namespace quillmere::test

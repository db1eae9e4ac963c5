#include "adapters/qt/FileChooser.h"
#include "platform/ui/CommandButton.h"
#include "platform/ui/Form.h"
#include "platform/ui/Image.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/Skin.h"
#include "platform/ui/TabStrip.h"
#include "platform/ui/TextBox.h"
#include "platform/ui/TreeView.h"
#include "qt/RealPerson.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QTreeView>

namespace quillmere::test {

namespace {

/// Two pages: a tree, and a box over a list.
class PickForm : public ui::Form {
public:
    PickForm()
        : Form("frmPick", "选择")
        , tabs(add<ui::TabStrip>("Tab1", std::vector<std::string>{"浏览", "查询"}))
        , tree(add<ui::TreeView>("tvCodes"))
        , box(add<ui::TextBox>("txtPart"))
        , list(add<ui::ListBox>("lstNames"))
        , ok(add<ui::CommandButton>("cmdOK", "确定"))
        , skin(add<ui::Skin>("Skin1")) {
        tree.setContainer(&tabs);
        box.setContainer(&tabs);
        list.setContainer(&tabs);
        box.setPage(1);
        list.setPage(1);
        auto& north = tree.add(nullptr, "k1", "北京市");
        tree.add(&north, "k11", "东城区");
        tree.add(nullptr, "k2", "天津市");
        list.setItems({"一", "二", "三"});
    }

    ui::TabStrip& tabs;
    ui::TreeView& tree;
    ui::TextBox& box;
    ui::ListBox& list;
    ui::CommandButton& ok;
    ui::Skin& skin;
};

class DialogTest : public testing::Test {
protected:
    void run(const std::function<void()>& work) {
        screen.show(form, [&](ui::Form&) { work(); });
    }

    /// Answers a message box and tells which button it was.
    ui::Answer answer(ui::Buttons buttons, Press press) {
        screen.person.expectBox("正文", "标题", press);
        return screen.toolkit.desktop().msgBox({"正文", "标题", buttons, ui::Icon::Question});
    }

    PickForm form;
    Screen screen;
};

} // namespace

TEST_F(DialogTest, AClickOnATabBringsItsPage) {
    run([&] {
        EXPECT_TRUE(widgetNamed("tvCodes").isVisible());
        auto& bar = widgetNamed<QTabBar>("Tab1_bar");
        QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(1).center());
        EXPECT_EQ(1, form.tabs.Tab());
        EXPECT_TRUE(widgetNamed("lstNames").isVisible());
        form.tabs.setTab(0);
        EXPECT_TRUE(widgetNamed("tvCodes").isVisible());
    });
}

TEST_F(DialogTest, ATreeOpensAndSelectsAsTheModelDoes) {
    run([&] {
        auto& view = widgetNamed<QTreeView>("tvCodes");
        clickRow(view, "北京市");
        ASSERT_TRUE(focusComesTo("tvCodes"));
        EXPECT_EQ("k1", form.tree.SelectedItem()->key);
        pressKey(Qt::Key_Right);
        EXPECT_TRUE(view.isExpanded(view.currentIndex()));
        pressKey(Qt::Key_Down);
        EXPECT_EQ("k11", form.tree.SelectedItem()->key);
        EXPECT_EQ("东城区", view.currentIndex().data().toString().toStdString());
        pressKey(Qt::Key_End);
        EXPECT_EQ("k2", form.tree.SelectedItem()->key);
        form.tree.setSelectedItem(form.tree.find("k1"));
        EXPECT_EQ("北京市", view.currentIndex().data().toString().toStdString());
    });
}

TEST_F(DialogTest, ADoubleClickOnANodeIsTold) {
    std::vector<std::string> chosen;
    form.tree.DblClick.connect([&] { chosen.push_back(form.tree.SelectedItem()->key); });
    run([&] { doubleClickRow(widgetNamed<QTreeView>("tvCodes"), "天津市"); });
    EXPECT_EQ(std::vector<std::string>{"k2"}, chosen);
}

TEST_F(DialogTest, AListShowsItsTextsAndSelectsByMouseAndKeys) {
    form.tabs.setTab(1);
    run([&] {
        auto& view = widgetNamed<QListView>("lstNames");
        clickRow(view, "二");
        EXPECT_EQ("二", form.list.Text());
        ASSERT_TRUE(focusComesTo("lstNames"));
        pressKey(Qt::Key_Down);
        EXPECT_EQ("三", form.list.Text());
        EXPECT_EQ(2, view.currentIndex().row());
        form.list.setItems({"四"});
        EXPECT_TRUE(waitUntil([&] { return view.model()->rowCount() == 1; }));
        EXPECT_FALSE(view.currentIndex().isValid());
    });
}

TEST_F(DialogTest, AMessageBoxTellsWhichButtonWasPressed) {
    EXPECT_EQ(ui::Answer::Ok, answer(ui::Buttons::Ok, Press::Ok));
    EXPECT_EQ(ui::Answer::Ok, answer(ui::Buttons::Ok, Press::EnterKey));
    EXPECT_EQ(ui::Answer::Ok, answer(ui::Buttons::Ok, Press::EscapeKey));
    EXPECT_EQ(ui::Answer::Yes, answer(ui::Buttons::YesNo, Press::Yes));
    EXPECT_EQ(ui::Answer::No, answer(ui::Buttons::YesNo, Press::No));
    EXPECT_EQ(ui::Answer::Yes, answer(ui::Buttons::YesNo, Press::YesKey));
    EXPECT_EQ(ui::Answer::No, answer(ui::Buttons::YesNo, Press::NoKey));
    EXPECT_EQ(ui::Answer::Yes, answer(ui::Buttons::YesNo, Press::EnterKey));
}

TEST_F(DialogTest, LeavingAYesNoBoxIsNo) {
    EXPECT_EQ(ui::Answer::No, answer(ui::Buttons::YesNo, Press::EscapeKey));
}

TEST_F(DialogTest, AMessageBoxShowsTextTitleAndChineseButtons) {
    QTimer::singleShot(0, [&] {
        EXPECT_EQ("标题", windowNamed("messageBox").windowTitle().toStdString());
        EXPECT_EQ("正文", widgetNamed<QLabel>("messageText").text().toStdString());
        EXPECT_EQ("是", widgetNamed<QPushButton>("btnYes").text().toStdString());
        EXPECT_EQ("否", widgetNamed<QPushButton>("btnNo").text().toStdString());
        EXPECT_TRUE(widgetNamed("btnYes").hasFocus());
    });
    (void)answer(ui::Buttons::YesNo, Press::No);
}

TEST_F(DialogTest, AMessageWithoutATitleHasThatOfTheWindowBelow) {
    run([&] {
        QTimer::singleShot(0,
                           [] { EXPECT_EQ("选择", windowNamed("messageBox").windowTitle().toStdString()); });
        screen.person.expectBox("正文", "");
        (void)screen.toolkit.desktop().msgBox({"正文", ""});
    });
}

TEST_F(DialogTest, ALongMessageIsWrappedAndShownWhole) {
    std::string text;
    for (int i = 0; i < 60; ++i)
        text += "很长的消息";
    QTimer::singleShot(0, [&] {
        const auto& label = widgetNamed<QLabel>("messageText");
        EXPECT_LT(label.window()->width(), 700);
        EXPECT_GE(label.height(), label.heightForWidth(label.width()));
    });
    screen.person.expectBox(text, "标题");
    (void)screen.toolkit.desktop().msgBox({text, "标题"});
}

TEST_F(DialogTest, ThePatternsOfAFileDialogAreWrittenOnce) {
    EXPECT_EQ((QStringList{QStringLiteral("图片 (*.jpg *.jpeg)"), QStringLiteral("所有文件 (*.*)")}),
              qt::nameFilters(QStringLiteral("图片(*.jpg;*.jpeg)|*.jpg;*.jpeg|所有文件|*.*")));
}

TEST_F(DialogTest, AFileDialogReturnsTheChosenPathOrNone) {
    const QString path = QDir::temp().filePath(QStringLiteral("quillmere-file-dialog-test.jpg"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    const ui::FileDialog dialog{"图片|*.jpg", path.toStdString()};
    QTimer::singleShot(0, [&] {
        (void)windowNamed("fileDialog");
        clickOn(widgetNamed("fileNameEdit"));
        typeKeys(path.toStdString());
        pressKey(Qt::Key_Return);
    });
    EXPECT_EQ(path.toStdString(), screen.toolkit.desktop().openFile(dialog));
    QTimer::singleShot(0, [&] {
        (void)windowNamed("fileDialog");
        pressKey(Qt::Key_Escape);
    });
    EXPECT_EQ("", screen.toolkit.desktop().openFile(dialog));
    file.remove();
}

TEST_F(DialogTest, APictureIsReadAnewEachTimeItIsSet) {
    const QString path = QDir::temp().filePath(QStringLiteral("quillmere-picture-test.jpg"));
    auto& image = form.add<ui::Image>("imgOne");
    const auto paint = [&](const QColor& colour) {
        QImage picture(60, 80, QImage::Format_RGB32);
        picture.fill(colour);
        EXPECT_TRUE(picture.save(path, "PNG"));
        image.setPicture(path.toStdString());
    };
    const auto middle = [] {
        const QImage shown = widgetNamed("imgOne").grab().toImage();
        return shown.pixelColor(shown.width() / 2, shown.height() / 2);
    };
    run([&] {
        paint(Qt::red);
        EXPECT_EQ(QColor(Qt::red), middle());
        paint(Qt::blue);
        EXPECT_EQ(QColor(Qt::blue), middle());
        image.setPicture("");
        EXPECT_NE(QColor(Qt::blue), middle());
    });
    QFile::remove(path);
}

TEST_F(DialogTest, ASkinIsPutOnTopOfTheLookAndAMissingOneChangesNothing) {
    const QString path = QDir::temp().filePath(QStringLiteral("quillmere-skin-test.qss"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("QPushButton { min-height: 70px; }");
    file.close();
    run([&] {
        const int plain = widgetNamed("cmdOK").sizeHint().height();
        form.skin.LoadSkin("/no/such/skin.qss");
        form.skin.ApplySkin();
        EXPECT_EQ(plain, widgetNamed("cmdOK").sizeHint().height());
        form.skin.LoadSkin(path.toStdString());
        form.skin.ApplySkin();
        EXPECT_GE(widgetNamed("cmdOK").sizeHint().height(), 70);
    });
    file.remove();
}

} // namespace quillmere::test

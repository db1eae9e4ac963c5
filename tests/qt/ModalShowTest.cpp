#include "platform/Error.h"
#include "platform/ui/CommandButton.h"
#include "platform/ui/Form.h"
#include "platform/ui/TextBox.h"
#include "qt/RealPerson.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QInputMethodEvent>
#include <QStyle>
#include <QTimer>

#include <array>
#include <thread>

namespace quillmere::test {

namespace {

class ShowForm : public ui::Form {
public:
    explicit ShowForm(const std::string& name = "frmShow")
        : Form(name, "窗口")
        , box(add<ui::TextBox>("txtBox"))
        , button(add<ui::CommandButton>("cmdGo", "执行")) {}

    ui::TextBox& box;
    ui::CommandButton& button;
    int unloaded = 0;

protected:
    void onUnload() override { ++unloaded; }
};

/// A host's own application, alone for as long as it lives.
struct HostApplication {
    HostApplication() { qt::Toolkit::shutdown(); }

    int count = 3;
    std::array<char, 5> program{"host"};
    std::array<char, 10> option{"-platform"};
    std::array<char, 10> platform{"offscreen"};
    std::array<char*, 4> arguments{program.data(), option.data(), platform.data(), nullptr};
};

std::optional<int> failureOfToolkit() {
    return failureOf([] { const qt::Toolkit toolkit; });
}

} // namespace

TEST(ModalShowTest, MakesAnApplicationOfItsOwnAndKeepsItForTheNextToolkit) {
    qt::Toolkit::shutdown();
    ASSERT_EQ(nullptr, QCoreApplication::instance());
    ShowForm form;
    {
        Screen screen;
        screen.show(form, [](ui::Form&) {});
    }
    QCoreApplication* made = QCoreApplication::instance();
    ASSERT_NE(nullptr, made);
    {
        Screen screen;
        screen.show(form, [](ui::Form&) {});
    }
    EXPECT_EQ(made, QCoreApplication::instance());
    EXPECT_EQ(2, form.unloaded);
    qt::Toolkit::shutdown();
    EXPECT_EQ(nullptr, QCoreApplication::instance());
}

TEST(ModalShowTest, WorksInTheApplicationOfTheHostAndLeavesIt) {
    HostApplication host;
    {
        QApplication application(host.count, host.arguments.data());
        const bool quits = QApplication::quitOnLastWindowClosed();
        const QString style = QApplication::style()->objectName();
        {
            ShowForm form;
            Screen screen;
            screen.show(form, [](ui::Form& shown) { EXPECT_TRUE(shown.isOpen()); });
            EXPECT_EQ(1, form.unloaded);
        }
        qt::Toolkit::shutdown();
        EXPECT_EQ(&application, QCoreApplication::instance());
        EXPECT_EQ(quits, QApplication::quitOnLastWindowClosed());
        EXPECT_EQ(style, QApplication::style()->objectName());
        EXPECT_EQ("", application.styleSheet().toStdString());
    }
    EXPECT_EQ(nullptr, QCoreApplication::instance());
}

TEST(ModalShowTest, WorksInsideTheRunningLoopOfTheHostAndLeavesItRunning) {
    HostApplication host;
    QApplication application(host.count, host.arguments.data());
    bool shown = false;
    bool ranOn = false;
    QTimer::singleShot(0, &application, [&] {
        ShowForm form;
        Screen screen;
        screen.show(form, [&](ui::Form&) { shown = true; });
        QTimer::singleShot(0, &application, [&] {
            ranOn = true;
            QApplication::exit(7);
        });
    });
    EXPECT_EQ(7, QApplication::exec());
    EXPECT_TRUE(shown);
    EXPECT_TRUE(ranOn);
}

TEST(ModalShowTest, ASecondShowWorksLikeTheFirst) {
    ShowForm form;
    Screen screen;
    int shows = 0;
    for (int i = 0; i < 3; ++i) {
        screen.show(form, [&](ui::Form&) {
            ++shows;
            clickOn(widgetNamed("txtBox"));
            ASSERT_TRUE(focusComesTo("txtBox"));
            typeKeys("x");
        });
    }
    EXPECT_EQ(3, shows);
    EXPECT_EQ(3, form.unloaded);
    EXPECT_EQ("xxx", form.box.Text());
}

TEST(ModalShowTest, NoWindowOfItsOwnQuitsTheApplicationWhenItCloses) {
    ShowForm form;
    Screen screen;
    screen.show(form, [&](ui::Form&) {
        EXPECT_FALSE(windowNamed("frmShow").testAttribute(Qt::WA_QuitOnClose));
        EXPECT_EQ(Qt::ApplicationModal, windowNamed("frmShow").windowModality());
        QWidget* box = nullptr;
        QTimer::singleShot(0, [&] {
            box = QApplication::activeWindow();
            EXPECT_FALSE(box->testAttribute(Qt::WA_QuitOnClose));
        });
        screen.person.expectBox("正文", "标题");
        (void)screen.toolkit.desktop().msgBox({"正文", "标题"});
        EXPECT_NE(nullptr, box);
    });
    EXPECT_FALSE(QApplication::quitOnLastWindowClosed());
    EXPECT_FALSE(QCoreApplication::closingDown());
}

TEST(ModalShowTest, TheApplicationsQuittingClosesTheForm) {
    ShowForm form;
    Screen screen;
    screen.show(form, [](ui::Form&) {
        QApplication::quit();
        settle();
    });
    EXPECT_EQ(1, form.unloaded);
    EXPECT_FALSE(form.isOpen());
}

TEST(ModalShowTest, AFailureInAnEventComesOutOfTheShow) {
    ShowForm form;
    Screen screen;
    form.button.Click.connect([] { throw Error(Failure::Overflow); });
    EXPECT_EQ(number(Failure::Overflow),
              failureOf([&] { screen.show(form, [](ui::Form&) { clickOn(widgetNamed("cmdGo")); }); }));
    EXPECT_FALSE(form.isOpen());
    EXPECT_EQ(1, form.unloaded);
    EXPECT_EQ((std::vector<std::string>{"opened frmShow", "closed frmShow"}), screen.person.seen());
}

TEST(ModalShowTest, AFailureInAKeyComesOutOfTheShow) {
    ShowForm form;
    Screen screen;
    form.box.Change.connect([] { throw Error(Failure::TypeMismatch); });
    EXPECT_EQ(number(Failure::TypeMismatch), failureOf([&] {
                  screen.show(form, [](ui::Form&) {
                      clickOn(widgetNamed("txtBox"));
                      typeKeys("x");
                  });
              }));
}

TEST(ModalShowTest, AFailureWhileAMessageBoxIsOpenComesOutOfTheMessageBox) {
    ShowForm form;
    Screen screen;
    form.box.Change.connect([] { throw Error(Failure::NoCurrentRecord); });
    std::optional<int> failure;
    form.button.Click.connect([&] {
        QWidget& editor = widgetNamed("txtBox");
        QTimer::singleShot(0, &editor, [&] {
            // What the system itself delivers does not ask which window is in front.
            QInputMethodEvent commit;
            commit.setCommitString(QStringLiteral("字"));
            form.box.SetFocus();
            QApplication::sendEvent(&editor, &commit);
        });
        screen.person.expectBox("正文", "标题");
        failure = failureOf([&] { (void)screen.toolkit.desktop().msgBox({"正文", "标题"}); });
    });
    screen.show(form, [](ui::Form& shown) {
        clickOn(widgetNamed("cmdGo"));
        EXPECT_TRUE(shown.isOpen());
    });
    EXPECT_EQ(number(Failure::NoCurrentRecord), failure);
}

TEST(ModalShowTest, AfterAFailureTheNextShowWorks) {
    ShowForm form;
    Screen screen;
    bool fail = true;
    form.button.Click.connect([&] {
        if (fail) throw std::runtime_error("first");
    });
    EXPECT_THROW(screen.show(form, [](ui::Form&) { clickOn(widgetNamed("cmdGo")); }), std::runtime_error);
    fail = false;
    screen.show(form, [](ui::Form&) { clickOn(widgetNamed("cmdGo")); });
    EXPECT_EQ(2, form.unloaded);
}

TEST(ModalShowTest, AFailureOfADialogReachesTheEventThatOpenedIt) {
    ShowForm form;
    ShowForm dialog("frmDialog");
    Screen screen;
    std::string caught;
    dialog.button.Click.connect([] { throw std::runtime_error("in the dialog"); });
    form.button.Click.connect([&] {
        try {
            screen.show(dialog, [](ui::Form&) { clickOn(widgetNamed("cmdGo")); });
        } catch (const std::runtime_error& failure) {
            caught = failure.what();
        }
    });
    screen.show(form, [&](ui::Form& shown) {
        clickOn(widgetNamed("cmdGo"));
        EXPECT_EQ("in the dialog", caught);
        EXPECT_TRUE(shown.isOpen());
        EXPECT_EQ("frmShow", windowNamed("frmShow").objectName().toStdString());
    });
    EXPECT_EQ("in the dialog", caught);
}

TEST(ModalShowTest, TheWindowBelowComesBackToTheFrontAfterADialog) {
    ShowForm form;
    ShowForm dialog("frmDialog");
    Screen screen;
    form.button.Click.connect([&] { screen.show(dialog, [](ui::Form&) {}); });
    screen.show(form, [&](ui::Form&) {
        clickOn(widgetNamed("cmdGo"));
        EXPECT_TRUE(windowNamed("frmShow").isActiveWindow());
        EXPECT_TRUE(focusComesTo("cmdGo"));
    });
    EXPECT_EQ((std::vector<std::string>{"opened frmShow", "opened frmDialog", "closed frmDialog",
                                        "closed frmShow"}),
              screen.person.seen());
}

TEST(ModalShowTest, EscapeLeavesADialog) {
    ShowForm form;
    Screen screen;
    screen.show(form, [](ui::Form& shown) {
        pressKey(Qt::Key_Escape);
        EXPECT_FALSE(shown.isOpen());
    });
    EXPECT_EQ(1, form.unloaded);
}

TEST(ModalShowTest, AFormThatUnloadsItselfEndsTheShow) {
    ShowForm form;
    Screen screen;
    form.button.Click.connect([&] { form.unload(); });
    screen.show(form, [](ui::Form& shown) {
        clickOn(widgetNamed("cmdGo"));
        EXPECT_FALSE(shown.isOpen());
    });
    EXPECT_EQ(1, form.unloaded);
}

TEST(ModalShowTest, AnotherThreadIsRefused) {
    ShowForm form;
    Screen screen;
    std::optional<int> show;
    std::optional<int> message;
    std::thread other([&] {
        show = failureOf([&] { screen.toolkit.desktop().showModal(form); });
        message = failureOf([&] { (void)screen.toolkit.desktop().msgBox({"正文", "标题"}); });
    });
    other.join();
    EXPECT_EQ(number(Failure::InvalidCall), show);
    EXPECT_EQ(number(Failure::InvalidCall), message);
}

TEST(ModalShowTest, AToolkitOnAnotherThreadIsRefused) {
    { const Screen screen; }
    std::optional<int> failure;
    std::thread other([&] { failure = failureOfToolkit(); });
    other.join();
    EXPECT_EQ(number(Failure::InvalidCall), failure);
}

TEST(ModalShowTest, ABareCoreApplicationIsRefused) {
    HostApplication host;
    int one = 1;
    const QCoreApplication application(one, host.arguments.data());
    EXPECT_EQ(number(Failure::InvalidCall), failureOfToolkit());
}

TEST(ModalShowTest, ASecondToolkitIsRefusedWhileOneIsInUse) {
    const Screen screen;
    EXPECT_EQ(number(Failure::InvalidCall), failureOfToolkit());
    EXPECT_EQ(number(Failure::InvalidCall), failureOf([] { qt::Toolkit::shutdown(); }));
}

} // namespace quillmere::test

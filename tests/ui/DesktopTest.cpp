#include "platform/ui/Desktop.h"

#include "platform/ui/CommandButton.h"
#include "platform/ui/TextBox.h"
#include "support/FailureNumber.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace quillmere::ui {
namespace {

using Log = std::vector<std::string>;

/// Notes its life, and does at each step what the test asks for.
class LivingForm final : public Form {
public:
    LivingForm(std::string name, Log& log) : Form(std::move(name), "caption"), log_(log) {}

    std::function<void()> atLoad;
    std::function<void()> atResize;
    std::function<void()> atActivate;
    std::function<void()> atUnload;
    std::function<void(char32_t&)> atKeyPreview;

protected:
    void onLoad() override { step("load", atLoad); }
    void onResize() override { step("resize", atResize); }
    void onActivate() override { step("activate", atActivate); }
    void onUnload() override { step("unload", atUnload); }
    void onKeyPreview(char32_t& character) override {
        if (atKeyPreview) atKeyPreview(character);
    }

private:
    void step(const std::string& what, const std::function<void()>& then) {
        log_.push_back(what + " " + name());
        if (then) then();
    }

    Log& log_;
};

class ViewOfForm final : public FormView {
public:
    explicit ViewOfForm(Log& log) : log_(log) {}
    void captionChanged() override { log_.push_back("caption"); }
    void focusMoved(Control* now) override {
        log_.push_back(now == nullptr ? "focus none" : "focus " + now->name());
    }
    void closed() override { log_.push_back("closed"); }

private:
    Log& log_;
};

class DesktopTest : public testing::Test {
protected:
    test::ScriptedPerson person;
    Log log;
    LivingForm form{"frmA", log};
};

TEST_F(DesktopTest, AModalFormIsLoadedThenShownThenClosed) {
    person.show(form, [&](Form&) {
        log.push_back("work");
        EXPECT_TRUE(form.isLoaded());
        EXPECT_TRUE(form.isOpen());
    });
    EXPECT_EQ(log, (Log{"load frmA", "resize frmA", "activate frmA", "work", "unload frmA"}));
    EXPECT_FALSE(form.isLoaded());
    EXPECT_FALSE(form.isOpen());
}

TEST_F(DesktopTest, AFormIsNotOpenWhileItLoads) {
    form.atLoad = [&] {
        EXPECT_TRUE(form.isLoaded());
        EXPECT_FALSE(form.isOpen());
        EXPECT_EQ(desktop().front(), nullptr);
    };
    person.show(form, [](Form&) {});
}

TEST_F(DesktopTest, AFormThatUnloadsItselfInLoadIsNotShown) {
    form.atLoad = [&] { form.unload(); };
    desktop().showModal(form);
    EXPECT_EQ(log, (Log{"load frmA", "unload frmA"}));
    EXPECT_EQ(person.opened(), Log{});
    EXPECT_EQ(desktop().front(), nullptr);
}

TEST_F(DesktopTest, AFormThatUnloadsItselfWhileItIsShownIsNotWorkedOn) {
    form.atActivate = [&] { form.unload(); };
    desktop().showModal(form);
    EXPECT_EQ(log, (Log{"load frmA", "resize frmA", "activate frmA", "unload frmA"}));
    EXPECT_EQ(person.opened(), Log{});
    EXPECT_EQ(desktop().front(), nullptr);
}

TEST_F(DesktopTest, AFormThatUnloadsItselfInItsFirstResizeIsNotActivated) {
    form.atResize = [&] { form.unload(); };
    desktop().showModal(form);
    EXPECT_EQ(log, (Log{"load frmA", "resize frmA", "unload frmA"}));
}

TEST_F(DesktopTest, ClosingByTheFrameRaisesUnloadOnce) {
    person.show(form, [&](Form&) {
        form.closeByFrame();
        EXPECT_FALSE(form.isOpen());
        form.closeByFrame();
        form.unload();
    });
    EXPECT_EQ(log, (Log{"load frmA", "resize frmA", "activate frmA", "unload frmA"}));
}

TEST_F(DesktopTest, AnUnloadThatUnloadsAgainIsRaisedOnce) {
    form.atUnload = [&] { form.unload(); };
    person.show(form, [](Form&) {});
    EXPECT_EQ(log.back(), "unload frmA");
    EXPECT_EQ(log.size(), 4U);
}

TEST_F(DesktopTest, AFormMayBeShownAgainAndLoadsAgain) {
    person.show(form, [](Form&) {});
    log.clear();
    person.show(form, [](Form&) {});
    EXPECT_EQ(log, (Log{"load frmA", "resize frmA", "activate frmA", "unload frmA"}));
}

TEST_F(DesktopTest, AHiddenFormEndsItsShowAndIsNotLoadedAnewByTheNext) {
    person.show(form, [&](Form&) { form.hide(); });
    EXPECT_TRUE(form.isLoaded());
    EXPECT_EQ(log, (Log{"load frmA", "resize frmA", "activate frmA"}));
    log.clear();
    person.show(form, [](Form&) {});
    EXPECT_EQ(log, (Log{"resize frmA", "activate frmA", "unload frmA"}));
}

TEST_F(DesktopTest, AFormThatItsCallerHasLoadedIsNotLoadedAnew) {
    form.load();
    EXPECT_EQ(log, (Log{"load frmA"}));
    EXPECT_FALSE(form.isOpen());
    // What the caller changes on the loaded form is there when it shows.
    form.setCaption("changed");
    person.show(form, [&](Form& shown) { EXPECT_EQ(shown.Caption(), "changed"); });
    EXPECT_EQ(log, (Log{"load frmA", "resize frmA", "activate frmA", "unload frmA"}));
}

TEST_F(DesktopTest, AFailureInLoadUnloadsAndComesOut) {
    form.atLoad = [] { throw Error(Failure::Overflow); };
    EXPECT_EQ(failureOf([&] { desktop().showModal(form); }), number(Failure::Overflow));
    EXPECT_EQ(log, (Log{"load frmA", "unload frmA"}));
    EXPECT_FALSE(form.isLoaded());
    EXPECT_EQ(desktop().front(), nullptr);
}

TEST_F(DesktopTest, AFailureInActivateClosesAndComesOut) {
    form.atActivate = [] { throw Error(Failure::Overflow); };
    EXPECT_EQ(failureOf([&] { desktop().showModal(form); }), number(Failure::Overflow));
    EXPECT_EQ(log.back(), "unload frmA");
    EXPECT_FALSE(form.isOpen());
    EXPECT_EQ(desktop().front(), nullptr);
}

TEST_F(DesktopTest, AFailureInAnEventClosesTheFormAndComesOut) {
    auto& button = form.add<CommandButton>("button");
    button.Click.connect([] { throw Error(Failure::TypeMismatch); });
    EXPECT_EQ(failureOf([&] { person.show(form, [&](Form&) { form.click(button); }); }),
              number(Failure::TypeMismatch));
    EXPECT_EQ(log.back(), "unload frmA");
    EXPECT_FALSE(form.isOpen());
    EXPECT_EQ(desktop().front(), nullptr);
}

TEST_F(DesktopTest, AFailureInANestedFormClosesBothAndComesOut) {
    LivingForm inner{"frmB", log};
    auto& button = form.add<CommandButton>("button");
    auto& innerButton = inner.add<CommandButton>("innerButton");
    innerButton.Click.connect([] { throw Error(Failure::ItemNotFound); });
    button.Click.connect([&] {
        person.show(inner, [&](Form&) { inner.click(innerButton); });
        log.push_back("not reached");
    });
    EXPECT_EQ(failureOf([&] { person.show(form, [&](Form&) { form.click(button); }); }),
              number(Failure::ItemNotFound));
    EXPECT_EQ(log, (Log{"load frmA", "resize frmA", "activate frmA", "load frmB", "resize frmB",
                        "activate frmB", "unload frmB", "unload frmA"}));
    EXPECT_FALSE(form.isOpen());
    EXPECT_FALSE(inner.isOpen());
    EXPECT_EQ(desktop().front(), nullptr);
}

TEST_F(DesktopTest, AFailureThatTheOuterFormCatchesLeavesItOpen) {
    LivingForm inner{"frmB", log};
    inner.atLoad = [] { throw Error(Failure::ItemNotFound); };
    auto& button = form.add<CommandButton>("button");
    button.Click.connect(
        [&] { EXPECT_EQ(failureOf([&] { desktop().showModal(inner); }), number(Failure::ItemNotFound)); });
    person.show(form, [&](Form&) {
        form.click(button);
        EXPECT_TRUE(form.isOpen());
        EXPECT_EQ(desktop().front(), &form);
    });
}

TEST_F(DesktopTest, AFormThatFailedCanBeShownAgain) {
    form.atLoad = [] { throw Error(Failure::Overflow); };
    EXPECT_EQ(failureOf([&] { desktop().showModal(form); }), number(Failure::Overflow));
    form.atLoad = {};
    person.show(form, [&](Form&) { EXPECT_TRUE(form.isOpen()); });
}

TEST_F(DesktopTest, AFormThatNobodyClosesIsAFailure) {
    class Idle final : public ScreenlessPerson {
    public:
        Answer answer(const MessageBox&) override { return Answer::Ok; }
        void work(Form&) override {}
        std::string choose(const FileDialog&) override { return {}; }
    } idle;
    ScreenlessDesktop alone(idle);
    EXPECT_EQ(failureOf([&] { alone.showModal(form); }), number(Failure::InvalidCall));
    EXPECT_FALSE(form.isOpen());
}

TEST_F(DesktopTest, FrontIsTheFormThatOpenedLast) {
    Form inner("frmB", "inner");
    EXPECT_EQ(desktop().front(), nullptr);
    person.show(form, [&](Form&) {
        EXPECT_EQ(desktop().front(), &form);
        person.show(inner, [&](Form&) { EXPECT_EQ(desktop().front(), &inner); });
        EXPECT_EQ(desktop().front(), &form);
    });
    EXPECT_EQ(desktop().front(), nullptr);
}

TEST(DesktopInUse, WithoutOneRaisesObjectNotSet) {
    useDesktop(nullptr);
    EXPECT_EQ(failureOf([] { static_cast<void>(desktop()); }), number(Failure::ObjectNotSet));
}

TEST(DesktopInUse, IsTheOneChosenUntilItIsTakenBack) {
    {
        test::ScriptedPerson person;
        EXPECT_EQ(&desktop(), &person.desktop());
    }
    EXPECT_EQ(failureOf([] { static_cast<void>(desktop()); }), number(Failure::ObjectNotSet));
}

TEST_F(DesktopTest, MessagesFilesAndBeepsGoToThePerson) {
    person.expectBox("text", "title", Answer::Yes);
    person.chooseFile("photo.jpg");
    EXPECT_EQ(desktop().msgBox({"text", "title", Buttons::YesNo, Icon::Question}), Answer::Yes);
    EXPECT_EQ(desktop().openFile({"JPEG|*.jpg", "photos"}), "photo.jpg");
    desktop().beep();
    ASSERT_EQ(person.boxes().size(), 1U);
    EXPECT_EQ(person.boxes()[0].buttons, Buttons::YesNo);
    ASSERT_EQ(person.fileDialogs().size(), 1U);
    EXPECT_EQ(person.fileDialogs()[0].directory, "photos");
    EXPECT_EQ(person.beeps(), 1);
}

TEST_F(DesktopTest, AViewFollowsCaptionFocusAndClosing) {
    ViewOfForm view(log);
    auto& text = form.add<TextBox>("text");
    form.setFormView(&view);
    person.show(form, [&](Form&) {
        log.clear();
        form.setCaption("new");
        form.setCaption("new");
        form.moveFocus(text);
        text.setEnabled(false);
    });
    EXPECT_EQ(std::count(log.begin(), log.end(), "closed"), 1);
    EXPECT_EQ(log.back(), "closed");
    ASSERT_GE(log.size(), 3U);
    EXPECT_EQ(Log(log.begin(), log.begin() + 3), (Log{"caption", "focus text", "focus none"}));
}

TEST_F(DesktopTest, APersonsResizeIsTold) {
    person.show(form, [&](Form&) {
        log.clear();
        form.resizeByPerson(300, 200);
        EXPECT_EQ(log, Log{"resize frmA"});
        EXPECT_EQ(form.geometry().width, 300);
        EXPECT_EQ(form.geometry().height, 200);
    });
}

TEST_F(DesktopTest, CharactersReachTheFormBeforeTheControl) {
    auto& text = form.add<TextBox>("text");
    form.atKeyPreview = [](char32_t& character) { character = character == U'x' ? U'\0' : character; };
    person.show(form, [&](Form&) {
        form.moveFocus(text);
        test::typeText(form, "axb");
        EXPECT_EQ(text.Text(), "ab");
    });
}

} // namespace
} // namespace quillmere::ui

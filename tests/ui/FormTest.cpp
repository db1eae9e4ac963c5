#include "platform/ui/Form.h"

#include "platform/ui/CommandButton.h"
#include "platform/ui/ScreenlessDesktop.h"
#include "platform/ui/TextBox.h"
#include "platform/ui/UserControl.h"
#include "support/FailureNumber.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere::ui {
namespace {

using Texts = std::vector<std::string>;

/// A form that logs its life.
class LifeForm : public Form {
public:
    LifeForm(std::string name, Texts& log) : Form(std::move(name), "标题"), log_(log) {}

    std::function<void()> atLoad = [] {};
    std::function<void()> atActivate = [] {};

protected:
    void onLoad() override {
        note("load");
        atLoad();
    }
    void onActivate() override {
        note("activate");
        atActivate();
    }
    void onUnload() override { note("unload"); }
    void onResize() override { note("resize " + std::to_string(geometry().width)); }

private:
    void note(const std::string& what) { log_.push_back(name() + " " + what); }

    Texts& log_;
};

/// A text box that tells when it is destroyed.
class MortalBox : public TextBox {
public:
    MortalBox(std::string name, bool& alive) : TextBox(std::move(name)), alive_(alive) { alive_ = true; }
    ~MortalBox() override { alive_ = false; }

private:
    bool& alive_;
};

class FormTest : public testing::Test {
protected:
    test::ScriptedPerson person;
    Texts log;
    LifeForm form{"frm", log};
};

// ---- modal show

TEST_F(FormTest, AModalShowLoadsShowsAndReturnsWhenClosed) {
    person.show(form, [&](Form&) {
        EXPECT_TRUE(form.isLoaded());
        EXPECT_TRUE(form.isOpen());
        EXPECT_EQ(desktop().front(), &form);
        log.emplace_back("work");
        form.closeByFrame();
    });
    EXPECT_FALSE(form.isLoaded());
    EXPECT_EQ(desktop().front(), nullptr);
    EXPECT_EQ(log, (Texts{"frm load", "frm resize 0", "frm activate", "work", "frm unload"}));
}

TEST_F(FormTest, AFormThatUnloadsItselfWhileLoadingIsNotShown) {
    form.atLoad = [this] { form.unload(); };
    desktop().showModal(form);
    EXPECT_EQ(person.opened(), Texts{});
    EXPECT_EQ(log, (Texts{"frm load", "frm unload"}));
}

TEST_F(FormTest, AFormThatUnloadsItselfOnActivationIsNotWorkedOn) {
    form.atActivate = [this] { form.unload(); };
    desktop().showModal(form);
    EXPECT_EQ(person.opened(), Texts{});
    EXPECT_EQ(desktop().front(), nullptr);
}

TEST_F(FormTest, UnloadingTwiceRaisesUnloadOnce) {
    person.show(form, [&](Form&) {
        form.unload();
        form.unload();
    });
    EXPECT_EQ(log.back(), "frm unload");
    EXPECT_EQ(std::ranges::count(log, "frm unload"), 1);
}

TEST_F(FormTest, AHiddenFormStaysLoadedAndIsShownAgainWithoutLoading) {
    person.show(form, [&](Form&) { form.hide(); });
    EXPECT_TRUE(form.isLoaded());
    EXPECT_FALSE(form.isOpen());
    log.clear();
    person.show(form, [&](Form&) { form.hide(); });
    EXPECT_EQ(log, (Texts{"frm resize 0", "frm activate"}));
}

TEST_F(FormTest, AnUnloadedFormIsLoadedAnew) {
    person.show(form, [](Form&) {});
    log.clear();
    person.show(form, [](Form&) {});
    EXPECT_EQ(log.front(), "frm load");
}

TEST_F(FormTest, AFailureInAnEventClosesTheFormAndComesOutOfTheShow) {
    auto& button = form.add<CommandButton>("cmd");
    button.Click.connect([] { throw Error(Failure::Overflow); });
    EXPECT_EQ(failureOf([&] { person.show(form, [&](Form&) { form.click(button); }); }),
              number(Failure::Overflow));
    EXPECT_FALSE(form.isOpen());
    EXPECT_FALSE(form.isLoaded());
    EXPECT_EQ(log.back(), "frm unload");
    EXPECT_EQ(desktop().front(), nullptr);
}

TEST_F(FormTest, AFailureWhileLoadingOrActivatingComesOutToo) {
    form.atLoad = [] { throw Error(Failure::TypeMismatch); };
    EXPECT_EQ(failureOf([&] { desktop().showModal(form); }), number(Failure::TypeMismatch));
    EXPECT_FALSE(form.isLoaded());
    form.atLoad = [] {};
    form.atActivate = [] { throw Error(Failure::Overflow); };
    EXPECT_EQ(failureOf([&] { desktop().showModal(form); }), number(Failure::Overflow));
    EXPECT_FALSE(form.isLoaded());
    EXPECT_EQ(person.opened(), Texts{});
    EXPECT_EQ(desktop().front(), nullptr);
}

TEST_F(FormTest, AFormMayBeShownAgainAfterAFailure) {
    auto& box = form.add<TextBox>("box");
    bool fails = true;
    box.Change.connect([&] {
        if (std::exchange(fails, false)) throw Error(Failure::Overflow);
    });
    const auto typeOne = [&](Form&) {
        form.moveFocus(box);
        form.typeCharacter(U'x');
    };
    EXPECT_EQ(failureOf([&] { person.show(form, typeOne); }), number(Failure::Overflow));
    EXPECT_EQ(failureOf([&] { person.show(form, typeOne); }), std::nullopt);
}

TEST_F(FormTest, ANestedFormIsInFrontUntilItCloses) {
    LifeForm dialog("dlg", log);
    auto& button = form.add<CommandButton>("cmd");
    button.Click.connect([&] {
        desktop().showModal(dialog);
        log.push_back("front " + desktop().front()->name());
    });
    person.show(form, [&](Form&) {
        log.clear();
        person.onForm([&](Form&) { log.push_back("front " + desktop().front()->name()); }, "dlg");
        form.click(button);
        EXPECT_TRUE(form.isOpen());
    });
    EXPECT_EQ(log, (Texts{"dlg load", "dlg resize 0", "dlg activate", "front dlg", "dlg unload", "front frm",
                          "frm unload"}));
}

TEST_F(FormTest, AFailureInANestedFormClosesBoth) {
    LifeForm dialog("dlg", log);
    auto& button = form.add<CommandButton>("cmd");
    button.Click.connect([&] { desktop().showModal(dialog); });
    const auto run = [&] {
        person.show(form, [&](Form&) {
            person.onForm([](Form&) { throw Error(Failure::Overflow); }, "dlg");
            form.click(button);
        });
    };
    EXPECT_EQ(failureOf(run), number(Failure::Overflow));
    EXPECT_FALSE(dialog.isLoaded());
    EXPECT_FALSE(form.isLoaded());
    EXPECT_EQ(desktop().front(), nullptr);
}

TEST_F(FormTest, TheOuterFormGoesOnWhenItCatchesTheFailureOfANestedOne) {
    LifeForm dialog("dlg", log);
    auto& button = form.add<CommandButton>("cmd");
    button.Click.connect(
        [&] { EXPECT_EQ(failureOf([&] { desktop().showModal(dialog); }), number(Failure::Overflow)); });
    dialog.atLoad = [] { throw Error(Failure::Overflow); };
    person.show(form, [&](Form&) {
        form.click(button);
        EXPECT_TRUE(form.isOpen());
        EXPECT_EQ(desktop().front(), &form);
    });
}

TEST_F(FormTest, KeysGoToTheFormInFront) {
    LifeForm dialog("dlg", log);
    auto& inner = dialog.add<TextBox>("inner");
    auto& button = form.add<CommandButton>("cmd");
    button.Click.connect([&] { desktop().showModal(dialog); });
    person.show(form, [&](Form&) {
        person.onForm([&](Form&) {
            desktop().sendKeys("{tab}");
            EXPECT_TRUE(inner.hasFocus());
        });
        form.click(button);
        EXPECT_TRUE(button.hasFocus());
    });
}

TEST_F(FormTest, SendKeysWithoutAFormDoesNothing) {
    desktop().sendKeys("{tab}");
    EXPECT_EQ(desktop().front(), nullptr);
}

// ---- the person's size and the title

TEST_F(FormTest, ResizingTellsTheForm) {
    person.show(form, [&](Form&) {
        form.resizeByPerson(900, 600);
        EXPECT_EQ(log.back(), "frm resize 900");
        EXPECT_EQ(form.geometry().height, 600);
    });
}

// ---- controls that leave

TEST_F(FormTest, ARemovedControlLivesUntilTheOperationEnds) {
    bool alive = false;
    auto& box = form.add<MortalBox>("box", alive);
    bool removed = false;
    bool aliveInside = false;
    box.KeyPress.connect([&](char32_t&) {
        form.remove(0);
        removed = box.isRemoved();
        aliveInside = alive;
    });
    person.show(form, [&](Form&) {
        form.moveFocus(box);
        form.typeCharacter(U'x');
        EXPECT_TRUE(removed);
        EXPECT_TRUE(aliveInside);
        EXPECT_FALSE(alive);
        EXPECT_EQ(form.Count(), 0U);
    });
}

TEST_F(FormTest, OutsideAnyOperationARemovedControlIsDestroyedAtOnce) {
    bool alive = false;
    form.add<MortalBox>("box", alive);
    form.removeAll();
    EXPECT_FALSE(alive);
}

TEST_F(FormTest, ARemovedControlIsDestroyedAlsoWhenTheOperationFails) {
    bool alive = false;
    auto& box = form.add<MortalBox>("box", alive);
    box.Change.connect([&] {
        form.remove(0);
        throw Error(Failure::Overflow);
    });
    person.show(form, [&](Form&) {
        EXPECT_THROW(form.perform([&] { box.setText("x"); }), Error);
        EXPECT_FALSE(alive);
    });
}

TEST_F(FormTest, WhatStandsOnARemovedPanelIsRemovedToo) {
    auto& panel = form.add<UserControl>("panel");
    auto& inner = panel.add<TextBox>("inner");
    panel.setVisible(true);
    EXPECT_FALSE(inner.isRemoved());
    form.perform([&] {
        form.remove(0);
        EXPECT_TRUE(inner.isRemoved());
        EXPECT_FALSE(inner.isShown());
    });
}

// ---- panels that become visible

TEST_F(FormTest, APanelIsToldThatItIsShownWhenTheOperationEnds) {
    auto& panel = form.add<UserControl>("panel");
    EXPECT_FALSE(panel.Visible());
    panel.Shown.connect([&] { log.emplace_back("shown"); });
    person.show(form, [&](Form&) {
        log.clear();
        form.perform([&] {
            panel.setVisible(true);
            log.emplace_back("operation ends");
        });
        EXPECT_EQ(log, (Texts{"operation ends", "shown"}));
    });
}

TEST_F(FormTest, APanelMadeVisibleWhileLoadingIsToldAfterActivation) {
    auto& panel = form.add<UserControl>("panel");
    panel.Shown.connect([&] { log.emplace_back("shown"); });
    form.atLoad = [&] { panel.setVisible(true); };
    person.show(form, [&](Form&) {
        EXPECT_EQ(log, (Texts{"frm load", "frm resize 0", "frm activate", "shown"}));
    });
}

TEST_F(FormTest, APanelThatGoesAgainIsToldNothing) {
    auto& hidden = form.add<UserControl>("hidden");
    auto& removed = form.add<UserControl>("removed");
    int shown = 0;
    hidden.Shown.connect([&] { ++shown; });
    removed.Shown.connect([&] { ++shown; });
    person.show(form, [&](Form&) {
        form.perform([&] {
            hidden.setVisible(true);
            removed.setVisible(true);
            hidden.setVisible(false);
            form.remove(1);
        });
        EXPECT_EQ(shown, 0);
    });
}

TEST_F(FormTest, APanelIsToldBeforeInjectedKeysRun) {
    auto& panel = form.add<UserControl>("panel");
    auto& box = panel.add<TextBox>("box");
    panel.Shown.connect([&] { log.emplace_back("shown"); });
    box.GotFocus.connect([&] { log.emplace_back("focus"); });
    person.show(form, [&](Form&) {
        log.clear();
        form.perform([&] {
            desktop().sendKeys("{tab}");
            panel.setVisible(true);
        });
        EXPECT_EQ(log, (Texts{"shown", "focus"}));
    });
}

TEST_F(FormTest, MovingAPanelRaisesResizeOnlyWhenItsSizeDiffers) {
    auto& panel = form.add<UserControl>("panel");
    int resizes = 0;
    panel.Resize.connect([&] { ++resizes; });
    panel.moveTo({10, 10, 500, 400});
    EXPECT_EQ(resizes, 1);
    panel.moveTo({20, 20, 500, 400});
    EXPECT_EQ(resizes, 1);
    EXPECT_EQ(panel.geometry(), (Rect{20, 20, 500, 400}));
}

// ---- finding

TEST_F(FormTest, ControlsAreFoundByNameWithoutRegardToCase) {
    auto& own = form.add<TextBox>("txtName");
    auto& panel = form.add<UserControl>("panel");
    auto& inner = panel.add<TextBox>("A02_A0201_v");
    EXPECT_EQ(form.find("TXTNAME"), &own);
    EXPECT_EQ(form.find("A02_A0201_v"), nullptr);
    EXPECT_EQ(form.findDeep("a02_a0201_V"), &inner);
    EXPECT_EQ(form.findDeep("nothing"), nullptr);
}

TEST_F(FormTest, TabIndexIsThePlaceInTheListOfControls) {
    EXPECT_EQ(form.add<TextBox>("a").TabIndex(), 0);
    EXPECT_EQ(form.add<TextBox>("b").TabIndex(), 1);
}

// ---- the desktop without a screen

class AbsentPerson : public ScreenlessPerson {
public:
    Answer answer(const MessageBox&) override { return Answer::Ok; }
    void work(Form&) override {}
    std::string choose(const FileDialog&) override { return {}; }
};

TEST(ScreenlessDesktopTest, AFormThatNobodyClosesIsAFailure) {
    AbsentPerson nobody;
    ScreenlessDesktop screenless(nobody);
    Form form("frm", "frm");
    EXPECT_EQ(failureOf([&] { screenless.showModal(form); }), number(Failure::InvalidCall));
    EXPECT_FALSE(form.isOpen());
}

TEST(ScreenlessDesktopTest, WithoutAChosenDesktopThereIsNone) {
    EXPECT_EQ(failureOf([] { static_cast<void>(desktop()); }), number(Failure::ObjectNotSet));
}

TEST_F(FormTest, BoxesFileDialogsAndBeepsGoToThePerson) {
    person.expectBox("删除？", "提示", Answer::Yes);
    person.chooseFile("a.jpg");
    EXPECT_EQ(desktop().msgBox({"删除？", "提示", Buttons::YesNo, Icon::Question}), Answer::Yes);
    EXPECT_EQ(desktop().openFile({"JPEG|*.jpg", "photos"}), "a.jpg");
    desktop().beep();
    EXPECT_EQ(person.boxes().size(), 1U);
    EXPECT_EQ(person.beeps(), 1);
}

} // namespace
} // namespace quillmere::ui

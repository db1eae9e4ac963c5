#include "ui/FormBench.h"

#include "platform/ui/CommandButton.h"
#include "platform/ui/TextBox.h"
#include "support/FailureNumber.h"

namespace quillmere::ui {
namespace {

using ModalFormTest = FormBench;

// ---- modal show

TEST_F(ModalFormTest, AModalShowLoadsShowsAndReturnsWhenClosed) {
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

TEST_F(ModalFormTest, AFormThatUnloadsItselfWhileLoadingIsNotShown) {
    form.atLoad = [this] { form.unload(); };
    desktop().showModal(form);
    EXPECT_EQ(person.opened(), Texts{});
    EXPECT_EQ(log, (Texts{"frm load", "frm unload"}));
}

TEST_F(ModalFormTest, AFormThatUnloadsItselfOnActivationIsNotWorkedOn) {
    form.atActivate = [this] { form.unload(); };
    desktop().showModal(form);
    EXPECT_EQ(person.opened(), Texts{});
    EXPECT_EQ(desktop().front(), nullptr);
}

TEST_F(ModalFormTest, UnloadingTwiceRaisesUnloadOnce) {
    person.show(form, [&](Form&) {
        form.unload();
        form.unload();
    });
    EXPECT_EQ(log.back(), "frm unload");
    EXPECT_EQ(std::ranges::count(log, "frm unload"), 1);
}

TEST_F(ModalFormTest, AHiddenFormStaysLoadedAndIsShownAgainWithoutLoading) {
    person.show(form, [&](Form&) { form.hide(); });
    EXPECT_TRUE(form.isLoaded());
    EXPECT_FALSE(form.isOpen());
    log.clear();
    person.show(form, [&](Form&) { form.hide(); });
    EXPECT_EQ(log, (Texts{"frm resize 0", "frm activate"}));
}

TEST_F(ModalFormTest, AnUnloadedFormIsLoadedAnew) {
    person.show(form, [](Form&) {});
    log.clear();
    person.show(form, [](Form&) {});
    EXPECT_EQ(log.front(), "frm load");
}

TEST_F(ModalFormTest, AFailureInAnEventClosesTheFormAndComesOutOfTheShow) {
    auto& button = form.add<CommandButton>("cmd");
    button.Click.connect([] { throw Error(Failure::Overflow); });
    EXPECT_EQ(failureOf([&] { person.show(form, [&](Form&) { form.click(button); }); }),
              number(Failure::Overflow));
    EXPECT_FALSE(form.isOpen());
    EXPECT_FALSE(form.isLoaded());
    EXPECT_EQ(log.back(), "frm unload");
    EXPECT_EQ(desktop().front(), nullptr);
}

TEST_F(ModalFormTest, AFailureWhileLoadingOrActivatingComesOutToo) {
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

TEST_F(ModalFormTest, AFormMayBeShownAgainAfterAFailure) {
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

TEST_F(ModalFormTest, ANestedFormIsInFrontUntilItCloses) {
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

TEST_F(ModalFormTest, AFailureInANestedFormClosesBoth) {
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

TEST_F(ModalFormTest, TheOuterFormGoesOnWhenItCatchesTheFailureOfANestedOne) {
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

TEST_F(ModalFormTest, KeysGoToTheFormInFront) {
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

TEST_F(ModalFormTest, SendKeysWithoutAFormDoesNothing) {
    desktop().sendKeys("{tab}");
    EXPECT_EQ(desktop().front(), nullptr);
}

// ---- the person's size and the title

TEST_F(ModalFormTest, ResizingTellsTheForm) {
    person.show(form, [&](Form&) {
        form.resizeByPerson(900, 600);
        EXPECT_EQ(log.back(), "frm resize 900");
        EXPECT_EQ(form.geometry().height, 600);
    });
}

} // namespace
} // namespace quillmere::ui

#include "platform/ui/UserControl.h"

#include "platform/ui/CommandButton.h"
#include "platform/ui/Label.h"
#include "platform/ui/TextBox.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace quillmere::ui {
namespace {

using Log = std::vector<std::string>;

/// Notes when it leaves its host and when it is destroyed.
class Panel final : public UserControl {
public:
    Panel(std::string name, Log& log) : UserControl(std::move(name)), log_(log) {
        Shown.connect([this] { log_.push_back("shown " + this->name()); });
    }
    ~Panel() override { log_.push_back("destroyed " + name()); }

protected:
    void terminate() override { log_.push_back("terminated " + name()); }

private:
    Log& log_;
};

class UserControlTest : public testing::Test {
protected:
    void onOpenForm(const std::function<void()>& work) {
        person.show(form, [&](Form&) { work(); });
    }

    test::ScriptedPerson person;
    Log log;
    Form form{"frmHost", "host"};
    CommandButton& button = form.add<CommandButton>("button");
};

TEST_F(UserControlTest, IsInvisibleUntilToldOtherwise) {
    auto& panel = form.add<Panel>("panel", log);
    EXPECT_FALSE(panel.Visible());
    EXPECT_FALSE(panel.add<Label>("inner").isShown());
}

TEST_F(UserControlTest, ItIsToldThatItIsShownAfterTheOperation) {
    auto& panel = form.add<Panel>("panel", log);
    button.Click.connect([&] {
        panel.setVisible(true);
        log.push_back("end of event");
    });
    onOpenForm([&] {
        form.click(button);
        EXPECT_EQ(log, (Log{"end of event", "shown panel"}));
    });
}

TEST_F(UserControlTest, OneMadeVisibleBeforeTheFormOpensIsToldOnceItIsOpen) {
    auto& panel = form.add<Panel>("panel", log);
    panel.setVisible(true);
    form.load();
    EXPECT_EQ(log, Log{});
    form.unload();
    panel.setVisible(false);
    panel.setVisible(true);
    onOpenForm([&] { EXPECT_EQ(log, Log{"shown panel"}); });
}

TEST_F(UserControlTest, ItIsToldOnceHoweverOftenItBecameVisible) {
    auto& panel = form.add<Panel>("panel", log);
    button.Click.connect([&] {
        panel.setVisible(true);
        panel.setVisible(false);
        panel.setVisible(true);
    });
    onOpenForm([&] {
        form.click(button);
        EXPECT_EQ(log, Log{"shown panel"});
    });
}

TEST_F(UserControlTest, OneThatIsHiddenAgainBeforeTheOperationEndsIsNotTold) {
    auto& panel = form.add<Panel>("panel", log);
    button.Click.connect([&] {
        panel.setVisible(true);
        panel.setVisible(false);
    });
    onOpenForm([&] {
        form.click(button);
        EXPECT_EQ(log, Log{});
    });
}

TEST_F(UserControlTest, OneThatIsRemovedBeforeTheOperationEndsIsNotTold) {
    button.Click.connect([&] {
        form.add<Panel>("panel", log).setVisible(true);
        form.remove(1);
    });
    onOpenForm([&] {
        form.click(button);
        EXPECT_EQ(log, (Log{"terminated panel", "destroyed panel"}));
    });
}

TEST_F(UserControlTest, OneOnARemovedOneIsNotToldEither) {
    button.Click.connect([&] {
        auto& outer = form.add<Panel>("outer", log);
        outer.setVisible(true);
        outer.add<Panel>("inner", log).setVisible(true);
        form.remove(1);
    });
    onOpenForm([&] {
        form.click(button);
        EXPECT_EQ(log, (Log{"terminated outer", "destroyed outer", "destroyed inner"}));
    });
}

TEST_F(UserControlTest, InjectedKeysRunAfterItIsTold) {
    auto& panel = form.add<Panel>("panel", log);
    auto& inner = panel.add<TextBox>("inner");
    inner.KeyDown.connect([&](int&, int) { log.push_back("key"); });
    panel.Shown.connect([&] { inner.SetFocus(); });
    button.Click.connect([&] {
        desktop().sendKeys("{home}");
        panel.setVisible(true);
    });
    onOpenForm([&] {
        form.click(button);
        EXPECT_EQ(log, (Log{"shown panel", "key"}));
    });
}

TEST_F(UserControlTest, AFailureOfShownComesOutOfTheOperation) {
    auto& panel = form.add<Panel>("panel", log);
    panel.Shown.connect([] { throw std::runtime_error("shown"); });
    button.Click.connect([&] { panel.setVisible(true); });
    onOpenForm([&] { EXPECT_THROW(form.click(button), std::runtime_error); });
}

TEST_F(UserControlTest, OneThatWaitedWhenItsFormClosedIsNotToldAtTheNextShow) {
    auto& panel = form.add<Panel>("panel", log);
    button.Click.connect([&] {
        panel.setVisible(true);
        form.unload();
    });
    onOpenForm([&] { form.click(button); });
    onOpenForm([] {});
    EXPECT_EQ(log, Log{});
}

TEST_F(UserControlTest, RemovedControlsLiveUntilTheOperationEnds) {
    form.add<Panel>("panel", log);
    button.Click.connect([&] {
        form.remove(1);
        EXPECT_EQ(form.find("panel"), nullptr);
        log.push_back("end of event");
    });
    onOpenForm([&] {
        form.click(button);
        EXPECT_EQ(log, (Log{"terminated panel", "end of event", "destroyed panel"}));
    });
}

TEST_F(UserControlTest, AControlMayRemoveItselfInItsOwnEvent) {
    button.Click.connect([&, text = std::string("the handler's own text is still here")] {
        form.remove(0);
        EXPECT_TRUE(button.isRemoved());
        EXPECT_FALSE(button.isShown());
        EXPECT_EQ(text, "the handler's own text is still here");
        log.push_back(text);
    });
    button.DblClick.connect([&] { log.push_back("DblClick"); });
    onOpenForm([&] {
        form.doubleClick(button);
        EXPECT_EQ(log.size(), 1U);
        EXPECT_EQ(form.Count(), 0U);
    });
}

TEST_F(UserControlTest, APanelMayBeReplacedFromAnEventOfItsOwnControl) {
    auto& panel = form.add<Panel>("old", log);
    panel.setVisible(true);
    auto& inner = panel.add<CommandButton>("inner");
    inner.Click.connect([&] {
        form.remove(1);
        EXPECT_TRUE(inner.isRemoved());
        form.add<Panel>("new", log).setVisible(true);
    });
    inner.DblClick.connect([&] { log.push_back("DblClick"); });
    onOpenForm([&] {
        log.clear();
        form.doubleClick(inner);
        EXPECT_EQ(form.ActiveControl(), nullptr);
        EXPECT_EQ(log, (Log{"terminated old", "shown new", "destroyed old"}));
    });
}

TEST_F(UserControlTest, OutsideAnyOperationARemovedControlGoesAtOnce) {
    form.add<Panel>("panel", log);
    form.remove(1);
    EXPECT_EQ(log, (Log{"terminated panel", "destroyed panel"}));
}

TEST_F(UserControlTest, RemoveAllTakesEveryControl) {
    form.add<Panel>("panel", log);
    form.removeAll();
    EXPECT_EQ(form.Count(), 0U);
    EXPECT_EQ(log, (Log{"terminated panel", "destroyed panel"}));
}

TEST_F(UserControlTest, ItSeesKeysBeforeItsControls) {
    auto& panel = form.add<Panel>("panel", log);
    panel.setVisible(true);
    auto& inner = panel.add<TextBox>("inner");
    panel.KeyDown.connect([&](int&, int) { log.push_back("panel down"); });
    inner.KeyDown.connect([&](int&, int) { log.push_back("inner down"); });
    panel.KeyPress.connect([&](char32_t& character) {
        log.push_back("panel press");
        if (character == U'\'') character = 0;
    });
    inner.KeyPress.connect([&](char32_t&) { log.push_back("inner press"); });
    onOpenForm([&] {
        form.moveFocus(inner);
        log.clear();
        form.pressKey({key::Home});
        form.typeCharacter(U'a');
        EXPECT_EQ(log, (Log{"panel down", "inner down", "panel press", "inner press"}));
        log.clear();
        form.typeCharacter(U'\'');
        EXPECT_EQ(log, Log{"panel press"});
        EXPECT_EQ(inner.Text(), "a");
    });
}

TEST_F(UserControlTest, AKeyThatThePanelSwallowsGoesNoFurther) {
    auto& panel = form.add<Panel>("panel", log);
    panel.setVisible(true);
    auto& inner = panel.add<TextBox>("inner");
    panel.KeyDown.connect([](int& code, int) { code = 0; });
    inner.KeyDown.connect([&](int&, int) { log.push_back("inner"); });
    onOpenForm([&] {
        form.moveFocus(inner);
        log.clear();
        form.pressKey({key::Tab});
        EXPECT_TRUE(inner.hasFocus());
        EXPECT_EQ(log, Log{});
    });
}

TEST_F(UserControlTest, MovingRaisesResizeOnlyWhenTheSizeDiffers) {
    auto& panel = form.add<Panel>("panel", log);
    int resizes = 0;
    panel.Resize.connect([&] { ++resizes; });
    panel.moveTo({0, 0, 100, 50});
    panel.moveTo({10, 20, 100, 50});
    EXPECT_EQ(resizes, 1);
    EXPECT_EQ(panel.geometry(), (Rect{10, 20, 100, 50}));
}

TEST_F(UserControlTest, ControlsAreFoundByNameWithoutRegardToCase) {
    auto& panel = form.add<Panel>("panel", log);
    auto& inner = panel.add<TextBox>("A02_A0203_v");
    EXPECT_EQ(form.find("PANEL"), &panel);
    EXPECT_EQ(panel.find("a02_a0203_V"), &inner);
    EXPECT_EQ(form.find("A02_A0203_v"), nullptr);
    EXPECT_EQ(form.findDeep("a02_a0203_v"), &inner);
    EXPECT_EQ(form.findDeep("nothing"), nullptr);
}

TEST_F(UserControlTest, AnOwnControlOfTheFormIsFoundBeforeThePanels) {
    auto& panel = form.add<Panel>("panel", log);
    panel.add<TextBox>("button");
    EXPECT_EQ(form.findDeep("BUTTON"), &button);
}

TEST_F(UserControlTest, ItsControlsKnowTheirHostAndForm) {
    auto& panel = form.add<Panel>("panel", log);
    auto& inner = panel.add<TextBox>("inner");
    EXPECT_EQ(inner.host(), static_cast<ControlHost*>(&panel));
    EXPECT_EQ(inner.form(), &form);
    UserControl alone("alone");
    EXPECT_EQ(alone.add<Label>("label").form(), nullptr);
}

} // namespace
} // namespace quillmere::ui

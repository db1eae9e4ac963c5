#include "platform/ui/CheckBox.h"

#include "platform/ui/CommandButton.h"
#include "platform/ui/Form.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

namespace quillmere::ui {
namespace {

class CheckBoxTest : public testing::Test {
protected:
    CheckBoxTest() {
        box.Click.connect([this] { ++clicks; });
    }

    test::ScriptedPerson person;
    Form form{"frm", "frm"};
    CheckBox& box = form.add<CheckBox>("box");
    int clicks = 0;
};

TEST_F(CheckBoxTest, IsNotCheckedAtFirst) {
    EXPECT_EQ(box.Value(), 0);
    EXPECT_EQ(box.property("value"), "0");
}

TEST_F(CheckBoxTest, AClickTogglesAndRaisesOneClick) {
    person.show(form, [&](Form&) {
        EXPECT_TRUE(form.click(box));
        EXPECT_EQ(box.Value(), 1);
        EXPECT_EQ(clicks, 1);
        EXPECT_TRUE(form.click(box));
        EXPECT_EQ(box.Value(), 0);
        EXPECT_EQ(clicks, 2);
    });
}

TEST_F(CheckBoxTest, ARightClickDoesNotToggle) {
    person.show(form, [&](Form&) {
        EXPECT_TRUE(form.click(box, mouse::Right));
        EXPECT_EQ(box.Value(), 0);
    });
}

TEST_F(CheckBoxTest, TheBlankTogglesAndOtherCharactersDoNot) {
    person.show(form, [&](Form&) {
        form.moveFocus(box);
        form.pressKey({key::Space, shift::None});
        EXPECT_EQ(box.Value(), 1);
        form.typeCharacter(U' ');
        EXPECT_EQ(box.Value(), 0);
        test::typeText(form, "x1");
        form.pressKey({key::Enter, shift::None});
        EXPECT_EQ(box.Value(), 0);
    });
}

TEST_F(CheckBoxTest, ASwallowedBlankDoesNotToggle) {
    box.KeyPress.connect([](char32_t& character) { character = 0; });
    person.show(form, [&](Form&) {
        form.moveFocus(box);
        form.typeCharacter(U' ');
        EXPECT_EQ(box.Value(), 0);
    });
}

TEST_F(CheckBoxTest, SettingTheValueRaisesClickOnlyWhenItDiffers) {
    box.setValue(1);
    EXPECT_EQ(clicks, 1);
    box.setValue(1);
    EXPECT_EQ(clicks, 1);
}

TEST_F(CheckBoxTest, ADisabledBoxIsNotToggled) {
    box.setEnabled(false);
    person.show(form, [&](Form&) {
        EXPECT_FALSE(form.click(box));
        EXPECT_EQ(box.Value(), 0);
    });
}

TEST_F(CheckBoxTest, AButtonIsPressedByAClickTheBlankAndEnter) {
    auto& button = form.add<CommandButton>("cmd", "确定(&O)");
    int pressed = 0;
    button.Click.connect([&] { ++pressed; });
    person.show(form, [&](Form&) {
        form.click(button);
        EXPECT_EQ(pressed, 1);
        form.pressKey({key::Space, shift::None});
        EXPECT_EQ(pressed, 2);
        form.pressKey({key::Enter, shift::None});
        EXPECT_EQ(pressed, 3);
        form.typeCharacter(U'x');
        EXPECT_EQ(pressed, 3);
    });
}

} // namespace
} // namespace quillmere::ui

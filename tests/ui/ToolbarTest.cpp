#include "platform/ui/Toolbar.h"

#include "platform/ui/Form.h"
#include "support/FailureNumber.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmere::ui {
namespace {

class ToolbarTest : public testing::Test {
protected:
    ToolbarTest() {
        bar.ButtonClick.connect([this](Toolbar::Button& button) { clicked += button.Key() + ";"; });
    }

    test::ScriptedPerson person;
    Form form{"frm", "frm"};
    Toolbar& bar = form.add<Toolbar>("bar");
    Toolbar::Button& add = bar.addButton("Add", "新增(&A)");
    std::string clicked;
};

TEST_F(ToolbarTest, ButtonsAreFoundByTheirKey) {
    auto& save = bar.addButton("Save", "保存(&S)");
    EXPECT_EQ(&bar.Buttons("Save"), &save);
    EXPECT_EQ(&bar.Buttons("Add"), &add);
    EXPECT_EQ(add.Caption(), "新增(&A)");
}

TEST_F(ToolbarTest, AnUnknownKeyIsAFailure) {
    bar.addSeparator();
    const auto missing = number(Failure::ItemNotFound);
    EXPECT_EQ(failureOf([&] { static_cast<void>(bar.Buttons("Print")); }), missing);
    EXPECT_EQ(failureOf([&] { static_cast<void>(bar.Buttons("add")); }), missing);
    EXPECT_EQ(failureOf([&] { static_cast<void>(bar.Buttons("")); }), missing);
}

TEST_F(ToolbarTest, AClickNamesItsButton) {
    person.show(form, [&](Form&) {
        EXPECT_TRUE(bar.clickButton(add));
        EXPECT_EQ(clicked, "Add;");
    });
}

TEST_F(ToolbarTest, ADisabledButtonOrBarIsNotClicked) {
    person.show(form, [&](Form&) {
        add.setEnabled(false);
        EXPECT_FALSE(bar.clickButton(add));
        add.setEnabled(true);
        bar.setEnabled(false);
        EXPECT_FALSE(bar.clickButton(add));
        EXPECT_EQ(clicked, "");
    });
}

TEST_F(ToolbarTest, ASeparatorIsNotClicked) {
    bar.addSeparator();
    person.show(form, [&](Form&) {
        EXPECT_FALSE(bar.clickButton(*bar.buttons().back()));
        EXPECT_EQ(clicked, "");
    });
}

TEST_F(ToolbarTest, ItsButtonsArePropertiesByKey) {
    add.setEnabled(false);
    EXPECT_EQ(bar.property("Add.Enabled"), "false");
    EXPECT_EQ(bar.property("add.caption"), "新增(&A)");
    EXPECT_EQ(bar.property("Print.Enabled"), std::nullopt);
}

TEST(ToolbarAloneTest, OutsideAFormItIsNotClicked) {
    Toolbar bar("TbMain");
    EXPECT_FALSE(bar.clickButton(bar.addButton("Add", "增加")));
}

} // namespace
} // namespace quillmere::ui

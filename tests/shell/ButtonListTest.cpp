#include "shell/ctrlButtonList.h"

#include "platform/ui/Form.h"
#include "support/ScriptedPerson.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

// The second toolbar, which no form or panel places.

namespace quillmere::test {

namespace {

class ButtonList : public testing::Test {
protected:
    ButtonList() : list(form.add<ctrlButtonList>("ctrlButtonList1")) { list.setVisible(true); }

    ui::Form form{"frmHost", "宿主"};
    ctrlButtonList& list;
};

TEST_F(ButtonList, HasNineButtonsInOrder) {
    std::vector<std::string> buttons;
    for (const auto& button : list.toolbar().buttons())
        buttons.push_back(button->Key() + " " + button->Caption());
    EXPECT_EQ(buttons, (std::vector<std::string>{"PrePerson 上一人", "NextPerson 下一人", "Add 增加",
                                                 "Modify 修改", "Delete 删除", "Save 保存", "Cancel 取消",
                                                 "PreItem 上一条", "NextItem 下一条"}));
    EXPECT_EQ(list.toolbar().name(), "Toolbar1");
}

TEST_F(ButtonList, ReportsEachClickWithItsButtonAndDoesNothingElse) {
    const ScriptedPerson person;
    const TestDatabase database;
    std::vector<std::string> clicked;
    list.ButtonClick.connect([&](ui::Toolbar::Button& button) { clicked.push_back(button.Key()); });
    std::vector<std::string> keys;
    for (const auto& button : list.toolbar().buttons()) {
        keys.push_back(button->Key());
        EXPECT_TRUE(list.toolbar().clickButton(*button));
    }
    EXPECT_EQ(clicked, keys);
    EXPECT_TRUE(database.statements().empty());
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(ButtonList, KeepsAnObjectAndShowsItsControls) {
    EXPECT_EQ(list.UControl, nullptr);
    list.UControl = &list.toolbar();
    EXPECT_EQ(list.UControl, &list.toolbar());
    ASSERT_EQ(list.Count(), 1U);
    EXPECT_EQ(&list.Controls(0), &list.toolbar());
}

TEST_F(ButtonList, ReportsAResize) {
    int resized = 0;
    list.Resize.connect([&] { ++resized; });
    list.moveTo({0, 0, 4000, 600});
    EXPECT_EQ(resized, 1);
    list.moveTo({100, 0, 4000, 600});
    EXPECT_EQ(resized, 1);
}

} // namespace

} // namespace quillmere::test

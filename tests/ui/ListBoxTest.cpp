#include "platform/ui/ListBox.h"

#include "platform/ui/Form.h"
#include "support/FailureNumber.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere::ui {
namespace {

class ListBoxTest : public testing::Test {
protected:
    ListBoxTest() {
        list.setItems({"甲", "乙", "丙"});
        list.Click.connect([this] { clicked.push_back(list.Text()); });
    }

    test::ScriptedPerson person;
    Form form{"frm", "frm"};
    ListBox& list = form.add<ListBox>("list");
    std::vector<std::string> clicked;
};

TEST_F(ListBoxTest, NothingIsSelectedAtFirst) {
    EXPECT_EQ(list.ListCount(), 3);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.Text(), "");
}

TEST_F(ListBoxTest, AddedItemsComeLast) {
    list.AddItem("丁");
    EXPECT_EQ(list.items().back(), "丁");
    EXPECT_EQ(list.ListCount(), 4);
}

TEST_F(ListBoxTest, ChoosingARowRaisesClickOnlyWhenItDiffers) {
    list.setListIndex(1);
    list.setListIndex(1);
    EXPECT_EQ(list.Text(), "乙");
    EXPECT_EQ(clicked, std::vector<std::string>{"乙"});
}

TEST_F(ListBoxTest, ARowThatIsNotThereIsAFailure) {
    EXPECT_EQ(failureOf([&] { list.setListIndex(3); }), number(Failure::SubscriptOutOfRange));
    EXPECT_EQ(failureOf([&] { list.setListIndex(-2); }), number(Failure::SubscriptOutOfRange));
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ListBoxTest, NewItemsForgetTheRowsOfTheOldOnes) {
    list.setListIndex(2);
    list.setRowUnderPointer(2);
    list.setItems({"子"});
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.rowUnderPointer(), -1);
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
}

struct Row {
    int from;
    int key;
    int to;
};

class ListBoxKeysTest : public ListBoxTest, public testing::WithParamInterface<Row> {};

TEST_P(ListBoxKeysTest, AKeyMovesTheSelection) {
    list.setListIndex(GetParam().from);
    person.show(form, [&](Form&) {
        form.moveFocus(list);
        form.pressKey({GetParam().key, shift::None});
        EXPECT_EQ(list.ListIndex(), GetParam().to);
    });
}

INSTANTIATE_TEST_SUITE_P(Keys, ListBoxKeysTest,
                         testing::Values(Row{-1, key::Down, 0}, Row{0, key::Down, 1}, Row{2, key::Down, 2},
                                         Row{-1, key::Up, 0}, Row{2, key::Up, 1}, Row{0, key::Up, 0},
                                         Row{2, key::Home, 0}, Row{0, key::End, 2}, Row{1, key::Left, 1}));

TEST_F(ListBoxTest, KeysInAnEmptyListDoNothing) {
    list.Clear();
    person.show(form, [&](Form&) {
        form.moveFocus(list);
        form.pressKey({key::Down, shift::None});
        form.pressKey({key::End, shift::None});
        EXPECT_EQ(list.ListIndex(), -1);
    });
}

} // namespace
} // namespace quillmere::ui

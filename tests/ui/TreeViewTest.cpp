#include "platform/ui/TreeView.h"

#include "platform/ui/Form.h"
#include "support/FailureNumber.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmere::ui {
namespace {

/// A tree: "1" with "11" and "12" ("121" below it), and "2".
class TreeViewTest : public testing::Test {
protected:
    TreeViewTest() {
        auto& first = tree.add(nullptr, "K1", "一");
        tree.add(&first, "K11", "一一");
        auto& second = tree.add(&first, "K12", "一二");
        tree.add(&second, "K121", "一二一");
        tree.add(nullptr, "K2", "二");
    }

    [[nodiscard]] TreeView::Node& node(std::string_view key) const { return *tree.find(key); }
    [[nodiscard]] std::string selected() const {
        return tree.SelectedItem() == nullptr ? "" : tree.SelectedItem()->key;
    }

    test::ScriptedPerson person;
    Form form{"frm", "frm"};
    TreeView& tree = form.add<TreeView>("tree");
};

TEST_F(TreeViewTest, NodesStandUnderTheirParentsInTheOrderOfAdding) {
    ASSERT_EQ(tree.roots().size(), 2U);
    EXPECT_EQ(tree.roots()[1]->key, "K2");
    ASSERT_EQ(node("K1").children.size(), 2U);
    EXPECT_EQ(node("K1").children[1], &node("K12"));
    EXPECT_EQ(node("K121").parent, &node("K12"));
    EXPECT_EQ(tree.nodes().size(), 5U);
    EXPECT_EQ(tree.property("Nodes.Count"), "5");
}

TEST_F(TreeViewTest, EachNodeKnowsItsPlaceAmongItsSiblings) {
    tree.add(nullptr, "K3", "三");
    EXPECT_EQ(node("K1").index, 0U);
    EXPECT_EQ(node("K11").index, 0U);
    EXPECT_EQ(node("K12").index, 1U);
    EXPECT_EQ(node("K121").index, 0U);
    EXPECT_EQ(node("K2").index, 1U);
    EXPECT_EQ(node("K3").index, 2U);
}

TEST_F(TreeViewTest, AKeyThatIsThereIsAFailureAndAddsNothing) {
    EXPECT_EQ(failureOf([&] { tree.add(nullptr, "k12", "又"); }), number(Failure::KeyAlreadyUsed));
    EXPECT_EQ(tree.nodes().size(), 5U);
    EXPECT_EQ(node("K12").text, "一二");
}

TEST_F(TreeViewTest, KeysAreFoundWithoutRegardToCase) {
    EXPECT_EQ(tree.find("k121"), &node("K121"));
    EXPECT_EQ(tree.find("K9"), nullptr);
}

TEST_F(TreeViewTest, ClearingTakesEverythingAway) {
    tree.clear();
    EXPECT_TRUE(tree.nodes().empty());
    EXPECT_TRUE(tree.roots().empty());
    EXPECT_EQ(tree.find("K1"), nullptr);
    EXPECT_EQ(selected(), "");
    tree.add(nullptr, "K1", "新");
    EXPECT_EQ(node("K1").text, "新");
}

TEST_F(TreeViewTest, TheFirstNodeIsSelectedAtFirst) { EXPECT_EQ(selected(), "K1"); }

TEST_F(TreeViewTest, ClosingANodeOverTheSelectionSelectsTheNode) {
    node("K1").expanded = true;
    node("K12").expanded = true;
    tree.setSelectedItem(&node("K121"));
    tree.setExpanded(node("K1"), false);
    EXPECT_EQ(selected(), "K1");
}

TEST_F(TreeViewTest, ClosingANodeElsewhereLeavesTheSelection) {
    node("K1").expanded = true;
    tree.setSelectedItem(&node("K2"));
    tree.setExpanded(node("K1"), false);
    EXPECT_EQ(selected(), "K2");
}

TEST_F(TreeViewTest, ADoubleClickIsToldWithTheSelectionInPlace) {
    std::string seen;
    tree.DblClick.connect([&] { seen = selected(); });
    person.show(form, [&](Form&) {
        tree.setSelectedItem(&node("K2"));
        EXPECT_TRUE(form.doubleClick(tree));
        EXPECT_EQ(seen, "K2");
    });
}

struct Row {
    const char* from;
    int key;
    const char* to;
};

class TreeViewKeysTest : public TreeViewTest, public testing::WithParamInterface<Row> {};

TEST_P(TreeViewKeysTest, AKeyMovesTheSelection) {
    // Open at the top, closed at "K12".
    tree.setExpanded(node("K1"), true);
    tree.setSelectedItem(&node(GetParam().from));
    person.show(form, [&](Form&) {
        form.moveFocus(tree);
        form.pressKey({GetParam().key, shift::None});
        EXPECT_EQ(selected(), GetParam().to);
    });
}

INSTANTIATE_TEST_SUITE_P(Keys, TreeViewKeysTest,
                         testing::Values(Row{"K1", key::Down, "K11"}, Row{"K11", key::Down, "K12"},
                                         Row{"K12", key::Down, "K2"}, Row{"K2", key::Down, "K2"},
                                         Row{"K2", key::Up, "K12"}, Row{"K11", key::Up, "K1"},
                                         Row{"K1", key::Up, "K1"}, Row{"K11", key::Left, "K1"},
                                         Row{"K1", key::Right, "K11"}, Row{"K11", key::Right, "K11"},
                                         Row{"K2", key::Left, "K2"}));

TEST_F(TreeViewTest, RightOpensFirstAndLeftClosesFirst) {
    person.show(form, [&](Form&) {
        form.moveFocus(tree);
        form.pressKey({key::Right, shift::None});
        EXPECT_TRUE(node("K1").expanded);
        EXPECT_EQ(selected(), "K1");
        form.pressKey({key::Left, shift::None});
        EXPECT_FALSE(node("K1").expanded);
        EXPECT_EQ(selected(), "K1");
    });
}

TEST_F(TreeViewTest, RightOnALeafThatAProgramOpenedDoesNothing) {
    tree.setExpanded(node("K2"), true);
    tree.setSelectedItem(&node("K2"));
    person.show(form, [&](Form&) {
        form.moveFocus(tree);
        form.pressKey({key::Right, shift::None});
        EXPECT_EQ(selected(), "K2");
    });
}

TEST_F(TreeViewTest, KeysInAnEmptyTreeDoNothing) {
    tree.clear();
    person.show(form, [&](Form&) {
        form.moveFocus(tree);
        for (const int code : {key::Up, key::Down, key::Left, key::Right})
            form.pressKey({code, shift::None});
        EXPECT_EQ(selected(), "");
    });
}

} // namespace
TEST_F(TreeViewTest, TellsWhichNodeWasOpenedOrClosedLast) {
    TreeView shown("tv");
    auto& first = shown.add(nullptr, "a", "a");
    auto& second = shown.add(nullptr, "b", "b");
    shown.add(&first, "a1", "a1");
    EXPECT_EQ(nullptr, shown.lastToggled());
    shown.setExpanded(first, true);
    EXPECT_EQ(&first, shown.lastToggled());
    shown.setExpanded(second, false);
    EXPECT_EQ(&first, shown.lastToggled());
    shown.clear();
    EXPECT_EQ(nullptr, shown.lastToggled());
}

TEST_F(TreeViewTest, KnowsTheLowestNodeThatShows) {
    TreeView shown("tv");
    EXPECT_EQ(nullptr, shown.lastShown());
    shown.add(nullptr, "a", "a");
    auto& last = shown.add(nullptr, "b", "b");
    auto& below = shown.add(&last, "b1", "b1");
    EXPECT_EQ(&last, shown.lastShown());
    shown.setExpanded(last, true);
    EXPECT_EQ(&below, shown.lastShown());
}

} // namespace quillmere::ui

#include "CodeSelectorBench.h"

namespace quillmere {
namespace {

using ui::key::Enter;

/// How a code is taken, left as it was, or cleared.
using CodeSelectorChoiceTest = test::CodeSelectorBench;

// Confirming, cancelling, clearing.

TEST_F(CodeSelectorChoiceTest, OkOnTheTreeTakesTheSelectedCode) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        tree().setSelectedItem(tree().find("G0102"));
        press("cmdOK");
        EXPECT_FALSE(form.isOpen());
    });
    EXPECT_EQ(selector.Dmcod, "0102");
    EXPECT_EQ(selector.Dmcpt, "院长");
    EXPECT_FALSE(selector.IsCancelled);
}

TEST_F(CodeSelectorChoiceTest, OkOnAGroupingCodeDoesNothingAndSaysNothing) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        press("cmdOK");
        EXPECT_TRUE(form.isOpen());
    });
    EXPECT_EQ(selector.Dmcod, "77");
    EXPECT_TRUE(selector.IsCancelled);
}

TEST_F(CodeSelectorChoiceTest, OkOnTheTreeWithoutASelectedNodeIsReported) {
    db.createCodeTable("ZW", "职务", {}, {});
    person.expectBox(std::string(descriptionOf(Failure::ObjectNotSet)), "职务代码表");
    open([&](ui::Form& form) {
        press("cmdOK");
        EXPECT_TRUE(form.isOpen());
    });
    ASSERT_EQ(person.boxes().size(), 1U);
    EXPECT_EQ(person.boxes()[0].icon, ui::Icon::Warning);
    EXPECT_EQ(person.boxes()[0].buttons, ui::Buttons::Ok);
    EXPECT_EQ(selector.Dmcod, "77");
}

TEST_F(CodeSelectorChoiceTest, EnterInATreeWithoutNodesIsReportedOnce) {
    db.createCodeTable("ZW", "", {}, {});
    person.expectBox(std::string(descriptionOf(Failure::ObjectNotSet)), "代码帮助窗口");
    open([&](ui::Form& form) {
        form.moveFocus(tree());
        form.pressKey({Enter});
    });
    EXPECT_EQ(person.boxes().size(), 1U);
}

TEST_F(CodeSelectorChoiceTest, ADoubleClickInTheTreeIsOk) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        tree().setSelectedItem(tree().find("G02"));
        form.doubleClick(tree());
        EXPECT_FALSE(form.isOpen());
    });
    EXPECT_EQ(selector.Dmcod, "02");
}

TEST_F(CodeSelectorChoiceTest, ADoubleClickOnAGroupingCodeKeepsTheDialogOpen) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        form.doubleClick(tree());
        EXPECT_TRUE(form.isOpen());
    });
    EXPECT_EQ(selector.Dmcod, "77");
}

TEST_F(CodeSelectorChoiceTest, EnterInTheTreeIsOk) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        tree().setSelectedItem(tree().find("G02"));
        form.pressKey({Enter});
        EXPECT_FALSE(form.isOpen());
    });
    EXPECT_EQ(selector.Dmcpt, "教师");
}

TEST_F(CodeSelectorChoiceTest, AnotherKeyInTheTreeIsNotOk) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        tree().setSelectedItem(tree().find("G02"));
        form.pressKey({ui::key::Space});
        EXPECT_TRUE(form.isOpen());
    });
}

TEST_F(CodeSelectorChoiceTest, EnterInTheListTakesTheSelectedRow) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        searchFor("长");
        form.pressKey({ui::key::Down});
        form.pressKey({Enter});
        EXPECT_FALSE(form.isOpen());
    });
    EXPECT_EQ(selector.Dmcod, "0102");
    EXPECT_EQ(selector.Dmcpt, "院长");
    EXPECT_FALSE(selector.IsCancelled);
}

TEST_F(CodeSelectorChoiceTest, EnterInAListWithoutASelectedRowDoesNothing) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        tabs().setTab(1);
        form.moveFocus(names());
        form.pressKey({Enter});
        EXPECT_TRUE(form.isOpen());
    });
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(CodeSelectorChoiceTest, ADoubleClickInTheListDoesNothing) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        searchFor("长");
        form.doubleClick(names());
        EXPECT_TRUE(form.isOpen());
    });
    EXPECT_EQ(selector.Dmcod, "77");
}

TEST_F(CodeSelectorChoiceTest, OkOnTheListPageWithoutASelectedRowAsksForOne) {
    makeTwoLevels();
    person.expectBox("请选择代码。", "");
    open([&](ui::Form& form) {
        tabs().setTab(1);
        press("cmdOK");
        EXPECT_TRUE(form.isOpen());
    });
    EXPECT_EQ(person.boxes()[0].icon, ui::Icon::None);
    EXPECT_EQ(selector.Dmcod, "77");
}

TEST_F(CodeSelectorChoiceTest, OkTakesThePageOnShowNotTheOther) {
    makeTwoLevels();
    open([&](ui::Form&) {
        tree().setSelectedItem(tree().find("G02"));
        searchFor("校长");
        tabs().setTab(0);
        press("cmdOK");
    });
    EXPECT_EQ(selector.Dmcod, "02");
}

TEST_F(CodeSelectorChoiceTest, CancelLeavesWhatCameIn) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        press("cmdCancel");
        EXPECT_FALSE(form.isOpen());
    });
    EXPECT_EQ(selector.Dmcod, "77");
    EXPECT_EQ(selector.Dmcpt, "原值");
    EXPECT_TRUE(selector.IsCancelled);
}

TEST_F(CodeSelectorChoiceTest, ClearEmptiesCodeAndName) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        press("cmdDel");
        EXPECT_FALSE(form.isOpen());
    });
    EXPECT_EQ(selector.Dmcod, "");
    EXPECT_EQ(selector.Dmcpt, "");
    EXPECT_FALSE(selector.IsCancelled);
}

TEST_F(CodeSelectorChoiceTest, AnApostropheIsSwallowedWithABeepAnywhere) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        form.typeCharacter(U'\'');
        EXPECT_EQ(person.beeps(), 1);
        tabs().setTab(1);
        form.moveFocus(entry());
        test::typeText(form, "a'b");
        EXPECT_EQ(person.beeps(), 2);
    });
    EXPECT_EQ(entry().Text(), "ab");
}

TEST_F(CodeSelectorChoiceTest, AnotherOpeningFillsEverythingAnew) {
    makeTwoLevels();
    open([&](ui::Form&) { searchFor("长"); });
    db.run("delete from ZW where dmcod='0102'");
    db.run("delete from s_CodeTableDefine");
    open([&](ui::Form& form) {
        EXPECT_EQ(form.Caption(), "代码帮助窗口");
        EXPECT_EQ(tree().nodes().size(), 3U);
        EXPECT_EQ(names().ListCount(), 0);
        EXPECT_EQ(tabs().Tab(), 0);
    });
}

} // namespace
} // namespace quillmere

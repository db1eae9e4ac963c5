#include "CodeSelectorBench.h"

namespace quillmere {
namespace {

using Statements = std::vector<std::string>;
using ui::key::Enter;

/// The page where a code is found by its name or its pinyin.
using CodeSelectorSearchTest = test::CodeSelectorBench;

// The search page.

TEST_F(CodeSelectorSearchTest, TheSearchStatementHasAPercentAroundEveryCharacter) {
    makeTwoLevels();
    open([&](ui::Form&) { searchFor("院x"); });
    EXPECT_EQ(db.statements().back(),
              "select dmcod,dmcpt,iif(dmhnd is null, '',dmhnd) as dmhnd  from ZW where dmattr =true and   "
              "dmcod<>''  and dmcpt<>''   and  ( DmCpt like '%院%x%' or   DmHnd like '%院%x%')     order by "
              "dmcod");
}

TEST_F(CodeSelectorSearchTest, ASearchFindsByNameAndByPinyinInOrderOfTheCodes) {
    db.createCodeTable("ZW", "职务", {2},
                       {{"03", "副校长", "fxz"}, {"01", "校务长", "xwz"}, {"02", "其他", "qt"}});
    open([&](ui::Form& form) {
        searchFor("xz");
        EXPECT_EQ(codes().items(), (Statements{"01", "03"}));
        EXPECT_EQ(names().items(), (Statements{"校务长", "副校长"}));
        EXPECT_EQ(names().ListIndex(), 0);
        EXPECT_EQ(form.ActiveControl(), &names());
    });
}

TEST_F(CodeSelectorSearchTest, OnlySelectableCodesAreFound) {
    db.createCodeTable("ZW", "职务", {2},
                       {{"01", "a", "x", true}, {"02", "b", "x", false}, {"03", "c", "x", std::nullopt}});
    open([&](ui::Form&) {
        searchFor("x");
        EXPECT_EQ(codes().items(), (Statements{"01"}));
    });
}

TEST_F(CodeSelectorSearchTest, TypingByItselfFiltersNothing) {
    makeTwoLevels();
    open([&](ui::Form&) {
        searchFor("长");
        const std::size_t statements = db.statements().size();
        selector.moveFocus(entry());
        test::typeText(selector, "xz");
        EXPECT_EQ(db.statements().size(), statements);
        EXPECT_EQ(names().ListCount(), 2);
    });
}

TEST_F(CodeSelectorSearchTest, AnEmptySearchTextDoesNothingAndKeepsTheOldList) {
    makeTwoLevels();
    open([&](ui::Form&) {
        searchFor("长");
        const std::size_t statements = db.statements().size();
        entry().setText("");
        selector.moveFocus(entry());
        selector.pressKey({Enter});
        EXPECT_EQ(db.statements().size(), statements);
        EXPECT_EQ(names().ListCount(), 2);
    });
}

TEST_F(CodeSelectorSearchTest, ASearchThatFindsNothingEmptiesTheListsAndStaysInTheTextBox) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        searchFor("长");
        entry().setText("");
        searchFor("none");
        EXPECT_EQ(names().ListCount(), 0);
        EXPECT_EQ(codes().ListCount(), 0);
        EXPECT_EQ(form.ActiveControl(), &entry());
    });
}

TEST_F(CodeSelectorSearchTest, AFailingSearchReachesTheCallerOfTheDialog) {
    makeTwoLevels();
    EXPECT_EQ(failureOf([&] {
                  open([&](ui::Form&) {
                      db.failing().failAfter(1, "断开");
                      searchFor("长");
                  });
              }),
              number(Failure::StatementFailed));
    EXPECT_FALSE(selector.isOpen());
}

// The pinyin tip.

TEST_F(CodeSelectorSearchTest, TheListTellsThePinyinOfTheRowUnderThePointer) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        searchFor("长");
        names().setRowUnderPointer(1);
        form.moveMouse(names());
        EXPECT_EQ(names().ToolTip(), "拼音输入代码： yz");
    });
}

TEST_F(CodeSelectorSearchTest, ARowWithoutPinyinLeavesTheTipAsItWas) {
    db.createCodeTable("ZW", "职务", {2}, {{"01", "校长", "xz"}, {"02", "院长", std::nullopt}});
    open([&](ui::Form& form) {
        searchFor("长");
        names().setRowUnderPointer(0);
        form.moveMouse(names());
        names().setRowUnderPointer(1);
        form.moveMouse(names());
        EXPECT_EQ(names().ToolTip(), "拼音输入代码： xz");
    });
}

TEST_F(CodeSelectorSearchTest, NoTipWhileAButtonIsDownOrOutsideTheRows) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        searchFor("长");
        names().setRowUnderPointer(0);
        form.moveMouse(names(), ui::mouse::Left);
        for (const int row : {-1, 2, 100}) {
            names().setRowUnderPointer(row);
            form.moveMouse(names());
        }
        EXPECT_EQ(names().ToolTip(), "");
    });
}

} // namespace
} // namespace quillmere

#include "binding/fmGrpCod.h"

#include "support/FailureNumber.h"
#include "support/ScriptedPerson.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace quillmere {
namespace {

using Statements = std::vector<std::string>;
using Node = ui::TreeView::Node;
using ui::key::Enter;

/// The dialog with a script for who works on it, and its widgets by name.
class CodeSelectorTest : public testing::Test {
protected:
    void SetUp() override {
        db.createCatalogue();
        selector.CodeTable = "ZW";
        selector.Dmcod = "77";
        selector.Dmcpt = "原值";
    }

    /// Two levels: 01 (a heading) over 0101 and 0102, and 02.
    void makeTwoLevels() {
        db.createCodeTable("ZW", "职务", {2, 4},
                           {{"01", "领导", "ld", false},
                            {"02", "教师", "js"},
                            {"0101", "校长", "xz"},
                            {"0102", "院长", "yz"}});
    }

    void open(const test::ScriptedPerson::Work& work) { person.show(selector, work); }

    template <class T>
    T& widget(std::string_view name) {
        return test::controlOf<T>(selector, name);
    }
    ui::TreeView& tree() { return widget<ui::TreeView>("tvGrpCod"); }
    ui::TabStrip& tabs() { return widget<ui::TabStrip>("Tab1"); }
    ui::TextBox& entry() { return widget<ui::TextBox>("txtDm"); }
    ui::ListBox& names() { return widget<ui::ListBox>("lstDmCpt"); }
    ui::ListBox& codes() { return widget<ui::ListBox>("lstDmCod"); }

    void press(std::string_view button) { selector.click(widget<ui::CommandButton>(button)); }

    void searchFor(std::string_view text) {
        tabs().setTab(1);
        selector.moveFocus(entry());
        test::typeText(selector, text);
        selector.pressKey({Enter});
    }

    /// Key, parent's key, text and tag of every node, in the order of adding.
    Statements treeRows() {
        Statements rows;
        for (const auto& node : tree().nodes()) {
            rows.push_back(node->key + "<" + (node->parent == nullptr ? "" : node->parent->key) + " " +
                           node->text + " [" + node->tag + "]");
        }
        return rows;
    }

    test::TestDatabase db;
    test::ScriptedPerson person;
    fmGrpCod selector;
};

// Opening.

TEST_F(CodeSelectorTest, OpeningRunsItsStatementsToTheLetter) {
    makeTwoLevels();
    open([](ui::Form&) {});
    EXPECT_EQ(db.statements(),
              (Statements{"select codtbldsc from s_CodeTableDefine where dmgrp ='ZW' ",
                          "select bit from s_CodeLevDefine where dmgrp ='ZW' order by levelnum",
                          "select dmcod,dmcpt,iif(dmattr is null,false,dmattr) as dmattr  from ZW where "
                          "dmcod<>''  and dmcpt<>''    and len(dmcod) =2  order by dmcod",
                          "select dmcod,dmcpt,iif(dmattr is null,false,dmattr) as dmattr from ZW where  "
                          "dmcod<>'' and dmcpt<>''  and len(dmcod) =4  order by dmcod"}));
}

TEST_F(CodeSelectorTest, TheTreeFollowsTheLevels) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        EXPECT_EQ(form.Caption(), "职务代码表");
        EXPECT_EQ(treeRows(), (Statements{"G01< 领导 []", "G02< 教师 [02]", "G0101<G01 校长 [0101]",
                                          "G0102<G01 院长 [0102]"}));
        EXPECT_EQ(tabs().Tab(), 0);
        EXPECT_EQ(tree().Indentation(), 800);
    });
}

TEST_F(CodeSelectorTest, AGroupingCodeShowsGreyAndAnyOtherInTheTextColour) {
    makeTwoLevels();
    open([&](ui::Form&) {
        EXPECT_EQ(tree().find("G01")->foreColor, 0x80000010U);
        EXPECT_EQ(tree().find("G02")->foreColor, 0x80000012U);
    });
}

TEST_F(CodeSelectorTest, ANullAttributeShowsGreyAndHasNoTag) {
    db.createCodeTable("ZW", "职务", {2}, {{"01", "领导", "", std::nullopt}});
    open([&](ui::Form&) {
        EXPECT_EQ(tree().find("G01")->foreColor, 0x80000010U);
        EXPECT_EQ(tree().find("G01")->tag, "");
    });
}

TEST_F(CodeSelectorTest, TheBitIsTheWholeLengthOfACode) {
    db.createCodeTable("ZW", "职务", {1, 3, 6}, {{"1", "a"}, {"102", "b"}, {"102345", "c"}});
    open([&](ui::Form&) {
        EXPECT_EQ(treeRows(), (Statements{"G1< a [1]", "G102<G1 b [102]", "G102345<G102 c [102345]"}));
    });
}

TEST_F(CodeSelectorTest, AnOrphanHangsUnderTheParentOfTheRowBefore) {
    db.createCodeTable("ZW", "职务", {2, 4},
                       {{"01", "a"}, {"02", "b"}, {"0201", "c"}, {"0301", "orphan"}, {"0401", "another"}});
    open([&](ui::Form&) {
        EXPECT_EQ(treeRows(), (Statements{"G01< a [01]", "G02< b [02]", "G0201<G02 c [0201]",
                                          "G0301<G02 orphan [0301]", "G0401<G02 another [0401]"}));
    });
}

TEST_F(CodeSelectorTest, AnOrphanFallsAwayWhenNoParentWasFoundBefore) {
    db.createCodeTable("ZW", "职务", {2, 4}, {{"02", "b"}, {"0101", "orphan"}, {"0201", "c"}});
    open([&](ui::Form&) { EXPECT_EQ(treeRows(), (Statements{"G02< b [02]", "G0201<G02 c [0201]"})); });
}

TEST_F(CodeSelectorTest, AnOrphanOfADeeperLevelTakesTheParentOfWhicheverLevelCameBefore) {
    db.createCodeTable("ZW", "职务", {2, 4, 6}, {{"01", "a"}, {"0101", "b"}, {"020101", "orphan"}});
    open([&](ui::Form&) {
        EXPECT_EQ(treeRows(),
                  (Statements{"G01< a [01]", "G0101<G01 b [0101]", "G020101<G01 orphan [020101]"}));
    });
}

TEST_F(CodeSelectorTest, ACodeOfNoLevelsLengthIsNotInTheTreeButIsFoundBySearching) {
    db.createCodeTable("ZW", "职务", {2}, {{"01", "领导"}, {"013", "顾问"}});
    open([&](ui::Form&) {
        EXPECT_EQ(treeRows(), (Statements{"G01< 领导 [01]"}));
        searchFor("顾问");
        EXPECT_EQ(codes().items(), (Statements{"013"}));
    });
}

TEST_F(CodeSelectorTest, ARepeatedCodeLeavesItsColourAndTagOnTheNodeAddedBeforeIt) {
    db.createCodeTable("ZW", "职务", {2},
                       {{"01", "a"}, {"02", "b"}, {"02", "again", "", false}, {"03", "c"}});
    open([&](ui::Form&) {
        EXPECT_EQ(treeRows(), (Statements{"G01< a [01]", "G02< b []", "G03< c [03]"}));
        EXPECT_EQ(tree().find("G02")->foreColor, 0x80000010U);
    });
}

TEST_F(CodeSelectorTest, ACodeRepeatedInALaterLevelMarksTheLastNodeThatWasAdded) {
    // The level stands in the catalogue twice: the second pass adds nothing, and each of its rows
    // writes its tag on the node that was added last.
    db.createCodeTable("ZW", "职务", {2, 4, 4}, {{"01", "a"}, {"0101", "b"}, {"0102", "c", "", false}});
    open([&](ui::Form&) {
        EXPECT_EQ(treeRows(), (Statements{"G01< a [01]", "G0101<G01 b [0101]", "G0102<G01 c []"}));
    });
}

TEST_F(CodeSelectorTest, ACodeWithoutANameNeverShowsUp) {
    db.createCodeTable("ZW", "职务", {2}, {{"01", "a", "py"}, {"02", "", "py"}, {"", "c", "py"}});
    open([&](ui::Form&) {
        EXPECT_EQ(treeRows(), (Statements{"G01< a [01]"}));
        searchFor("py");
        EXPECT_EQ(codes().items(), (Statements{"01"}));
    });
}

TEST_F(CodeSelectorTest, TheTreeStartsAtTheTopWhateverTheFieldHolds) {
    makeTwoLevels();
    selector.Dmcod = "0102";
    open([&](ui::Form& form) {
        EXPECT_EQ(form.ActiveControl(), &tree());
        ASSERT_NE(tree().SelectedItem(), nullptr);
        EXPECT_EQ(tree().SelectedItem()->key, "G01");
        EXPECT_FALSE(tree().SelectedItem()->expanded);
    });
}

TEST_F(CodeSelectorTest, ASearchTextOpensTheListPageWithItsResult) {
    makeTwoLevels();
    selector.SearchText = "长";
    open([&](ui::Form& form) {
        EXPECT_EQ(tabs().Tab(), 1);
        EXPECT_EQ(entry().Text(), "长");
        EXPECT_EQ(names().items(), (Statements{"校长", "院长"}));
        EXPECT_EQ(form.ActiveControl(), &names());
        form.pressKey({Enter});
    });
    EXPECT_EQ(selector.Dmcod, "0101");
}

TEST_F(CodeSelectorTest, TheSkinIsLoadedFromAnEmptyPathAndApplied) {
    makeTwoLevels();
    open([&](ui::Form&) {
        EXPECT_EQ(widget<ui::Skin>("Skin1").path(), "");
        EXPECT_TRUE(widget<ui::Skin>("Skin1").isApplied());
    });
}

TEST_F(CodeSelectorTest, ThePagesAndButtonsBearTheirCaptions) {
    EXPECT_EQ(selector.Caption(), "代码帮助窗口");
    EXPECT_EQ(tabs().captions(), (Statements{"浏览查询", "录入查询"}));
    EXPECT_EQ(widget<ui::Label>("Label1").Caption(), "录入查询请输入相应汉字或拼音首字母！");
    EXPECT_EQ(widget<ui::CommandButton>("cmdOK").Caption(), "确定");
    EXPECT_EQ(widget<ui::CommandButton>("cmdCancel").Caption(), "取消");
    EXPECT_EQ(widget<ui::CommandButton>("cmdDel").Caption(), "清空");
    EXPECT_FALSE(codes().Visible());
}

// Opening with failures.

TEST_F(CodeSelectorTest, AMissingCodeTableLeavesAnEmptyTreeAndTheDesignCaption) {
    db.run("insert into s_CodeLevDefine values ('ZW', 1, 2)");
    open([&](ui::Form& form) {
        EXPECT_EQ(form.Caption(), "代码帮助窗口");
        EXPECT_TRUE(tree().nodes().empty());
        EXPECT_TRUE(widget<ui::Skin>("Skin1").isApplied());
    });
}

TEST_F(CodeSelectorTest, EveryStatementMayFailWhileTheDialogOpens) {
    makeTwoLevels();
    for (int statement = 1; statement <= 4; ++statement) {
        fmGrpCod fresh;
        fresh.CodeTable = "ZW";
        db.failing().failAfter(statement, "断开");
        person.show(fresh, [&](ui::Form& form) {
            const auto& nodes = test::controlOf<ui::TreeView>(form, "tvGrpCod").nodes();
            EXPECT_EQ(form.Caption() == "代码帮助窗口", statement == 1);
            constexpr std::size_t expected[] = {4, 0, 0, 2};
            EXPECT_EQ(nodes.size(), expected[statement - 1]) << "statement " << statement;
            EXPECT_TRUE(test::controlOf<ui::Skin>(form, "Skin1").isApplied());
        });
        db.failing().failOff();
    }
}

TEST_F(CodeSelectorTest, AFailingMiddleLevelIsSkippedAndTheNextOneRuns) {
    db.createCodeTable("ZW", "职务", {2, 4, 4}, {{"01", "a"}, {"0101", "b"}});
    db.failing().failAfter(4, "断开");
    open([&](ui::Form&) {
        EXPECT_EQ(db.statements().size(), 5U);
        // The parent of the last level is looked up at the failed level's length, and is not there.
        EXPECT_EQ(treeRows(), (Statements{"G01< a [01]"}));
    });
}

TEST_F(CodeSelectorTest, WithoutLevelsThereIsNoTreeButTheSearchPageWorks) {
    db.createCodeTable("ZW", "职务", {}, {{"01", "领导", "ld"}});
    open([&](ui::Form&) {
        EXPECT_EQ(db.statements().size(), 2U);
        EXPECT_TRUE(tree().nodes().empty());
        EXPECT_EQ(tree().Indentation(), 800);
        searchFor("ld");
        EXPECT_EQ(names().items(), (Statements{"领导"}));
    });
}

TEST_F(CodeSelectorTest, AnEmptyTopLevelEndsTheOpeningBeforePagesAndIndentation) {
    db.createCodeTable("ZW", "职务", {2, 4}, {{"0101", "校长"}});
    selector.SearchText = "校";
    open([&](ui::Form&) {
        EXPECT_EQ(db.statements().size(), 3U);
        EXPECT_EQ(tabs().Tab(), 0);
        EXPECT_EQ(tree().Indentation(), 0);
        EXPECT_TRUE(names().items().empty());
        EXPECT_TRUE(widget<ui::Skin>("Skin1").isApplied());
    });
}

TEST_F(CodeSelectorTest, ALevelWithoutALengthCountsAsLengthNone) {
    makeTwoLevels();
    db.run("update s_CodeLevDefine set bit=null where levelnum=2");
    open([&](ui::Form&) {
        EXPECT_NE(db.statements().back().find("len(dmcod) =0 "), std::string::npos);
        EXPECT_EQ(tree().nodes().size(), 2U);
    });
}

TEST_F(CodeSelectorTest, ANullDescriptionLeavesTheDesignCaption) {
    makeTwoLevels();
    db.run("update s_CodeTableDefine set codtbldsc=null");
    open([&](ui::Form& form) { EXPECT_EQ(form.Caption(), "代码帮助窗口"); });
}

TEST_F(CodeSelectorTest, AFailingSearchWhileOpeningIsSuppressed) {
    makeTwoLevels();
    selector.SearchText = "长";
    db.failing().failOn("DmCpt like", "断开");
    open([&](ui::Form&) {
        EXPECT_EQ(tabs().Tab(), 1);
        EXPECT_EQ(tree().Indentation(), 800);
    });
}

// The search page.

TEST_F(CodeSelectorTest, TheSearchStatementHasAPercentAroundEveryCharacter) {
    makeTwoLevels();
    open([&](ui::Form&) { searchFor("院x"); });
    EXPECT_EQ(db.statements().back(),
              "select dmcod,dmcpt,iif(dmhnd is null, '',dmhnd) as dmhnd  from ZW where dmattr =true and   "
              "dmcod<>''  and dmcpt<>''   and  ( DmCpt like '%院%x%' or   DmHnd like '%院%x%')     order by "
              "dmcod");
}

TEST_F(CodeSelectorTest, ASearchFindsByNameAndByPinyinInOrderOfTheCodes) {
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

TEST_F(CodeSelectorTest, OnlySelectableCodesAreFound) {
    db.createCodeTable("ZW", "职务", {2},
                       {{"01", "a", "x", true}, {"02", "b", "x", false}, {"03", "c", "x", std::nullopt}});
    open([&](ui::Form&) {
        searchFor("x");
        EXPECT_EQ(codes().items(), (Statements{"01"}));
    });
}

TEST_F(CodeSelectorTest, TypingByItselfFiltersNothing) {
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

TEST_F(CodeSelectorTest, AnEmptySearchTextDoesNothingAndKeepsTheOldList) {
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

TEST_F(CodeSelectorTest, ASearchThatFindsNothingEmptiesTheListsAndStaysInTheTextBox) {
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

TEST_F(CodeSelectorTest, AFailingSearchReachesTheCallerOfTheDialog) {
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

TEST_F(CodeSelectorTest, TheListTellsThePinyinOfTheRowUnderThePointer) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        searchFor("长");
        names().setRowUnderPointer(1);
        form.moveMouse(names());
        EXPECT_EQ(names().ToolTip(), "拼音输入代码： yz");
    });
}

TEST_F(CodeSelectorTest, ARowWithoutPinyinLeavesTheTipAsItWas) {
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

TEST_F(CodeSelectorTest, NoTipWhileAButtonIsDownOrOutsideTheRows) {
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

// Confirming, cancelling, clearing.

TEST_F(CodeSelectorTest, OkOnTheTreeTakesTheSelectedCode) {
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

TEST_F(CodeSelectorTest, OkOnAGroupingCodeDoesNothingAndSaysNothing) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        press("cmdOK");
        EXPECT_TRUE(form.isOpen());
    });
    EXPECT_EQ(selector.Dmcod, "77");
    EXPECT_TRUE(selector.IsCancelled);
}

TEST_F(CodeSelectorTest, OkOnTheTreeWithoutASelectedNodeIsReported) {
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

TEST_F(CodeSelectorTest, EnterInATreeWithoutNodesIsReportedOnce) {
    db.createCodeTable("ZW", "", {}, {});
    person.expectBox(std::string(descriptionOf(Failure::ObjectNotSet)), "代码帮助窗口");
    open([&](ui::Form& form) {
        form.moveFocus(tree());
        form.pressKey({Enter});
    });
    EXPECT_EQ(person.boxes().size(), 1U);
}

TEST_F(CodeSelectorTest, ADoubleClickInTheTreeIsOk) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        tree().setSelectedItem(tree().find("G02"));
        form.doubleClick(tree());
        EXPECT_FALSE(form.isOpen());
    });
    EXPECT_EQ(selector.Dmcod, "02");
}

TEST_F(CodeSelectorTest, ADoubleClickOnAGroupingCodeKeepsTheDialogOpen) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        form.doubleClick(tree());
        EXPECT_TRUE(form.isOpen());
    });
    EXPECT_EQ(selector.Dmcod, "77");
}

TEST_F(CodeSelectorTest, EnterInTheTreeIsOk) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        tree().setSelectedItem(tree().find("G02"));
        form.pressKey({Enter});
        EXPECT_FALSE(form.isOpen());
    });
    EXPECT_EQ(selector.Dmcpt, "教师");
}

TEST_F(CodeSelectorTest, AnotherKeyInTheTreeIsNotOk) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        tree().setSelectedItem(tree().find("G02"));
        form.pressKey({ui::key::Space});
        EXPECT_TRUE(form.isOpen());
    });
}

TEST_F(CodeSelectorTest, EnterInTheListTakesTheSelectedRow) {
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

TEST_F(CodeSelectorTest, EnterInAListWithoutASelectedRowDoesNothing) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        tabs().setTab(1);
        form.moveFocus(names());
        form.pressKey({Enter});
        EXPECT_TRUE(form.isOpen());
    });
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(CodeSelectorTest, ADoubleClickInTheListDoesNothing) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        searchFor("长");
        form.doubleClick(names());
        EXPECT_TRUE(form.isOpen());
    });
    EXPECT_EQ(selector.Dmcod, "77");
}

TEST_F(CodeSelectorTest, OkOnTheListPageWithoutASelectedRowAsksForOne) {
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

TEST_F(CodeSelectorTest, OkTakesThePageOnShowNotTheOther) {
    makeTwoLevels();
    open([&](ui::Form&) {
        tree().setSelectedItem(tree().find("G02"));
        searchFor("校长");
        tabs().setTab(0);
        press("cmdOK");
    });
    EXPECT_EQ(selector.Dmcod, "02");
}

TEST_F(CodeSelectorTest, CancelLeavesWhatCameIn) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        press("cmdCancel");
        EXPECT_FALSE(form.isOpen());
    });
    EXPECT_EQ(selector.Dmcod, "77");
    EXPECT_EQ(selector.Dmcpt, "原值");
    EXPECT_TRUE(selector.IsCancelled);
}

TEST_F(CodeSelectorTest, ClearEmptiesCodeAndName) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        press("cmdDel");
        EXPECT_FALSE(form.isOpen());
    });
    EXPECT_EQ(selector.Dmcod, "");
    EXPECT_EQ(selector.Dmcpt, "");
    EXPECT_FALSE(selector.IsCancelled);
}

TEST_F(CodeSelectorTest, AnApostropheIsSwallowedWithABeepAnywhere) {
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

TEST_F(CodeSelectorTest, AnotherOpeningFillsEverythingAnew) {
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

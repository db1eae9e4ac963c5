#include "CodeSelectorBench.h"

namespace quillmere {
namespace {

using Statements = std::vector<std::string>;
using ui::key::Enter;

/// What the dialog shows when it opens, and what it makes of failures meanwhile.
using CodeSelectorOpeningTest = test::CodeSelectorBench;

TEST_F(CodeSelectorOpeningTest, OpeningRunsItsStatementsToTheLetter) {
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

TEST_F(CodeSelectorOpeningTest, TheTreeFollowsTheLevels) {
    makeTwoLevels();
    open([&](ui::Form& form) {
        EXPECT_EQ(form.Caption(), "职务代码表");
        EXPECT_EQ(treeRows(), (Statements{"G01< 领导 []", "G02< 教师 [02]", "G0101<G01 校长 [0101]",
                                          "G0102<G01 院长 [0102]"}));
        EXPECT_EQ(tabs().Tab(), 0);
        EXPECT_EQ(tree().Indentation(), 800);
    });
}

TEST_F(CodeSelectorOpeningTest, AGroupingCodeShowsGreyAndAnyOtherInTheTextColour) {
    makeTwoLevels();
    open([&](ui::Form&) {
        EXPECT_EQ(tree().find("G01")->foreColor, 0x80000010U);
        EXPECT_EQ(tree().find("G02")->foreColor, 0x80000012U);
    });
}

TEST_F(CodeSelectorOpeningTest, ANullAttributeShowsGreyAndHasNoTag) {
    db.createCodeTable("ZW", "职务", {2}, {{"01", "领导", "", std::nullopt}});
    open([&](ui::Form&) {
        EXPECT_EQ(tree().find("G01")->foreColor, 0x80000010U);
        EXPECT_EQ(tree().find("G01")->tag, "");
    });
}

TEST_F(CodeSelectorOpeningTest, TheBitIsTheWholeLengthOfACode) {
    db.createCodeTable("ZW", "职务", {1, 3, 6}, {{"1", "a"}, {"102", "b"}, {"102345", "c"}});
    open([&](ui::Form&) {
        EXPECT_EQ(treeRows(), (Statements{"G1< a [1]", "G102<G1 b [102]", "G102345<G102 c [102345]"}));
    });
}

TEST_F(CodeSelectorOpeningTest, AnOrphanHangsUnderTheParentOfTheRowBefore) {
    db.createCodeTable("ZW", "职务", {2, 4},
                       {{"01", "a"}, {"02", "b"}, {"0201", "c"}, {"0301", "orphan"}, {"0401", "another"}});
    open([&](ui::Form&) {
        EXPECT_EQ(treeRows(), (Statements{"G01< a [01]", "G02< b [02]", "G0201<G02 c [0201]",
                                          "G0301<G02 orphan [0301]", "G0401<G02 another [0401]"}));
    });
}

TEST_F(CodeSelectorOpeningTest, AnOrphanFallsAwayWhenNoParentWasFoundBefore) {
    db.createCodeTable("ZW", "职务", {2, 4}, {{"02", "b"}, {"0101", "orphan"}, {"0201", "c"}});
    open([&](ui::Form&) { EXPECT_EQ(treeRows(), (Statements{"G02< b [02]", "G0201<G02 c [0201]"})); });
}

TEST_F(CodeSelectorOpeningTest, AnOrphanOfADeeperLevelTakesTheParentOfWhicheverLevelCameBefore) {
    db.createCodeTable("ZW", "职务", {2, 4, 6}, {{"01", "a"}, {"0101", "b"}, {"020101", "orphan"}});
    open([&](ui::Form&) {
        EXPECT_EQ(treeRows(),
                  (Statements{"G01< a [01]", "G0101<G01 b [0101]", "G020101<G01 orphan [020101]"}));
    });
}

TEST_F(CodeSelectorOpeningTest, ACodeOfNoLevelsLengthIsNotInTheTreeButIsFoundBySearching) {
    db.createCodeTable("ZW", "职务", {2}, {{"01", "领导"}, {"013", "顾问"}});
    open([&](ui::Form&) {
        EXPECT_EQ(treeRows(), (Statements{"G01< 领导 [01]"}));
        searchFor("顾问");
        EXPECT_EQ(codes().items(), (Statements{"013"}));
    });
}

TEST_F(CodeSelectorOpeningTest, ARepeatedCodeLeavesItsColourAndTagOnTheNodeAddedBeforeIt) {
    db.createCodeTable("ZW", "职务", {2},
                       {{"01", "a"}, {"02", "b"}, {"02", "again", "", false}, {"03", "c"}});
    open([&](ui::Form&) {
        EXPECT_EQ(treeRows(), (Statements{"G01< a [01]", "G02< b []", "G03< c [03]"}));
        EXPECT_EQ(tree().find("G02")->foreColor, 0x80000010U);
    });
}

TEST_F(CodeSelectorOpeningTest, ACodeRepeatedInALaterLevelMarksTheLastNodeThatWasAdded) {
    // The level stands in the catalogue twice: the second pass adds nothing, and each of its rows
    // writes its tag on the node that was added last.
    db.createCodeTable("ZW", "职务", {2, 4, 4}, {{"01", "a"}, {"0101", "b"}, {"0102", "c", "", false}});
    open([&](ui::Form&) {
        EXPECT_EQ(treeRows(), (Statements{"G01< a [01]", "G0101<G01 b [0101]", "G0102<G01 c []"}));
    });
}

TEST_F(CodeSelectorOpeningTest, ACodeWithoutANameNeverShowsUp) {
    db.createCodeTable("ZW", "职务", {2}, {{"01", "a", "py"}, {"02", "", "py"}, {"", "c", "py"}});
    open([&](ui::Form&) {
        EXPECT_EQ(treeRows(), (Statements{"G01< a [01]"}));
        searchFor("py");
        EXPECT_EQ(codes().items(), (Statements{"01"}));
    });
}

TEST_F(CodeSelectorOpeningTest, TheTreeStartsAtTheTopWhateverTheFieldHolds) {
    makeTwoLevels();
    selector.Dmcod = "0102";
    open([&](ui::Form& form) {
        EXPECT_EQ(form.ActiveControl(), &tree());
        ASSERT_NE(tree().SelectedItem(), nullptr);
        EXPECT_EQ(tree().SelectedItem()->key, "G01");
        EXPECT_FALSE(tree().SelectedItem()->expanded);
    });
}

TEST_F(CodeSelectorOpeningTest, ASearchTextOpensTheListPageWithItsResult) {
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

TEST_F(CodeSelectorOpeningTest, TheSkinIsLoadedFromAnEmptyPathAndApplied) {
    makeTwoLevels();
    open([&](ui::Form&) {
        EXPECT_EQ(widget<ui::Skin>("Skin1").path(), "");
        EXPECT_TRUE(widget<ui::Skin>("Skin1").isApplied());
    });
}

TEST_F(CodeSelectorOpeningTest, ThePagesAndButtonsBearTheirCaptions) {
    EXPECT_EQ(selector.Caption(), "代码帮助窗口");
    EXPECT_EQ(tabs().captions(), (Statements{"浏览查询", "录入查询"}));
    EXPECT_EQ(widget<ui::Label>("Label1").Caption(), "录入查询请输入相应汉字或拼音首字母！");
    EXPECT_EQ(widget<ui::CommandButton>("cmdOK").Caption(), "确定");
    EXPECT_EQ(widget<ui::CommandButton>("cmdCancel").Caption(), "取消");
    EXPECT_EQ(widget<ui::CommandButton>("cmdDel").Caption(), "清空");
    EXPECT_FALSE(codes().Visible());
}

// Opening with failures.

TEST_F(CodeSelectorOpeningTest, AMissingCodeTableLeavesAnEmptyTreeAndTheDesignCaption) {
    db.run("insert into s_CodeLevDefine values ('ZW', 1, 2)");
    open([&](ui::Form& form) {
        EXPECT_EQ(form.Caption(), "代码帮助窗口");
        EXPECT_TRUE(tree().nodes().empty());
        EXPECT_TRUE(widget<ui::Skin>("Skin1").isApplied());
    });
}

TEST_F(CodeSelectorOpeningTest, EveryStatementMayFailWhileTheDialogOpens) {
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

TEST_F(CodeSelectorOpeningTest, AFailingMiddleLevelIsSkippedAndTheNextOneRuns) {
    db.createCodeTable("ZW", "职务", {2, 4, 4}, {{"01", "a"}, {"0101", "b"}});
    db.failing().failAfter(4, "断开");
    open([&](ui::Form&) {
        EXPECT_EQ(db.statements().size(), 5U);
        // The parent of the last level is looked up at the failed level's length, and is not there.
        EXPECT_EQ(treeRows(), (Statements{"G01< a [01]"}));
    });
}

TEST_F(CodeSelectorOpeningTest, WithoutLevelsThereIsNoTreeButTheSearchPageWorks) {
    db.createCodeTable("ZW", "职务", {}, {{"01", "领导", "ld"}});
    open([&](ui::Form&) {
        EXPECT_EQ(db.statements().size(), 2U);
        EXPECT_TRUE(tree().nodes().empty());
        EXPECT_EQ(tree().Indentation(), 800);
        searchFor("ld");
        EXPECT_EQ(names().items(), (Statements{"领导"}));
    });
}

TEST_F(CodeSelectorOpeningTest, AnEmptyTopLevelEndsTheOpeningBeforePagesAndIndentation) {
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

TEST_F(CodeSelectorOpeningTest, ALevelWithoutALengthCountsAsLengthNone) {
    makeTwoLevels();
    db.run("update s_CodeLevDefine set bit=null where levelnum=2");
    open([&](ui::Form&) {
        EXPECT_NE(db.statements().back().find("len(dmcod) =0 "), std::string::npos);
        EXPECT_EQ(tree().nodes().size(), 2U);
    });
}

TEST_F(CodeSelectorOpeningTest, ANullDescriptionLeavesTheDesignCaption) {
    makeTwoLevels();
    db.run("update s_CodeTableDefine set codtbldsc=null");
    open([&](ui::Form& form) { EXPECT_EQ(form.Caption(), "代码帮助窗口"); });
}

TEST_F(CodeSelectorOpeningTest, AFailingSearchWhileOpeningIsSuppressed) {
    makeTwoLevels();
    selector.SearchText = "长";
    db.failing().failOn("DmCpt like", "断开");
    open([&](ui::Form&) {
        EXPECT_EQ(tabs().Tab(), 1);
        EXPECT_EQ(tree().Indentation(), 800);
    });
}

} // namespace
} // namespace quillmere

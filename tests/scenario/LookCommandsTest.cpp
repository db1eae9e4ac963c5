#include "scenario/Playing.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quillmere::test {

namespace {

using Lines = std::vector<std::string>;
using scenario::Status;

bool has(const Played& played, std::string_view line) {
    return std::ranges::find(played.printed, line) != played.printed.end();
}

TEST(LookCommands, GetPrintsTheValue) {
    const Played played = playInWindow("get A01_A0101_v.Text\nget LabInterFace.Caption\n"
                                       "get toolbar.Add.Enabled\ntoolbar Exit\n");
    EXPECT_TRUE(has(played, "GET A01_A0101_v.Text = 秦志明"));
    EXPECT_TRUE(has(played, "GET LabInterFace.Caption = "
                            "加粗标题为必填项\\r\\n\\r\\n蓝色文本框可双击鼠标左键选择代码"));
    EXPECT_TRUE(has(played, "GET toolbar.Add.Enabled = true"));
}

TEST(LookCommands, ExpectPrintsOnlyWhatDoesNotHold) {
    const Played played = playInWindow("expect A01_A0101_v.Text 秦志明\nexpect window.IsSaved true\n"
                                       "expect A01_A0101_v.Text \"\"\ntoolbar Exit\n");
    EXPECT_EQ(played.printed,
              (Lines{"WINDOW 信息维护 opened", "FAILED 8: expected |true| got |false|",
                     "FAILED 9: expected || got |秦志明|", "WINDOW 信息维护 closed", "RETURN false"}));
    EXPECT_EQ(played.status, Status::Failed);
    EXPECT_EQ(played.complaints, "");
}

TEST(LookCommands, EveryPathOfTheWindowLeadsSomewhere) {
    const Played played = playInWindow(
        "menu 1 2\n"
        "expect window.personID 0980DF6D-BB1D-4BD6-830D-A1D754D4F9DF\nexpect window.OperationType 4\n"
        "expect window.IsSaved false\nexpect window.WhState 4\nexpect window.ProjectStage 01\n"
        "expect window.panel A1ctrlUserA02\nexpect window.focus A02_A0201_v\n"
        "expect global.gZZType 1\nexpect global.gZZYear 2026\n"
        "expect info.id 1\nexpect info.personID 0980DF6D-BB1D-4BD6-830D-A1D754D4F9DF\n"
        "expect info.TabId A02\nexpect info.IsMult true\nexpect info.IsChange false\n"
        "expect info.FldOrder A0201\nexpect toolbar.Exit.Enabled true\n"
        "expect VMenu1.OpenGroup 1\nexpect VMenu1.AddressedGroup 1\nexpect VMenu1.AddressedItem 2\n"
        "expect frmCtrl.Enabled true\nexpect form.caption 信息维护\nexpect rows.count 0\ntoolbar Exit\n");
    EXPECT_EQ(played.status, Status::Held) << played.transcript << played.complaints;
}

TEST(LookCommands, EveryPropertyOfAFieldCanBeRead) {
    const Played played =
        playInWindow("expect field.A01_A0104.TblName A01\nexpect field.a01_a0104.ItemName A0104\n"
                     "expect field.A01_A0104.ItemDesc 性别\nexpect field.A01_A0104.FieldType varchar\n"
                     "expect field.A01_A0104.FieldLength 10\nexpect field.A01_A0104.CodeTable DM_XB\n"
                     "expect field.A01_A0104.Style \"\"\nexpect field.A01_A0104.Check \"\"\n"
                     "expect field.A01_A0104.FldOrder 30\nexpect field.A01_A0104.FldWidth 1600\n"
                     "expect field.A01_A0104.FldExplain 双击左键，从性别代码表中选择。\n"
                     "expect field.A01_A0104.IsNUll true\nexpect field.A01_A0101.IsNUll false\n"
                     "expect field.A01_A0104.Dmcod 1\nexpect field.A01_A0104.Dmcpt 男\ntoolbar Exit\n");
    EXPECT_EQ(played.status, Status::Held) << played.transcript << played.complaints;
}

TEST(LookCommands, TheWindowIsStillThereBehindADialogAndAfterClosing) {
    const Played played = playInWindow("dblclick A01_A0104_v\nexpect VMenu1.OpenGroup 2\n"
                                       "expect toolbar.Save.Enabled true\nexpect info.TabId A01\n"
                                       "expect window.focus tvGrpCod\nclose\ntoolbar Exit\n"
                                       "expect window.panel \"\"\nexpect window.focus \"\"\n"
                                       "expect window.WhState 4\n");
    EXPECT_EQ(played.status, Status::Held) << played.transcript << played.complaints;
}

TEST(LookCommands, MenusListsAllGroups) {
    const Played played = playInWindow("menus\ntoolbar Exit\n");
    EXPECT_TRUE(has(played, "MENU 1 1 A01 人员基本信息"));
    EXPECT_TRUE(has(played, "MENU 2 3 P01 经费使用安排"));
    EXPECT_TRUE(has(played, "MENU 5 8 F09 单位意见"));
    EXPECT_TRUE(has(played, "OPEN 2"));
    EXPECT_TRUE(has(played, "ADDRESSED 1 1"));
}

TEST(LookCommands, ControlsListsThePanelInItsOrder) {
    const Played played = playInWindow("menu 1 2\ncontrols\ntoolbar Exit\n");
    const auto title = std::ranges::find(played.printed, "CONTROL Title Label true true 0");
    const auto first = std::ranges::find(played.printed, "CONTROL A02_A0201_v MaskEdBox true true 8");
    const auto grid = std::ranges::find(played.printed, "CONTROL DGItems DataGrid true true 17");
    ASSERT_NE(grid, played.printed.end());
    EXPECT_LT(title, first);
    EXPECT_LT(first, grid);
}

TEST(LookCommands, GridPrintsHeadingsRowsAndTheCurrentRow) {
    const Played played = playInWindow(
        "sql \"update s_infoitem set itemdesc='' where tblname='A02' and itemname in "
        "('A0202','A0204','A0205')\"\n"
        "sql \"delete from A02\"\n"
        "sql \"insert into A02(A00,A0299,A0201,A0203) values('0980DF6D-BB1D-4BD6-830D-A1D754D4F9DF',1,"
        "'1990-03','甲大学')\"\n"
        "sql \"insert into A02(A00,A0299,A0201,A0203) values('0980DF6D-BB1D-4BD6-830D-A1D754D4F9DF',2,"
        "'1994-09','乙大学')\"\n"
        "menu 1 2\ngrid DGItems 2\ngrid DGItems\n"
        "sql \"delete from A02\"\nmenu 1 2\ngrid dgitems\ntoolbar Exit\n");
    EXPECT_EQ(played.printed,
              (Lines{"WINDOW 信息维护 opened", "COLS 序号|起始年月|就读院校（系）", "ROW 1|1990.03|甲大学",
                     "ROW 2|1994.09|乙大学", "CURRENT 2", "COLS 序号|起始年月|就读院校（系）", "CURRENT 0",
                     "WINDOW 信息维护 closed", "RETURN false"}));
}

TEST(LookCommands, NodesPrintsTheTreeDepthFirst) {
    const Played played = playInWindow("dblclick A01_A0130_v\nnodes tvGrpCod\nclose\ntoolbar Exit\n");
    EXPECT_TRUE(std::ranges::any_of(
        played.printed, [](const std::string& line) { return line.starts_with("NODE 0 G01 市委系统 "); }));
    const auto child = std::ranges::find_if(played.printed, [](const std::string& line) {
        return line.starts_with("NODE 1 G0101 市委办公厅 0101 ");
    });
    const auto next = std::ranges::find_if(
        played.printed, [](const std::string& line) { return line.starts_with("NODE 0 G02 "); });
    EXPECT_NE(child, played.printed.end());
    EXPECT_LT(child, next);
}

TEST(LookCommands, ListPrintsItemsAndTheSelectedRow) {
    const Played played = playInWindow("dblclick A01_A0104_v\ntab Tab1 1\nlist lstDmCpt\n"
                                       "type txtDm 性别\npress Enter\nlist lstDmCpt 2\nlist lstDmCpt\n"
                                       "close\ntoolbar Exit\n");
    const auto first = std::ranges::find(played.printed, "SELECTED 0");
    ASSERT_NE(first, played.printed.end());
    EXPECT_TRUE(has(played, "ITEM 未知的性别"));
    EXPECT_TRUE(has(played, "ITEM 未说明的性别"));
    EXPECT_TRUE(has(played, "SELECTED 2"));
}

TEST(LookCommands, AShotOfNoScreenIsNothing) {
    const Played played = playInWindow("shot main\ntoolbar Exit\nshot after\n");
    EXPECT_EQ(played.printed, (Lines{"WINDOW 信息维护 opened", "WINDOW 信息维护 closed", "RETURN false"}));
    EXPECT_EQ(played.status, Status::Held);
}

TEST(LookCommands, AMessageBoxShowsTitleTextButtonsAndIcon) {
    const Played played =
        playInWindow("type A01_A0101_v x\npress Backspace\npaste A01_A0103_v 1\ntoolbar Save\n"
                     "answer ok\ntoolbar Delete\nanswer no\nclose\n");
    EXPECT_TRUE(has(played, "MSG 错误信息|姓名 为必填项\\r\\n身份证号长度应该为0或15或18位。|ok|none"));
    EXPECT_TRUE(has(played, "MSG 信息维护|此操作将删除此人所有信息，是否删除？|yesno|none"));
}

} // namespace

} // namespace quillmere::test

#include "scenario/Playing.h"

#include <gtest/gtest.h>

namespace quillmere::test {

namespace {

using Lines = std::vector<std::string>;
using scenario::Status;

constexpr std::string_view noAndOut = "toolbar Exit\nanswer no\n";

/// Plays lines in the window and expects every expectation in them to hold.
void holds(const std::string& lines) {
    const Played played = playInWindow(lines);
    EXPECT_EQ(played.status, Status::Held) << played.transcript << played.complaints;
}

TEST(PersonCommands, TypeReplacesWhatStoodThere) {
    holds("type A01_A0119_v 桥梁\nexpect A01_A0119_v.Text 桥梁\nexpect window.focus A01_A0119_v\n"
          "type A01_A0119_v 隧道\nexpect A01_A0119_v.Text 隧道\n" +
          std::string(noAndOut));
}

TEST(PersonCommands, WidgetNamesHaveNoCase) {
    holds("type a01_a0119_V 桥梁\nexpect A01_A0119_v.text 桥梁\n" + std::string(noAndOut));
}

TEST(PersonCommands, KeysGoOnWhereTheCaretIs) {
    holds("type A01_A0119_v 桥梁\nkeys 结构\npress Home\nkeys \"新 \"\n"
          "expect A01_A0119_v.Text \"新 桥梁结构\"\n" +
          std::string(noAndOut));
}

TEST(PersonCommands, KeysPassTheFiltersOfTheWidget) {
    holds("type A01_A0125_v 1a0b0\nexpect A01_A0125_v.Text 100\n" + std::string(noAndOut));
    holds("type A01_A0106_v 20010203\nexpect A01_A0106_v.Text 2001年02月03日\n" + std::string(noAndOut));
}

TEST(PersonCommands, PasteComesAsAWhole) {
    holds("paste A01_A0119_v 岩土工程\nexpect A01_A0119_v.Text 岩土工程\n" + std::string(noAndOut));
}

TEST(PersonCommands, PressEditsAndMoves) {
    holds("type A01_A0119_v abcd\npress Left\npress Backspace\npress Home\npress Delete\n"
          "expect A01_A0119_v.Text bd\npress End\npress Tab\nexpect window.focus A01_A0120_v\n"
          "press Shift+Tab\nexpect window.focus A01_A0119_v\n" +
          std::string(noAndOut));
}

TEST(PersonCommands, ALineEndIsOneEnterHoweverItIsWritten) {
    holds("menu 1 10\nexpect window.panel A1ctrlUserA10\n"
          "type A10_A1001_v \"a\\r\\nb\\nc\"\nexpect A10_A1001_v.Text \"a\\r\\nb\\r\\nc\"\n" +
          std::string(noAndOut));
}

TEST(PersonCommands, FocusMovesAsAClickDoes) {
    holds("focus A01_A0110_v\nexpect window.focus A01_A0110_v\n"
          "expect labExplain.Caption 请填写取得最高学历的院校全称。\ntoolbar Exit\n");
}

TEST(PersonCommands, AFocusThatIsRefusedIsNoReasonToStop) {
    const Played played = playInWindow("type A01_A0103_v 1\nfocus A01_A0101_v\nanswer ok\n"
                                       "expect window.focus A01_A0103_v\n" +
                                       std::string(noAndOut));
    EXPECT_EQ(played.status, Status::Held) << played.complaints;
}

TEST(PersonCommands, MenuOpensTheGroupAndClicksTheItem) {
    holds("menu 3 1\nexpect VMenu1.OpenGroup 3\nexpect VMenu1.AddressedGroup 3\n"
          "expect window.panel A1ctrlUserPP01A\ntoolbar Exit\n");
}

TEST(PersonCommands, GridClicksARow) {
    holds("menu 1 2\ngrid DGItems 2\nexpect DGItems.Row 2\nexpect info.id 2\ntoolbar Exit\n");
}

TEST(PersonCommands, PanelKeysReachThePanel) {
    holds("menu 1 2\npress Ctrl+.\nexpect info.id 2\npress Ctrl+,\nexpect info.id 1\n"
          "press Ctrl+N\nexpect info.id 3\ntoolbar Exit\n");
}

TEST(PersonCommands, AnOpenDialogTakesTheLinesThatFollow) {
    const Played played = playInWindow("dblclick A01_A0104_v\n"
                                       "expect form.caption 性别代码表\n"
                                       "tree tvGrpCod G1\nexpect tvGrpCod.SelectedItem G1\n"
                                       "tree tvGrpCod G2 dbl\n"
                                       "expect form.caption 信息维护\n"
                                       "expect A01_A0104_v.Text 女\nexpect field.A01_A0104.Dmcod 2\n" +
                                       std::string(noAndOut));
    EXPECT_EQ(played.status, Status::Held) << played.transcript << played.complaints;
    EXPECT_EQ(played.printed,
              (Lines{"WINDOW 信息维护 opened", "WINDOW 性别代码表 opened", "WINDOW 性别代码表 closed",
                     "MSG 信息维护|数据被修改但未保存，是否保存？|yesno|none", "WINDOW 信息维护 closed",
                     "RETURN false"}));
}

TEST(PersonCommands, TabsListsAndButtonsOfADialog) {
    holds("dblclick A01_A0104_v\ntab Tab1 1\nexpect Tab1.Tab 1\n"
          "type txtDm 女\npress Enter\nlist lstDmCpt 1\nexpect lstDmCpt.ListIndex 0\nbutton cmdOK\n"
          "expect A01_A0104_v.Text 女\n" +
          std::string(noAndOut));
}

TEST(PersonCommands, ABeepIsPrintedWhereItIsHeard) {
    const Played played = playInWindow("dblclick A01_A0104_v\ntab Tab1 1\ntype txtDm a'b\n"
                                       "expect txtDm.Text ab\nclose\ntoolbar Exit\n");
    EXPECT_EQ(played.printed, (Lines{"WINDOW 信息维护 opened", "WINDOW 性别代码表 opened", "BEEP",
                                     "WINDOW 性别代码表 closed", "WINDOW 信息维护 closed", "RETURN false"}));
}

TEST(PersonCommands, CloseAsksNothing) {
    const Played played = playInWindow("type A01_A0119_v 桥梁\nclose\n");
    EXPECT_EQ(played.printed, (Lines{"WINDOW 信息维护 opened", "WINDOW 信息维护 closed", "RETURN false"}));
}

TEST(PersonCommands, AFailureOfTheSystemClosesTheWindowAndTheScriptGoesOn) {
    const Played played = playInWindow("fail on A02 不行\nmenu 1 2\nrows \"select 1 as one\"\n");
    EXPECT_EQ(played.printed, (Lines{"WINDOW 信息维护 opened", "WINDOW 信息维护 closed",
                                     "FAILURE -2147217900|不行", "ROW 1", "ROWS 1"}));
    EXPECT_EQ(played.status, Status::Held);
}

} // namespace

} // namespace quillmere::test

#include "scenario/Playing.h"

#include <gtest/gtest.h>

// Each way in which a script cannot go on: status 2, and the line and the reason on standard error.

namespace quillmere::test {

namespace {

using scenario::Status;

struct StopCase {
    std::string_view lines;
    /// Of `lines`, from 1.
    int line;
    std::string_view reason;
};

void expectStop(const Played& played, int line, std::string_view reason) {
    EXPECT_EQ(played.status, Status::Stopped) << played.transcript;
    EXPECT_EQ(played.complaints, "script:" + std::to_string(line) + ": " + std::string(reason) + "\n");
}

class StopWithoutWindow : public testing::TestWithParam<StopCase> {};

TEST_P(StopWithoutWindow, TellsLineAndReason) {
    const StopCase& row = GetParam();
    expectStop(play(row.lines), row.line, row.reason);
}

INSTANTIATE_TEST_SUITE_P(
    Script, StopWithoutWindow,
    testing::Values(StopCase{"\nfrobnicate\n", 2, "unknown command frobnicate"},
                    StopCase{"sql \"select", 1, "a quotation does not end"},
                    StopCase{"database\n", 1, "database does not take these arguments"},
                    StopCase{"open now\n", 1, "open does not take these arguments"},
                    StopCase{"grid\n", 1, "grid does not take these arguments"},
                    StopCase{"database mine\n", 1, "there is no database mine"},
                    StopCase{"sql \"delete from A01\"\n", 1, "there is no database yet"},
                    StopCase{"rows \"select 1\"\n", 1, "there is no database yet"},
                    StopCase{"fail off\n", 1, "there is no database yet"},
                    StopCase{"clock today\n", 1, "today is no moment"},
                    StopCase{"clock 2026-02-30T10:00:00\n", 1, "2026-02-30T10:00:00 is no moment"},
                    StopCase{"clock 2026-01-15\n", 1, "2026-01-15 is no moment"},
                    StopCase{"files\n", 1, "there is no photo directory yet"},
                    StopCase{"file a.jpg 200\n", 1, "there is no photo directory yet"},
                    StopCase{"photos /usr\n", 1, "/usr holds more than photo files"},
                    StopCase{"photos /usr/..\n", 1, "/usr/.. holds more than photo files"},
                    StopCase{"photos stop-test\nfile a.jpg 140\n", 2, "a picture needs more than 140 bytes"},
                    StopCase{"photos stop-test\nfile ../a.jpg 200\n", 2, "../a.jpg is no plain file name"},
                    StopCase{"photos stop-test\nbadfile a.jpg many\n", 2, "many is no number"},
                    StopCase{"host Colour red\n", 1, "the entry object has no property Colour"},
                    StopCase{"host OperationType\n", 1, "a property of the host needs a value"},
                    StopCase{"host ZZtype one\n", 1, "one is no number"},
                    StopCase{"host ZZtype 32768\n", 1, "32768 is not from -32768 to 32767"},
                    StopCase{"trace rows on\n", 1, "rows cannot be traced"},
                    StopCase{"trace sql maybe\n", 1, "maybe is neither on nor off"},
                    StopCase{"answer ok\n", 1, "there is no message box to answer"},
                    StopCase{"choose a.jpg\n", 1, "there is no file dialog to choose in"},
                    StopCase{"toolbar Save\n", 1, "no window is open"},
                    StopCase{"type W x\n", 1, "no window is open"},
                    StopCase{"press Enter\n", 1, "no window is open"},
                    StopCase{"close\n", 1, "no window is open"}, StopCase{"menus\n", 1, "no window is open"},
                    StopCase{"controls\n", 1, "no window is open"},
                    StopCase{"get form.caption\n", 1, "no window is open"},
                    StopCase{"get info.TabId\n", 1, "no panel is on show"},
                    StopCase{"get nothing\n", 1, "there is nothing at nothing"},
                    StopCase{"get nobody.Text\n", 1, "there is nothing at nobody.Text"},
                    StopCase{"expect window.colour red\n", 1, "there is nothing at window.colour"},
                    StopCase{"expect global.gConn x\n", 1, "there is nothing at global.gConn"},
                    StopCase{"expect rows.sum 1\n", 1, "there is nothing at rows.sum"}));

class StopInDatabase : public testing::TestWithParam<StopCase> {};

TEST_P(StopInDatabase, TellsLineAndReason) {
    const StopCase& row = GetParam();
    const Played played = play("database empty\n" + std::string(row.lines));
    EXPECT_EQ(played.status, Status::Stopped);
    const std::string begin = "script:" + std::to_string(row.line + 1) + ": " + std::string(row.reason);
    EXPECT_TRUE(played.complaints.starts_with(begin)) << played.complaints;
}

INSTANTIATE_TEST_SUITE_P(
    Script, StopInDatabase,
    testing::Values(StopCase{"sql \"delete from nowhere\"\n", 1, "语句执行失败："},
                    StopCase{"rows \"select x from A01\"\n", 1, "语句执行失败："},
                    StopCase{"sql \"delete from A01;delete from B01\"\n", 1, "语句执行失败："},
                    StopCase{"fail after 0 x\n", 1, "0 is not from 1 to "},
                    StopCase{"fail soon x\n", 1, "it is: fail after N TEXT, fail on PART TEXT, fail off"},
                    StopCase{"fail on A01\n", 1, "it is: fail after N TEXT"}));

class StopInWindow : public testing::TestWithParam<StopCase> {};

TEST_P(StopInWindow, TellsLineAndReason) {
    const StopCase& row = GetParam();
    expectStop(playInWindow(row.lines), row.line + linesBefore, row.reason);
}

INSTANTIATE_TEST_SUITE_P(
    Script, StopInWindow,
    testing::Values(
        StopCase{"", 0, "the script ends with the window 信息维护 open"},
        StopCase{"get form.caption\n# no more\n", 1, "the script ends with the window 信息维护 open"},
        StopCase{"dblclick A01_A0104_v\n", 1, "the script ends with the window 性别代码表 open"},
        StopCase{"toolbar Delete\n", 1, "the script ends with a message box in front"},
        StopCase{"toolbar Delete\ntoolbar Exit\n", 2, "toolbar cannot be done with a message box in front"},
        StopCase{"toolbar Delete\nget form.caption\n", 2, "get cannot be done with a message box in front"},
        StopCase{"toolbar Delete\nchoose none\n", 2, "choose cannot be done with a message box in front"},
        StopCase{"toolbar Delete\nanswer\n", 2, "answer does not take these arguments"},
        StopCase{"toolbar Delete\nanswer ok\n", 2, "the message box has no button ok"},
        StopCase{"toolbar Save\nanswer yes\n", 2, "the message box has no button yes"},
        StopCase{"toolbar Save\nanswer \"ok\n", 2, "a quotation does not end"},
        StopCase{"answer ok\n", 1, "there is no message box to answer"},
        StopCase{"database empty\n", 1, "a window is open on the database"},
        StopCase{"focus A01_A0999_v\n", 1, "there is no widget A01_A0999_v"},
        StopCase{"type A02_A0201_v x\n", 1, "there is no widget A02_A0201_v"},
        StopCase{"focus labOpt\n", 1, "labOpt takes no focus"},
        StopCase{"menu 6 1\n", 1, "the menu has no item 1 in group 6"},
        StopCase{"menu 1 11\n", 1, "the menu has no item 11 in group 1"},
        StopCase{"menu 0 1\n", 1, "0 is not from 1 to 2147483647"},
        StopCase{"toolbar Print\n", 1, "the toolbar has no button Print"},
        StopCase{"toolbar save\n", 1, "the toolbar has no button save"},
        StopCase{"menu 1 10\ntoolbar Delete\n", 2, "the button Delete is disabled"},
        StopCase{"press F5\n", 1, "there is no key F5"},
        StopCase{"check A01_A0101_v 1\n", 1, "A01_A0101_v is no check box"},
        StopCase{"menu 1 2\ngrid DGItems 3\n", 2, "DGItems has no row 3"},
        StopCase{"grid A01_A0101_v\n", 1, "A01_A0101_v is no grid"},
        StopCase{"nodes DGItems\n", 1, "DGItems is no tree"},
        StopCase{"list DGItems\n", 1, "DGItems is no list"},
        StopCase{"tab DGItems 0\n", 1, "DGItems is no tabbed container"},
        StopCase{"type A01_A0103_v 1\ntype A01_A0101_v x\nanswer ok\n", 2,
                 "A01_A0101_v did not get the focus"},
        StopCase{"get A01_A0101_v.Sound\n", 1, "there is nothing at A01_A0101_v.Sound"},
        StopCase{"get field.A01_A0101\n", 1, "there is nothing at field.A01_A0101"},
        StopCase{"get field.A01_A0101.Sound\n", 1, "there is nothing at field.A01_A0101.Sound"},
        StopCase{"get field.A01_A0999.Dmcod\n", 1, "there is nothing at field.A01_A0999.Dmcod"},
        StopCase{"dblclick A01_A0104_v\ntoolbar Save\n", 2, "the form in front has no toolbar"},
        StopCase{"dblclick A01_A0104_v\nmenus\n", 2, "the form in front has no menu"},
        StopCase{"dblclick A01_A0104_v\ncontrols\n", 2, "no panel is on show"},
        StopCase{"dblclick A01_A0104_v\ntype txtDm x\n", 2, "txtDm does not show"},
        StopCase{"dblclick A01_A0104_v\ntab Tab1 2\n", 2, "Tab1 has no page 2"},
        StopCase{"dblclick A01_A0104_v\ntree tvGrpCod G7\n", 2, "tvGrpCod has no node G7"},
        StopCase{"dblclick A01_A0104_v\ntree tvGrpCod G1 twice\n", 2, "twice is not dbl"},
        StopCase{"dblclick A01_A0104_v\ntab Tab1 1\nlist lstDmCpt 1\n", 3, "lstDmCpt has no row 1"}));

TEST(Stop, AWidgetOnALockedRecordIsDisabled) {
    const Played played = play("database sample\nhost OperationType 4\nhost ZZtype 1\n"
                               "host personID B069DDBE-3B81-47B1-8017-C79F7C99EAF9\nopen\n"
                               "expect frmCtrl.Enabled false\ntype A01_A0101_v x\n");
    expectStop(played, 7, "A01_A0101_v is disabled");
}

TEST(Stop, NothingIsPrintedAnyMore) {
    const Played played = playInWindow("type A01_A0119_v 桥梁\nfrobnicate\n");
    EXPECT_TRUE(played.transcript.ends_with("> frobnicate\n")) << played.transcript;
}

TEST(Stop, TheNextScriptFindsTheWindowClosed) {
    EXPECT_EQ(playInWindow("frobnicate\n").status, Status::Stopped);
    EXPECT_EQ(playInWindow("toolbar Exit\n").status, Status::Held);
}

TEST(Stop, ASaveDoesNotTakeItForAFailureOfItsOwn) {
    const Played played = playInWindow("type A01_A0101_v x\npress Backspace\ntoolbar Save\nfrobnicate\n");
    expectStop(played, 4 + linesBefore, "frobnicate cannot be done with a message box in front");
}

TEST(Stop, CountsMoreThanAnExpectationThatDidNotHold) {
    EXPECT_EQ(playInWindow("expect window.WhState 9\n").status, Status::Stopped);
}

} // namespace

} // namespace quillmere::test

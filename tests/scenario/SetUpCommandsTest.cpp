#include "scenario/Playing.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace quillmere::test {

namespace {

using Lines = std::vector<std::string>;
using scenario::Status;

TEST(SetUpCommands, EveryCommandLineIsEchoedAsItStands) {
    const Played played = play("# a comment\n\nclock real\n  trace   sql on\n");
    EXPECT_EQ(played.transcript, "> clock real\n>   trace   sql on\n");
    EXPECT_EQ(played.status, Status::Held);
    EXPECT_EQ(played.complaints, "");
}

TEST(SetUpCommands, TheEmptyDatabaseHasTheCatalogueAndNoRecords) {
    const Played played = play("database empty\n"
                               "rows \"select count(*) from A01\"\n"
                               "rows \"select count(*) from B01\"\n"
                               "rows \"select count(*) from P01\"\n"
                               "rows \"select tbldesc from s_infotable where tblname='A01'\"\n");
    EXPECT_EQ(played.printed,
              (Lines{"ROW 0", "ROWS 1", "ROW 0", "ROWS 1", "ROW 0", "ROWS 1", "ROW 人员基本信息", "ROWS 1"}));
}

TEST(SetUpCommands, TheSampleDatabaseHasPeople) {
    const Played played = play("database sample\nrows \"select count(*)>0 and count(*)<1000 from A01\"\n");
    EXPECT_EQ(played.printed, (Lines{"ROW 1", "ROWS 1"}));
}

TEST(SetUpCommands, EachDatabaseIsFresh) {
    const Played played = play("database empty\nsql \"insert into A01(A00,A0199) values('x',1)\"\n"
                               "database empty\nrows \"select count(*) from A01\"\n");
    EXPECT_EQ(played.printed, (Lines{"ROW 0", "ROWS 1"}));
}

TEST(SetUpCommands, RowsShowsEachKindOfValue) {
    const Played played = play("database empty\n"
                               "rows \"select null as n,'' as e,12 as i,1.5 as r,'a\\r\\nb' as t\"\n"
                               "rows \"select Property from s_infotable where tblname in ('A01','A02') "
                               "order by tblname\"\n"
                               "rows \"select 1 from A01\"\n");
    EXPECT_EQ(played.printed,
              (Lines{"ROW <null>||12|1.5|a\\r\\nb", "ROWS 1", "ROW true", "ROW false", "ROWS 2", "ROWS 0"}));
}

TEST(SetUpCommands, TheCountOfTheLastRowsCanBeExpected) {
    EXPECT_EQ(play("database empty\nexpect rows.count 0\n"
                   "rows \"select 1 from s_infotable where tblname in ('A01','A02')\"\n"
                   "expect rows.count 2\n")
                  .status,
              Status::Held);
}

TEST(SetUpCommands, TheClockStandsUntilTheNext) {
    const std::string_view open = "open\nget global.gZZYear\nclose\n";
    const Played played = play("database empty\nhost OperationType 9\nhost ZZtype 1\n"
                               "clock 1999-12-31T23:59:59\n" +
                               std::string(open) + "clock 2031-01-01T00:00:00\n" + std::string(open));
    EXPECT_EQ(played.printed, (Lines{"WINDOW 信息维护 opened", "GET global.gZZYear = 1999",
                                     "WINDOW 信息维护 closed", "RETURN false", "WINDOW 信息维护 opened",
                                     "GET global.gZZYear = 2031", "WINDOW 信息维护 closed", "RETURN false"}));
}

TEST(SetUpCommands, StatementsOfTheScriptAreNotTraced) {
    const Played played = play("database empty\ntrace sql on\nsql \"delete from A01\"\n"
                               "rows \"select count(*) from A01\"\n");
    EXPECT_EQ(played.printed, (Lines{"ROW 0", "ROWS 1"}));
}

TEST(SetUpCommands, AStatementThatFailsIsTracedBefore) {
    const Played played = play("database empty\nhost OperationType 9\nhost ZZtype 1\ntrace sql on\n"
                               "fail on P01 不行\nopen\n");
    EXPECT_EQ(played.printed, (Lines{"SQL |select * from P01 where A00=''|", "FAILURE -2147217900|不行"}));
}

TEST(SetUpCommands, AFailureComesOnce) {
    const Played played = play("database empty\nhost OperationType 9\nhost ZZtype 1\n"
                               "fail after 2 第二条\nopen\nopen\nclose\n");
    EXPECT_EQ(played.printed, (Lines{"FAILURE -2147217900|第二条", "WINDOW 信息维护 opened",
                                     "WINDOW 信息维护 closed", "RETURN false"}));
}

TEST(SetUpCommands, AFailureCanBeCalledOff) {
    const Played played = play("database empty\nhost OperationType 9\nhost ZZtype 1\n"
                               "fail on P01 不行\nfail off\nopen\nclose\n");
    EXPECT_EQ(played.printed.front(), "WINDOW 信息维护 opened");
}

TEST(SetUpCommands, ScriptsOwnStatementsDoNotFail) {
    const Played played = play("database empty\nfail after 1 不行\nrows \"select count(*) from A01\"\n");
    EXPECT_EQ(played.printed, (Lines{"ROW 0", "ROWS 1"}));
}

TEST(SetUpCommands, ANewHostKeepsTheConnectionAndNothingElse) {
    const Played played = play("database empty\nhost OperationType 9\nhost ZZtype 1\nhost personID x\n"
                               "host new\nhost ZZtype 2\nhost OperationType 9\n"
                               "open\nget window.personID\nget global.gZZType\nclose\n");
    EXPECT_EQ(played.printed, (Lines{"WINDOW 信息维护 opened", "GET window.personID = ",
                                     "GET global.gZZType = 2", "WINDOW 信息维护 closed", "RETURN false"}));
}

TEST(SetUpCommands, WithoutADatabaseThereIsNoOpenConnection) {
    const Played played = play("host OperationType 4\nopen\n");
    ASSERT_EQ(played.printed.size(), 1U);
    EXPECT_TRUE(played.printed[0].starts_with("FAILURE 3709|")) << played.printed[0];
    EXPECT_EQ(played.status, Status::Held);
}

TEST(SetUpCommands, PhotosMakesAnEmptyDirectoryForTheHost) {
    const Played played = play("photos photo-test\nfile b.jpg 150\nbadfile a.jpg 7\nfiles\n"
                               "photos photo-test\nfiles\n");
    EXPECT_EQ(played.printed, (Lines{"FILE a.jpg 7", "FILE b.jpg 150"}));
}

TEST(SetUpCommands, ThePhotoDirectoryMayStandAnywhere) {
    const std::string elsewhere = testing::TempDir() + "quillmere-photos-elsewhere";
    const Played played =
        play("photos " + elsewhere + "\nfile a.jpg 150\nfiles\nphotos " + elsewhere + "\nfiles\n");
    EXPECT_EQ(played.printed, Lines{"FILE a.jpg 150"});
    const Played kept = play("photos " + elsewhere + "\nfile notes 150\nphotos " + elsewhere + "\n");
    EXPECT_EQ(kept.status, Status::Stopped);
    EXPECT_EQ(kept.complaints, "script:3: " + elsewhere + " holds more than photo files\n");
    std::filesystem::remove_all(elsewhere);
}

TEST(SetUpCommands, OneScriptLeavesNothingToTheNext) {
    (void)play(
        "database sample\nclock 1999-01-01T00:00:00\nhost OperationType 9\nhost ZZtype 5\nopen\nclose\n");
    const Played played = play("get global.gZZType\nget global.gZZYear\nopen\n");
    ASSERT_EQ(played.printed.size(), 3U);
    EXPECT_EQ(played.printed[0], "GET global.gZZType = 0");
    EXPECT_EQ(played.printed[1], "GET global.gZZYear = ");
    EXPECT_TRUE(played.printed[2].starts_with("FAILURE 3709|"));
}

} // namespace

} // namespace quillmere::test

#include "save/SaveBench.h"

#include <ostream>

namespace quillmere {
namespace {

using Statements = std::vector<std::string>;

constexpr auto personQuestion = "系统已包含此姓名的用户，确定继续？";
constexpr auto unitQuestion = "系统已包含此名称的单位，确定继续？";
constexpr auto wrongUnit = "局级单位信息填写错误！请参照系统初始录入的局级单位信息。";

/// A person's first save: a name, a coded unit, a number.
class PersonInsertTest : public test::SaveBench {
protected:
    PersonInsertTest() {
        build("A01", {{field::text("A0101", "x"), "varchar"},
                      {field::text("A0130", "x"), "varchar"},
                      {field::text("A0150", "x"), "int"}});
        item("A0130").CodeTable = "DW";
        write("A0101", "张三");
    }

    const Statements all{
        "select iif(max(A0199) is null,0,max(A0199)) from a01  ",
        "select count(*) from A01 where A0101 = '张三'",
        "insert into A01( A00,A0199,A0101,A0130,A0136,A0137) values('p1',1,'张三','','03','2026')",
        "select iif(a0101 is null,'',a0101) from a01 where a00='p1'",
        "insert into P01 (A00,P0123,P0120) values('p1','01','')",
    };
};

TEST_F(PersonInsertTest, RunsItsStatementsInOrderToTheLetter) {
    EXPECT_TRUE(save());
    EXPECT_EQ(db.statements(), all);
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(PersonInsertTest, WritesTheRowItsDefaultsAndTheProjectRow) {
    EXPECT_TRUE(save());
    EXPECT_EQ(db.column("select A00||'|'||A0101||'|'||A0136||'|'||A0137||'|'||A0199 from A01"),
              (Statements{"p1|张三|03|2026|1"}));
    EXPECT_EQ(db.column("select A00||'|'||P0123||'|'||P0120 from P01"), (Statements{"p1|01|"}));
    EXPECT_EQ(db.cell("select P0111 from P01"), "(null)");
}

TEST_F(PersonInsertTest, ShowsTheNewName) {
    EXPECT_TRUE(save());
    EXPECT_EQ(labPersonName.Caption(), "张三");
}

TEST_F(PersonInsertTest, TheNameShownIsThatOfTheWindowsPerson) {
    personID = "other";
    db.run("insert into A01 (A00,A0101) values ('other','李四')");
    EXPECT_TRUE(save());
    EXPECT_EQ(db.statements()[3], "select iif(a0101 is null,'',a0101) from a01 where a00='other'");
    EXPECT_EQ(labPersonName.Caption(), "李四");
}

TEST_F(PersonInsertTest, ANullNameIsShownAsNothing) {
    personID = "other";
    db.run("insert into A01 (A00) values ('other')");
    EXPECT_TRUE(save());
    EXPECT_EQ(labPersonName.Caption(), "");
}

TEST_F(PersonInsertTest, TheRunningNumberIsTheLargestPlusOne) {
    db.run("insert into A01 (A00,A0199) values ('a',7)");
    db.run("insert into A01 (A00,A0199) values ('b',41)");
    EXPECT_TRUE(save());
    EXPECT_EQ(db.cell("select A0199 from A01 where A00='p1'"), "42");
}

TEST_F(PersonInsertTest, TheRunningNumber32767IsTheLast) {
    db.run("insert into A01 (A00,A0199) values ('a',32766)");
    EXPECT_TRUE(save());
    EXPECT_EQ(db.cell("select A0199 from A01 where A00='p1'"), "32767");
}

TEST_F(PersonInsertTest, TheRunningNumber32768IsAFailure) {
    db.run("insert into A01 (A00,A0199) values ('a',32767)");
    expectFailure("溢出");
    EXPECT_EQ(db.statements(), Statements{all[0]});
    EXPECT_EQ(labPersonName.Caption(), "before");
}

TEST_F(PersonInsertTest, TheSponsorshipTypeAndYearGoInAsTheyAre) {
    gZZType = 7;
    gZZYear = "";
    EXPECT_TRUE(save());
    EXPECT_TRUE(db.statements()[2].ends_with(",'','07','')")) << db.statements()[2];
}

TEST_F(PersonInsertTest, WithoutANameNoDuplicateIsLookedFor) {
    for (const char* name : {"", "   "}) {
        write("A0101", name);
        EXPECT_TRUE(save());
        EXPECT_EQ(db.statements().size(), 4U);
        db.run("delete from A01");
    }
}

TEST_F(PersonInsertTest, TheNameIsTrimmedForTheDuplicateCheckAndStoredAsItStands) {
    write("A0101", "  张三 ");
    EXPECT_TRUE(save());
    EXPECT_EQ(db.statements()[1], all[1]);
    EXPECT_EQ(db.cell("select A0101 from A01"), "  张三 ");
}

TEST_F(PersonInsertTest, ADuplicateNameIsAskedAboutAndStoredOnYes) {
    db.run("insert into A01 (A00,A0101,A0199) values ('a','张三',4)");
    person.expectBox(personQuestion, "提示", ui::Answer::Yes);
    EXPECT_TRUE(save());
    EXPECT_EQ(person.boxes()[0].buttons, ui::Buttons::YesNo);
    EXPECT_EQ(db.cell("select count(*) from A01 where A0101 = '张三'"), "2");
}

TEST_F(PersonInsertTest, ADuplicateNameAnsweredNoEndsTheSave) {
    db.run("insert into A01 (A00,A0101) values ('a','张三')");
    person.expectBox(personQuestion, "提示", ui::Answer::No);
    EXPECT_FALSE(save());
    EXPECT_EQ(db.statements(), (Statements{all[0], all[1]}));
    EXPECT_EQ(labPersonName.Caption(), "before");
}

TEST_F(PersonInsertTest, ADuplicateNameAnsweredNoWithComplaintsPendingShowsNothingMore) {
    db.run("insert into A01 (A00,A0101) values ('a','张三')");
    write("A0150", "x");
    person.expectBox(personQuestion, "提示", ui::Answer::No);
    EXPECT_FALSE(save());
    EXPECT_EQ(person.boxes().size(), 1U);
}

TEST_F(PersonInsertTest, ADuplicateNameAnsweredYesIsFollowedByTheComplaints) {
    db.run("insert into A01 (A00,A0101) values ('a','张三')");
    write("A0150", "x");
    person.expectBox(personQuestion, "提示", ui::Answer::Yes);
    expectRefusal("栏A0150 数据应该输入数字");
    EXPECT_EQ(person.boxes().size(), 2U);
}

TEST_F(PersonInsertTest, ComplaintsComeAfterTheDuplicateLookup) {
    write("A0150", "x");
    expectRefusal("栏A0150 数据应该输入数字");
    EXPECT_EQ(db.statements(), (Statements{all[0], all[1]}));
}

TEST_F(PersonInsertTest, ANameWithASingleQuoteFailsInTheLookupAndNotInTheComplaint) {
    write("A0101", "O'Brien");
    person.answerAnyBox(ui::Answer::Yes);
    EXPECT_FALSE(save());
    ASSERT_EQ(person.boxes().size(), 1U);
    EXPECT_EQ(person.boxes()[0].title, "信息保存");
    EXPECT_EQ(db.statements(), (Statements{all[0], "select count(*) from A01 where A0101 = 'O'Brien'"}));
}

TEST_F(PersonInsertTest, TheHostsUnitPasses) {
    UnitCode = "U7";
    item("A0130").Dmcod = "U7";
    write("A0130", "财务局");
    EXPECT_TRUE(save());
    EXPECT_EQ(db.cell("select A0130 from A01"), "U7");
}

TEST_F(PersonInsertTest, WithoutAUnitOfTheHostNothingIsHeldAgainstTheField) {
    item("A0130").Dmcod = "U8";
    EXPECT_TRUE(save());
    EXPECT_EQ(db.cell("select A0130 from A01"), "U8");
}

TEST_F(PersonInsertTest, AFailureOfAnyStatementIsShownAndEndsTheSaveThere) {
    for (std::size_t failing = 1; failing <= all.size(); ++failing) {
        SCOPED_TRACE(failing);
        db.run("delete from A01");
        db.run("delete from P01");
        labPersonName.setCaption("before");
        db.failing().failAfter(static_cast<int>(failing), "网络中断");
        expectFailure("网络中断");
        EXPECT_EQ(person.boxes().back().buttons, ui::Buttons::Ok);
        EXPECT_EQ(db.statements(), Statements(all.begin(), all.begin() + static_cast<long>(failing)));
        // Nothing is rolled back: what ran before the failure stays.
        EXPECT_EQ(db.cell("select count(*) from A01"), failing > 3 ? "1" : "0");
        EXPECT_EQ(db.cell("select count(*) from P01"), "0");
        EXPECT_EQ(labPersonName.Caption(), failing > 4 ? "张三" : "before");
    }
}

TEST_F(PersonInsertTest, AfterALaterFailureSavingAgainFailsOnTheSameKey) {
    db.run("create unique index one on A01 (A00)");
    db.failing().failOn("insert into P01", "网络中断");
    expectFailure("网络中断");
    person.expectBox(personQuestion, "提示", ui::Answer::Yes);
    person.answerAnyBox(ui::Answer::Yes);
    EXPECT_FALSE(save());
    EXPECT_EQ(person.boxes().back().title, "信息保存");
    EXPECT_EQ(db.cell("select count(*) from A01"), "1");
    EXPECT_EQ(db.cell("select count(*) from P01"), "0");
}

TEST_F(PersonInsertTest, ALabelQueryWithoutARowIsAFailure) {
    personID = "nobody";
    person.answerAnyBox(ui::Answer::Yes);
    EXPECT_FALSE(save());
    EXPECT_EQ(person.boxes().back().title, "信息保存");
    EXPECT_EQ(db.statements().size(), 4U);
}

TEST_F(PersonInsertTest, APersonsUnitNameFieldIsNoNameToCheck) {
    panel().add<ui::TextBox>("A01_B0101_v").setText("某单位");
    addItem(*panel().FieldItems, "B0101", "varchar");
    db.run("alter table A01 add column B0101 text");
    EXPECT_TRUE(save());
    EXPECT_EQ(db.statements()[1], all[1]);
}

/// A unit's first save.
class UnitInsertTest : public test::SaveBench {
protected:
    UnitInsertTest() {
        build("B01", {{field::text("B0101", "x"), "varchar"}, {field::text("A0130", "x"), "varchar"}});
        write("B0101", "某局");
        UnitCode = "U7";
    }
};

TEST_F(UnitInsertTest, RunsItsStatementsInOrderToTheLetter) {
    EXPECT_TRUE(save());
    EXPECT_EQ(db.statements(),
              (Statements{"select iif(max(B0199) is null,0,max(B0199)) from B01  ",
                          "select count(*) from B01 where B0101 = '某局'",
                          "insert into B01( A00,B0199,B0101,A0130,B0124) values('p1',1,'某局','','2026')",
                          "select iif(B0101 is null,'',B0101) from B01 where a00='p1'",
                          "insert into P01 (A00,P0123,P0120,P0111) values('p1','01','','U7')"}));
    EXPECT_EQ(labPersonName.Caption(), "某局");
}

TEST_F(UnitInsertTest, ADuplicateNameIsAskedAbout) {
    db.run("insert into B01 (A00,B0101) values ('a','某局')");
    person.expectBox(unitQuestion, "提示", ui::Answer::No);
    EXPECT_FALSE(save());
    EXPECT_EQ(person.boxes()[0].buttons, ui::Buttons::YesNo);
    EXPECT_EQ(db.statements().size(), 2U);
}

TEST_F(UnitInsertTest, TheUnitCheckDoesNotApply) {
    item("A0130").Dmcod = "U8";
    EXPECT_TRUE(save());
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(UnitInsertTest, TheRunningNumber32768IsAFailure) {
    db.run("insert into B01 (A00,B0199) values ('a',32767)");
    expectFailure("溢出");
}

TEST_F(UnitInsertTest, AFailureOfAnyStatementIsShownAndEndsTheSaveThere) {
    for (int failing = 1; failing <= 5; ++failing) {
        SCOPED_TRACE(failing);
        db.run("delete from B01");
        db.failing().failAfter(failing, "网络中断");
        expectFailure("网络中断");
        EXPECT_EQ(db.statements().size(), static_cast<std::size_t>(failing));
        EXPECT_EQ(db.cell("select count(*) from B01"), failing > 3 ? "1" : "0");
    }
}

/// Which statement begins the save, by table and work state.
struct PathCase {
    const char* table;
    std::int32_t state;
    const char* first;
};

std::ostream& operator<<(std::ostream& out, const PathCase& path) {
    return out << path.table << " in state " << path.state;
}

class PathTest : public test::SaveBench, public testing::WithParamInterface<PathCase> {};

INSTANTIATE_TEST_SUITE_P(
    Choice, PathTest,
    testing::Values(PathCase{"A01", 0, "select iif(max(A0199)"}, PathCase{"A01", 4, "update A01 set "},
                    PathCase{"B01", 0, "select iif(max(B0199)"}, PathCase{"B01", 4, "update B01 set "},
                    PathCase{"P01", 0, "update P01 set "}, PathCase{"P01", 4, "update P01 set "},
                    PathCase{"P01", 2, "update P01 set "}, PathCase{"A02", 0, "delete from A02 "},
                    PathCase{"A02", 4, "delete from A02 "}, PathCase{"C01", 3, "delete from C01 "},
                    PathCase{"PP01", 4, "delete from PP01 "}));

TEST_P(PathTest, BeginsWithItsStatement) {
    const std::string table = GetParam().table;
    if (table == "P01") db.run("drop table P01");
    build(table, {{field::text("X0102", "x"), "varchar"}});
    db.run("insert into " + table + " (A00) values ('p1')");
    WhState = GetParam().state;
    EXPECT_TRUE(save());
    ASSERT_FALSE(db.statements().empty());
    EXPECT_TRUE(db.statements()[0].starts_with(GetParam().first)) << db.statements()[0];
}

using NoPathTest = test::SaveBench;

TEST_F(NoPathTest, InAnyOtherStatePersonsAndUnitsAreNotWrittenAndNotChecked) {
    for (const char* table : {"A01", "B01"}) {
        build(table, {{field::text("X0102", "x"), "int"}});
        write("X0102", "no number");
        for (const int state : {1, 2, 3, 5, -1}) {
            WhState = state;
            EXPECT_TRUE(save()) << table << " " << state;
            EXPECT_TRUE(db.statements().empty()) << table << " " << state;
        }
    }
    EXPECT_TRUE(person.boxes().empty());
}

} // namespace
} // namespace quillmere

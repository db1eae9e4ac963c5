#include "save/SaveBench.h"
#include "save/Walk.h"

namespace quillmere {
namespace {

using Statements = std::vector<std::string>;

/// Saves of the sets that hold curriculum and project data.
class ReplaceTest : public test::SaveBench {
protected:
    ReplaceTest() {
        build("A02", {{field::text("A0201", "x"), "varchar"}, {field::text("A0202", "x"), "varchar"}});
        panel().WhInfo.FldOrder = "A0201";
        write("A0201", "2005");
        write("A0202", "新");
    }

    void makeMultiRecord(std::int16_t id) {
        panel().WhInfo.IsMult = true;
        panel().WhInfo.id = id;
    }

    /// Records 1, 2 and 3 of the years 2000, 2010 and 2020; one of another person.
    void addRecords() {
        db.run("insert into A02 (A00,A0299,A0201,A0202) values ('p1',1,'2000','a')");
        db.run("insert into A02 (A00,A0299,A0201,A0202) values ('p1',2,'2010','b')");
        db.run("insert into A02 (A00,A0299,A0201,A0202) values ('p1',3,'2020','c')");
        db.run("insert into A02 (A00,A0299,A0201,A0202) values ('p2',1,'1999','z')");
    }

    Statements records() {
        return db.column("select A00||' '||A0299||' '||A0202 from A02 order by A00,A0299");
    }

    const std::string removal = "delete from A02 where A00='p1'  and A0299 = 3";
    const std::string insertion = "insert into A02( A00 ,A0299,A0201,A0202) values('p1','3','2005','新')";
};

TEST_F(ReplaceTest, ASingleRecordIsRemovedAndWrittenAnew) {
    addRecords();
    EXPECT_TRUE(save());
    EXPECT_EQ(db.statements(), (Statements{"delete from A02 where A00='p1' ",
                                           "insert into A02( A00 ,A0201,A0202) values('p1','2005','新')"}));
    EXPECT_EQ(db.column("select A00||A0202 from A02 order by A00"), (Statements{"p1新", "p2z"}));
    EXPECT_EQ(labPersonName.Caption(), "before");
}

TEST_F(ReplaceTest, ARecordOfSeveralRunsItsStatementsInOrderToTheLetter) {
    addRecords();
    makeMultiRecord(3);
    EXPECT_TRUE(save());
    EXPECT_EQ(db.statements(),
              (Statements{removal, insertion, "update A02 set A0299 = A0299 +200 where a00='p1'",
                          "select * from A02 where A00 ='p1' order by A0201",
                          "update A02 set A0299 = 1 where a00='p1' and A0299 = 201",
                          "update A02 set A0299 = 2 where a00='p1' and A0299 = 203",
                          "update A02 set A0299 = 3 where a00='p1' and A0299 = 202"}));
    EXPECT_EQ(panel().WhInfo.id, 3);
}

TEST_F(ReplaceTest, AfterAChangedDateTheNumbersFollowTheNewOrder) {
    addRecords();
    makeMultiRecord(3);
    EXPECT_TRUE(save());
    EXPECT_EQ(records(), (Statements{"p1 1 a", "p1 2 新", "p1 3 b", "p2 1 z"}));
}

TEST_F(ReplaceTest, TheFirstRecordOfAPersonGetsNumber1Again) {
    makeMultiRecord(1);
    EXPECT_TRUE(save());
    EXPECT_EQ(records(), (Statements{"p1 1 新"}));
}

TEST_F(ReplaceTest, TheSameStatementsRunWhateverTheWorkState) {
    makeMultiRecord(1);
    for (const int state : {0, 1, 4}) {
        WhState = state;
        EXPECT_TRUE(save());
        EXPECT_EQ(db.statements().size(), 5U) << state;
    }
}

TEST_F(ReplaceTest, AFailedValidationLeavesTheOldRecordRemoved) {
    addRecords();
    makeMultiRecord(3);
    item("A0202").Check = "A 0";
    person.expectBox("栏A0202最多可以录入0个字符！", "错误信息");
    EXPECT_FALSE(save());
    EXPECT_EQ(db.statements(), Statements{removal});
    EXPECT_EQ(records(), (Statements{"p1 1 a", "p1 2 b", "p2 1 z"}));
}

TEST_F(ReplaceTest, ACorrectedSaveWritesTheRecordUnderTheSameNumber) {
    addRecords();
    makeMultiRecord(3);
    item("A0202").Check = "A 0";
    person.expectBox("栏A0202最多可以录入0个字符！", "错误信息");
    EXPECT_FALSE(save());
    item("A0202").Check.clear();
    EXPECT_TRUE(save());
    EXPECT_EQ(db.statements()[1], insertion);
}

TEST_F(ReplaceTest, AFailureOfAnyStatementIsShownAndWhatRanBeforeStays) {
    const Statements left[] = {
        {"p1 1 a", "p1 2 b", "p1 3 c"},        {"p1 1 a", "p1 2 b"},
        {"p1 1 a", "p1 2 b", "p1 3 新"},       {"p1 201 a", "p1 202 b", "p1 203 新"},
        {"p1 201 a", "p1 202 b", "p1 203 新"}, {"p1 1 a", "p1 202 b", "p1 203 新"},
        {"p1 1 a", "p1 2 新", "p1 202 b"},
    };
    makeMultiRecord(3);
    for (int failing = 1; failing <= 7; ++failing) {
        SCOPED_TRACE(failing);
        db.run("delete from A02");
        addRecords();
        db.run("delete from A02 where A00='p2'");
        db.failing().failAfter(failing, "网络中断");
        expectFailure("网络中断");
        EXPECT_EQ(records(), left[failing - 1]);
    }
}

TEST_F(ReplaceTest, ASingleQuoteInAVarcharIsRefusedByTheInputCheck) {
    write("A0202", "a'b");
    person.expectBox("栏A0202输入存在非法字符 ” ' “，请您将其改为 “ ‘ ”，或者去掉。 ", "错误信息");
    EXPECT_FALSE(save());
}

TEST_F(ReplaceTest, QuotesOfPlainTextsAreDoubledAllTheSame) {
    build("A03", {{field::text("A0301", "x"), "varchar"},
                  {field::text("A0302", "x"), "ntext"},
                  {field::text("A0303", "x"), "bit"},
                  {field::text("A0304", "x"), "varchar"}});
    item("A0304").CodeTable = "ZW";
    item("A0304").Dmcod = "c'd";
    for (const char* column : {"A0301", "A0302", "A0303", "A0304"})
        write(column, "a'b");
    std::vector<std::string> doubled;
    for (const ColumnValue& value : walkWidgets(panel(), {.doubleQuotes = true}).values)
        doubled.push_back(value.text.value_or("(none)"));
    EXPECT_EQ(doubled, (Statements{"a''b", "a''b", "a'b", "c'd"}));
    std::vector<std::string> plain;
    for (const ColumnValue& value : walkWidgets(panel(), {}).values)
        plain.push_back(value.text.value_or("(none)"));
    EXPECT_EQ(plain, (Statements{"a'b", "a'b", "a'b", "c'd"}));
}

TEST_F(ReplaceTest, ARequiredFieldThatIsHiddenAndEmptyIsRefusedHere) {
    write("A0201", "");
    item("A0201").IsNUll = false;
    panel().find("A02_A0201_v")->setVisible(false);
    person.expectBox("栏A0201 为必填项", "错误信息");
    EXPECT_FALSE(save());
}

TEST_F(ReplaceTest, NamesAndUnitsAreNotCheckedHere) {
    build("A04", {{field::text("A0101", "x"), "varchar"}, {field::text("A0130", "x"), "varchar"}});
    UnitCode = "U7";
    write("A0101", "张三");
    item("A0130").Dmcod = "U8";
    EXPECT_TRUE(save());
    EXPECT_EQ(db.statements().size(), 2U);
}

} // namespace
} // namespace quillmere

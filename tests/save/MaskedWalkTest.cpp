#include "save/WalkBench.h"

namespace quillmere {
namespace {

using MaskedWalkTest = test::WalkBench;

TEST_F(MaskedWalkTest, AMaskedVarcharIsStoredAsItStands) {
    buildMask("varchar");
    write("A0102", "1990年03月");
    expectStored(",A0102", ",'1990年03月'");
}

TEST_F(MaskedWalkTest, AnUnfilledMaskedVarcharIsStoredAsTheEmptyText) {
    buildMask("varchar");
    write("A0102", "____年__月");
    expectStored(",A0102", ",''");
}

TEST_F(MaskedWalkTest, AMaskedBoxWithAnEmptyTextCountsAsUnfilled) {
    buildMask("varchar");
    write("A0102", "");
    expectStored(",A0102", ",''");
}

TEST_F(MaskedWalkTest, AHalfFilledMaskedVarcharIsRefused) {
    buildMask("varchar");
    write("A0102", "1990年0_月");
    expectRefusal("栏A0102 数据数据填写不完整");
}

TEST_F(MaskedWalkTest, AMaskedMonthIsStoredAsAMonth) {
    buildMask("datetime");
    write("A0102", "1990年03月");
    expectStored(",A0102", ",'1990-03'");
}

TEST_F(MaskedWalkTest, AMaskedDayIsStoredWithItsDay) {
    build("A01", {{field::day("A0102", "x"), "datetime"}});
    write("A0102", "1990年03月12日");
    expectStored(",A0102", ",'1990-03-12'");
}

TEST_F(MaskedWalkTest, AnUnfilledMaskedDateIsLeftOut) {
    buildMask("datetime");
    write("A0102", "____年__月");
    expectStored("", "");
}

TEST_F(MaskedWalkTest, AMaskedTextThatIsNoDateIsRefused) {
    buildMask("datetime");
    write("A0102", "1990年1_月");
    expectRefusal("栏A0102 数据应该是日期型，例如1990年03月");
}

TEST_F(MaskedWalkTest, AMaskedBoxOfAnyOtherTypeIsNeverStored) {
    for (const char* type : {"int", "ntext", "bit", "float"}) {
        SCOPED_TRACE(type);
        const std::string table = std::string("M") + type;
        build(table, {{field::number("M01", "x"), type}});
        for (const char* text : {"2026", "20__", "____"}) {
            write("M01", text);
            EXPECT_TRUE(save());
            EXPECT_EQ(db.statements().back(), "insert into " + table + "( A00 ) values('p1')");
        }
    }
}

TEST_F(MaskedWalkTest, ARequiredMaskedBoxOfEveryTypeMustBeFilled) {
    for (const char* type : {"varchar", "datetime", "int", "ntext", "bit", "float"}) {
        for (const char* text : {"", "____"}) {
            SCOPED_TRACE(type);
            const std::string table = std::string("Q") + type + (*text == '\0' ? "1" : "2");
            build(table, {{field::number("Q01", "x"), type}});
            item("Q01").IsNUll = false;
            write("Q01", text);
            person.expectBox("栏Q01 为必填项", "错误信息");
            EXPECT_FALSE(save());
        }
    }
}

TEST_F(MaskedWalkTest, ARequiredNumberInAMaskedBoxThatIsFilledPassesAndIsNotStored) {
    build("A01", {{field::number("A0102", "x"), "int"}});
    item("A0102").IsNUll = false;
    write("A0102", "2026");
    expectStored("", "");
}

TEST_F(MaskedWalkTest, AMaskedBoxHasNoInputCheckAndNoLengthCheck) {
    buildMask("varchar");
    item("A0102").Check = "A 1";
    write("A0102", characters(256));
    expectStored(",A0102", ",'" + characters(256) + "'");
}

// Check boxes.

TEST_F(MaskedWalkTest, ACheckBoxStoresItsStateAsQuotedText) {
    build("A01", {{field::check("A0102", "x"), "bit"}, {field::check("A0103", "y"), "bit"}});
    widget<ui::CheckBox>("A0102").setValue(1);
    expectStored(",A0102,A0103", ",'1','0'");
}

TEST_F(MaskedWalkTest, ACheckBoxIsStoredWhateverTheTypeAndNeverChecked) {
    build("A01", {{field::check("A0102", "x"), "float"}});
    item("A0102").IsNUll = false;
    item("A0102").Check = "L 9";
    expectStored(",A0102", ",'0'");
}

} // namespace
} // namespace quillmere

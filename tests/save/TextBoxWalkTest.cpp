#include "save/WalkBench.h"

namespace quillmere {
namespace {

using TextBoxWalkTest = test::WalkBench;

TEST_F(TextBoxWalkTest, AnEmptyOptionalVarcharIsStoredAsTheEmptyText) {
    buildText("varchar");
    expectStored(",A0102", ",''");
}

TEST_F(TextBoxWalkTest, AVarcharOf255CharactersIsAccepted) {
    buildText("varchar");
    write("A0102", characters(255));
    expectStored(",A0102", ",'" + characters(255) + "'");
}

TEST_F(TextBoxWalkTest, AVarcharOf256CharactersIsRefused) {
    buildText("varchar");
    write("A0102", characters(256));
    expectRefusal("栏A0102 数据应该小于256个字符长度");
}

TEST_F(TextBoxWalkTest, ACodedVarcharIsStoredByItsCodeThoughTheBoxShowsTheCaption) {
    buildText("varchar");
    item("A0102").CodeTable = "ZW";
    item("A0102").Dmcod = "01";
    write("A0102", "处长");
    expectStored(",A0102", ",'01'");
}

TEST_F(TextBoxWalkTest, TheLimitOf255AppliesToTheCaptionOfACode) {
    buildText("varchar");
    item("A0102").CodeTable = "ZW";
    item("A0102").Dmcod = "01";
    write("A0102", characters(256));
    expectRefusal("栏A0102 数据应该小于256个字符长度");
}

TEST_F(TextBoxWalkTest, TheInputRuleAppliesToTheCaptionOfACode) {
    buildText("varchar");
    item("A0102").CodeTable = "ZW";
    item("A0102").Dmcod = "01";
    item("A0102").Check = "A 2";
    write("A0102", "副处长");
    expectRefusal("栏A0102最多可以录入2个字符！");
}

TEST_F(TextBoxWalkTest, ACodedVarcharWithoutACodeIsStoredAsTheEmptyText) {
    buildText("varchar");
    item("A0102").CodeTable = "ZW";
    write("A0102", "处长");
    expectStored(",A0102", ",''");
}

TEST_F(TextBoxWalkTest, TheTypeOfAFieldCountsInWhateverCaseTheCatalogueHasIt) {
    for (const char* type : {"VARCHAR", "Varchar"}) {
        SCOPED_TRACE(type);
        buildText(type);
        write("A0102", characters(256));
        expectRefusal("栏A0102 数据应该小于256个字符长度");
        db.run("drop table A01");
    }
    buildText("INT");
    write("A0102", "x");
    expectRefusal("栏A0102 数据应该输入数字");
}

TEST_F(TextBoxWalkTest, AnIntWithAFractionIsNumericInRangeAndStoredAsItStands) {
    buildText("int");
    write("A0102", "12.5");
    expectStored(",A0102", ",'12.5'");
}

TEST_F(TextBoxWalkTest, AnEmptyOptionalIntIsLeftOut) {
    buildText("int");
    expectStored("", "");
}

TEST_F(TextBoxWalkTest, TheIntegers0And32768And1000000AreAccepted) {
    buildText("int");
    for (const char* text : {"0", "32768", "1000000", "1000000.4", "-0.5"}) {
        write("A0102", text);
        expectStored(",A0102", std::string(",'") + text + "'");
        db.run("delete from A01");
        db.run("delete from P01");
    }
}

TEST_F(TextBoxWalkTest, TheInteger1000001IsRefused) {
    buildText("int");
    write("A0102", "1000001");
    expectRefusal("栏A0102 数据应该在 0到1000000范围内");
}

TEST_F(TextBoxWalkTest, ANegativeIntIsRefusedAsOutOfRange) {
    buildText("int");
    write("A0102", "-1");
    expectRefusal("栏A0102 数据应该在 0到1000000范围内");
}

TEST_F(TextBoxWalkTest, AnIntBeyond32BitsIsAFailureAndNoComplaint) {
    buildText("int");
    write("A0102", "2147483648");
    expectFailure("溢出");
    EXPECT_EQ(db.statements().size(), 1U);
}

TEST_F(TextBoxWalkTest, ADateOfSevenCharactersIsStoredAsAMonth) {
    buildText("datetime");
    write("A0102", "1990-03");
    expectStored(",A0102", ",'1990-03'");
}

TEST_F(TextBoxWalkTest, ADateOfEightCharactersIsStoredAsAMonth) {
    buildText("datetime");
    write("A0102", "1990-3-1");
    expectStored(",A0102", ",'1990-03'");
}

TEST_F(TextBoxWalkTest, ADateOfMoreThanEightCharactersIsStoredWithItsDay) {
    buildText("datetime");
    write("A0102", "1990-03-12");
    expectStored(",A0102", ",'1990-03-12'");
}

TEST_F(TextBoxWalkTest, AnEmptyOptionalDateIsLeftOut) {
    buildText("datetime");
    expectStored("", "");
}

TEST_F(TextBoxWalkTest, TheInputRuleIsCheckedBeforeTheType) {
    buildText("int");
    item("A0102").Check = "A 1";
    write("A0102", "一二");
    expectRefusal("栏A0102最多可以录入1个字符！\r\n栏A0102 数据应该输入数字");
}

TEST_F(TextBoxWalkTest, TheInputRuleIsCheckedForATypeThatIsNotStored) {
    buildText("float");
    item("A0102").Check = "A 1";
    write("A0102", "12");
    expectRefusal("栏A0102最多可以录入1个字符！");
}

TEST_F(TextBoxWalkTest, ASingleQuoteIsRefusedByTheInputCheckSoNoInsertRunsWithOne) {
    buildText("varchar");
    write("A0102", "O'Brien");
    expectRefusal("栏A0102输入存在非法字符 ” ' “，请您将其改为 “ ‘ ”，或者去掉。 ");
}

} // namespace
} // namespace quillmere

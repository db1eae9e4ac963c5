#include "metadata/FieldLoaders.h"

#include "metadata/cFieldItems.h"
#include "support/FailureNumber.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere {
namespace {

using Statements = std::vector<std::string>;

class FieldLoadersTest : public testing::Test {
protected:
    void SetUp() override {
        db.createCatalogue();
        db.addField({.tblName = "A02", .itemName = "A0201", .itemDesc = "单位"});
        db.addField({.tblName = "A02", .itemName = "A0202", .itemDesc = "职务", .codeTable = "ZW"});
        db.addField({.tblName = "A02", .itemName = "A0203", .itemDesc = "起始", .fieldType = "datetime"});
        db.createDataTable("A02", {"A0201", "A0202", "A0203", "A0299 integer"});
        db.addRow("A02", {"p1", "first", "01", "1990-03", "1"});
        db.addRow("A02", {"p1", "second", "99", {}, "2"});
        db.createCodeTable("ZW", "职务", {2}, {{"01", "主任"}, {"02", "书记"}});
    }

    test::TestDatabase db;
};

TEST_F(FieldLoadersTest, MetadataComesWithOneStatementToTheLetter) {
    EXPECT_EQ(LoadFieldItems("A02")->Count(), 3);
    EXPECT_EQ(db.statements(), (Statements{" select * from s_infoitem  where tblname ='A02'"}));
}

TEST_F(FieldLoadersTest, MetadataAloneLeavesTheValuesUnset) {
    const auto fields = LoadFieldItems("A02");
    for (const auto& field : *fields) {
        EXPECT_TRUE(field->Dmcod.isNull()) << field->ItemName;
        EXPECT_EQ(field->Dmcpt, "") << field->ItemName;
        EXPECT_EQ(field->children().Count(), 0) << field->ItemName;
    }
}

TEST_F(FieldLoadersTest, AllTwelveColumnsAreCopied) {
    db.addField({.tblName = "A09",
                 .itemName = "A0901",
                 .itemDesc = "说明",
                 .fieldType = "DateTime",
                 .fieldLength = "8",
                 .codeTable = "DM",
                 .style = "yyyy.MM",
                 .check = "B 1900.01,2100.01",
                 .fldOrder = "7",
                 .fldWidth = 1234,
                 .fldExplain = "帮助",
                 .isNull = false});
    const auto fields = LoadFieldItems("A09");
    const cFieldItem& field = fields->Item("A09_A0901");
    EXPECT_EQ(field.TblName, "A09");
    EXPECT_EQ(field.ItemName, "A0901");
    EXPECT_EQ(field.ItemDesc, "说明");
    EXPECT_EQ(field.FieldType, "DateTime");
    EXPECT_EQ(field.FieldLength, "8");
    EXPECT_EQ(field.CodeTable, "DM");
    EXPECT_EQ(field.Style, "yyyy.MM");
    EXPECT_EQ(field.Check, "B 1900.01,2100.01");
    EXPECT_EQ(field.FldOrder, "7");
    EXPECT_EQ(field.FldWidth, 1234);
    EXPECT_EQ(field.FldExplain, "帮助");
    EXPECT_FALSE(field.IsNUll);
}

TEST_F(FieldLoadersTest, ColumnsAreFoundByNameWhateverTheirOrder) {
    db.run("drop table s_infoitem");
    db.run("create table s_infoitem (\"isnull\" boolean, fldexplain text, fldwidth integer, fldorder text, "
           "\"check\" text, STYLE text, codetable text, fieldlength text, fieldtype text, itemdesc text, "
           "itemname text, tblname text)");
    db.run("insert into s_infoitem values (false, 'explain', 10, '3', 'A 5', 'yyyy', 'ZW', '6', 'int', "
           "'desc', 'A0201', 'A02')");
    const auto fields = LoadFieldItems("A02");
    const cFieldItem& field = fields->Item("A02_A0201");
    EXPECT_EQ(field.FldExplain, "explain");
    EXPECT_EQ(field.FieldLength, "6");
    EXPECT_EQ(field.Check, "A 5");
    EXPECT_FALSE(field.IsNUll);
}

TEST_F(FieldLoadersTest, ANullWidthReadsAs2000) {
    db.addField({.tblName = "A09", .itemName = "A0901", .fldWidth = std::nullopt});
    EXPECT_EQ(LoadFieldItems("A09")->Item(1).FldWidth, 2000);
}

TEST_F(FieldLoadersTest, ANullIsNUllReadsAsOptional) {
    db.addField({.tblName = "A09", .itemName = "A0901", .isNull = std::nullopt});
    EXPECT_TRUE(LoadFieldItems("A09")->Item(1).IsNUll);
}

TEST_F(FieldLoadersTest, ANullLengthReadsAsZero) {
    db.addField({.tblName = "A09", .itemName = "A0901", .fieldLength = std::nullopt});
    EXPECT_EQ(LoadFieldItems("A09")->Item(1).FieldLength, "0");
}

TEST_F(FieldLoadersTest, NullTextsReadAsEmpty) {
    db.addField({.tblName = "A09",
                 .itemName = std::nullopt,
                 .itemDesc = std::nullopt,
                 .fieldType = std::nullopt,
                 .codeTable = std::nullopt,
                 .style = std::nullopt,
                 .check = std::nullopt,
                 .fldOrder = std::nullopt,
                 .fldExplain = std::nullopt});
    const auto fields = LoadFieldItems("A09");
    const cFieldItem& field = fields->Item("A09_");
    EXPECT_EQ(field.ItemName + field.ItemDesc + field.FieldType + field.CodeTable, "");
    EXPECT_EQ(field.Style + field.Check + field.FldOrder + field.FldExplain, "");
}

TEST_F(FieldLoadersTest, AWidthOfMoreThan16BitsOverflows) {
    db.addField({.tblName = "A09", .itemName = "A0901", .fldWidth = 32768});
    EXPECT_EQ(failureOf([] { (void)LoadFieldItems("A09"); }), number(Failure::Overflow));
}

TEST_F(FieldLoadersTest, AFieldThatTheCatalogueHasTwiceRaises) {
    db.addField({.tblName = "A02", .itemName = "a0201"});
    EXPECT_EQ(failureOf([] { (void)LoadFieldItems("A02"); }), number(Failure::KeyAlreadyUsed));
    EXPECT_EQ(failureOf([] { (void)LoadFieldItemsWithValues("A02", "p1", 1); }),
              number(Failure::KeyAlreadyUsed));
}

TEST_F(FieldLoadersTest, ATableWithoutCatalogueRowsIsEmptyAndItsRecordIsNotRead) {
    EXPECT_EQ(LoadFieldItems("X01")->Count(), 0);
    db.clearStatements();
    EXPECT_EQ(LoadFieldItemsWithValues("X01", "p1", 1)->Count(), 0);
    EXPECT_EQ(db.statements(), (Statements{" select * from s_infoitem  where tblname ='X01'"}));
}

TEST_F(FieldLoadersTest, ValuesComeWithOneStatementForEachCodedField) {
    const auto fields = LoadFieldItemsWithValues("A02", "p1", 2);
    EXPECT_EQ(db.statements(), (Statements{" select * from s_infoitem  where tblname ='A02'",
                                           "select * from A02 where a00 ='p1' and A0299=2",
                                           "select dmcpt from ZW where dmcod='99'"}));
    EXPECT_EQ(fields->Item("A02_A0201").code(), "second");
}

TEST_F(FieldLoadersTest, WithoutASequenceTheFirstRowOfTheDatabaseIsLoaded) {
    const auto fields = LoadFieldItemsWithValues("A02", "p1", 0);
    EXPECT_EQ(db.statements()[1], "select * from A02 where a00 ='p1'");
    EXPECT_EQ(fields->Item("A02_A0201").code(), "first");
    EXPECT_EQ(fields->Item("A02_A0202").Dmcpt, "主任");
}

TEST_F(FieldLoadersTest, ANegativeSequenceIsNoCondition) {
    (void)LoadFieldItemsWithValues("A02", "p1", -1);
    EXPECT_EQ(db.statements()[1], "select * from A02 where a00 ='p1'");
}

TEST_F(FieldLoadersTest, APersonWithoutARowLeavesTheValuesUnset) {
    const auto fields = LoadFieldItemsWithValues("A02", "nobody", 0);
    EXPECT_EQ(fields->Count(), 3);
    EXPECT_TRUE(fields->Item("A02_A0201").Dmcod.isNull());
    EXPECT_TRUE(fields->Item("A02_A0202").Dmcod.isNull());
    EXPECT_EQ(fields->Item("A02_A0202").Dmcpt, "");
    EXPECT_EQ(db.statements().size(), 2U);
}

TEST_F(FieldLoadersTest, AnEmptyCodeIsLookedUpAndFindsNothing) {
    db.addRow("A02", {"p2", "x", "", "", "1"});
    const auto fields = LoadFieldItemsWithValues("A02", "p2", 1);
    EXPECT_EQ(db.statements().back(), "select dmcpt from ZW where dmcod=''");
    EXPECT_EQ(fields->Item("A02_A0202").Dmcpt, "");
}

TEST_F(FieldLoadersTest, ANullOfTheRecordIsTheEmptyText) {
    const auto fields = LoadFieldItemsWithValues("A02", "p1", 2);
    EXPECT_EQ(fields->Item("A02_A0203").Dmcod, data::Value(""));
}

TEST_F(FieldLoadersTest, ANullCodeIsLookedUpAsTheEmptyText) {
    db.addRow("A02", {"p2", "x", {}, "", "1"});
    const auto fields = LoadFieldItemsWithValues("A02", "p2", 1);
    EXPECT_EQ(db.statements().back(), "select dmcpt from ZW where dmcod=''");
    EXPECT_EQ(fields->Item("A02_A0202").Dmcod, data::Value(""));
}

TEST_F(FieldLoadersTest, ACodeThatIsNoLongerInItsTableIsKeptWithoutACaption) {
    const auto fields = LoadFieldItemsWithValues("A02", "p1", 2);
    EXPECT_EQ(fields->Item("A02_A0202").code(), "99");
    EXPECT_EQ(fields->Item("A02_A0202").Dmcpt, "");
}

TEST_F(FieldLoadersTest, ANullCaptionReadsAsEmpty) {
    db.run("update ZW set dmcpt=null where dmcod='01'");
    EXPECT_EQ(LoadFieldItemsWithValues("A02", "p1", 1)->Item("A02_A0202").Dmcpt, "");
}

TEST_F(FieldLoadersTest, AFieldWithoutAColumnRaises) {
    db.addField({.tblName = "A02", .itemName = "A0288"});
    EXPECT_EQ(failureOf([] { (void)LoadFieldItemsWithValues("A02", "p1", 1); }),
              number(Failure::ItemNotFound));
}

TEST_F(FieldLoadersTest, AFieldWithoutAColumnIsNoFailureWhileThereIsNoRecord) {
    db.addField({.tblName = "A02", .itemName = "A0288"});
    EXPECT_EQ(LoadFieldItemsWithValues("A02", "nobody", 1)->Count(), 4);
}

TEST_F(FieldLoadersTest, EachFailingStatementReachesTheCaller) {
    for (int statement = 1; statement <= 3; ++statement) {
        db.failing().failAfter(statement, "断开");
        EXPECT_EQ(failureOf([] { (void)LoadFieldItemsWithValues("A02", "p1", 1); }),
                  number(Failure::StatementFailed))
            << "statement " << statement;
    }
}

} // namespace
} // namespace quillmere

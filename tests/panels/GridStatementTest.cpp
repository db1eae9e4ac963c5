#include "panels/GridStatement.h"
#include "panels/PanelBench.h"
#include "support/FailureNumber.h"

namespace quillmere {
namespace {

using Statements = std::vector<std::string>;

constexpr auto plainCatalogueSql =
    "select itemname,itemdesc,iif(codetable is null,'',codetable) as codetable ,"
    "iif(style is null,'',style) as style ,iif(fldwidth is null,2000,fldwidth) as fldwidth from  s_infoitem "
    "where tblname ='G' and itemname <> 'A00' and itemname <>'' and itemdesc <>''   order by fldorder ";
constexpr auto aliasedCatalogueSql =
    "select itemname,itemdesc,iif(codetable is null,'',codetable) as Acodetable ,"
    "iif(style is null,'',style) as Astyle ,iif(fldwidth is null,2000,fldwidth) as Afldwidth from  "
    "s_infoitem "
    "where tblname ='G' and itemname <> 'A00' and itemname <>'' and itemdesc <>''   order by fldorder ";

class GridStatementTest : public testing::Test {
protected:
    GridStatementTest() { db.createCatalogue(); }

    void add(test::FieldRow row) {
        row.tblName = "G";
        db.addField(row);
    }
    void addPlain() { add({.itemName = "G01", .itemDesc = "甲", .fldOrder = "1"}); }
    void addCoded(const char* name, const char* description, const char* order, const char* style = "") {
        add({.itemName = name,
             .itemDesc = description,
             .codeTable = "ZW",
             .style = style,
             .fldOrder = order});
    }
    std::string sql() { return makeGridStatement(info, false).sql; }

    test::TestDatabase db;
    cWhInfo info{
        .id = 0, .personID = "p1", .TabId = "G", .IsMult = true, .IsChange = false, .FldOrder = "G99"};
};

TEST_F(GridStatementTest, OneCatalogueStatementIsRunAndNoOther) {
    addPlain();
    (void)makeGridStatement(info, false);
    EXPECT_EQ(db.statements(), Statements{plainCatalogueSql});
}

TEST_F(GridStatementTest, TheAliasedVariantAsksOtherwiseAndFormsTheSame) {
    addPlain();
    addCoded("G02", "乙", "2");
    const GridStatement made = makeGridStatement(info, true);
    EXPECT_EQ(db.statements(), Statements{aliasedCatalogueSql});
    const GridStatement plain = makeGridStatement(info, false);
    EXPECT_EQ(made.sql, plain.sql);
    EXPECT_EQ(made.widths, plain.widths);
}

TEST_F(GridStatementTest, WithoutCodedFieldsThereAreNoBracketsAndNoJoins) {
    addPlain();
    add({.itemName = "G02", .itemDesc = "乙", .fldOrder = "2"});
    EXPECT_EQ(sql(), "select G.G01 as 甲, G.G02 as 乙 from G Where G.A00='p1' order by G99");
}

TEST_F(GridStatementTest, AFieldWithAPictureIsFormatted) {
    addPlain();
    add({.itemName = "G02", .itemDesc = "日期", .style = "yyyy.MM", .fldOrder = "2"});
    EXPECT_EQ(sql(),
              "select G.G01 as 甲, format(G.G02,'yyyy.MM') as 日期 from G Where G.A00='p1' order by G99");
}

TEST_F(GridStatementTest, ACodedFieldIsShownByTheNameOfItsCode) {
    addCoded("G01", "职务", "1");
    EXPECT_EQ(sql(),
              "select ZW_G01.dmcpt as 职务 from ( G  left join ZW ZW_G01 on G.G01=ZW_G01.dmcod)  Where "
              "G.A00='p1' order by G99");
}

TEST_F(GridStatementTest, TwoFieldsOnOneCodeTableJoinItTwiceUnderTwoAliases) {
    addPlain();
    addCoded("G02", "职务", "2");
    addCoded("G03", "原职务", "3");
    EXPECT_EQ(sql(),
              "select G.G01 as 甲, ZW_G02.dmcpt as 职务, ZW_G03.dmcpt as 原职务 from (( G  left join ZW "
              "ZW_G02 on G.G02=ZW_G02.dmcod)   left join ZW ZW_G03 on G.G03=ZW_G03.dmcod)  Where "
              "G.A00='p1' order by G99");
}

TEST_F(GridStatementTest, ACodedFieldWithAPictureIgnoresThePicture) {
    addCoded("G01", "职务", "1", "yyyy.MM");
    EXPECT_TRUE(sql().starts_with("select ZW_G01.dmcpt as 职务 from "));
}

TEST_F(GridStatementTest, TheColumnsStandInFldorder) {
    add({.itemName = "G01", .itemDesc = "末", .fldOrder = "30"});
    add({.itemName = "G02", .itemDesc = "首", .fldOrder = "10"});
    add({.itemName = "G99", .itemDesc = "序号", .fldOrder = "20"});
    EXPECT_TRUE(sql().starts_with("select G.G02 as 首, G.G99 as 序号, G.G01 as 末 from G "));
}

TEST_F(GridStatementTest, TheKeyAndFieldsWithoutNameOrDescriptionAreNoColumns) {
    addPlain();
    add({.itemName = "A00", .itemDesc = "标识"});
    add({.itemName = "", .itemDesc = "无名"});
    add({.itemName = "G03", .itemDesc = ""});
    add({.itemName = "G04", .itemDesc = std::nullopt});
    add({.itemName = std::nullopt, .itemDesc = "无名"});
    EXPECT_EQ(sql(), "select G.G01 as 甲 from G Where G.A00='p1' order by G99");
}

TEST_F(GridStatementTest, ANullCodeTableAndPictureAreNone) {
    add({.itemName = "G01", .itemDesc = "甲", .codeTable = std::nullopt, .style = std::nullopt});
    EXPECT_EQ(sql(), "select G.G01 as 甲 from G Where G.A00='p1' order by G99");
}

TEST_F(GridStatementTest, ASingleRecordSetHasNoOrder) {
    addPlain();
    info.IsMult = false;
    EXPECT_EQ(sql(), "select G.G01 as 甲 from G Where G.A00='p1' ");
}

TEST_F(GridStatementTest, WithoutAnOrderFieldThereIsNoOrder) {
    addPlain();
    info.FldOrder.clear();
    EXPECT_EQ(sql(), "select G.G01 as 甲 from G Where G.A00='p1' ");
}

TEST_F(GridStatementTest, AnEmptyPersonIsComparedWithTheEmptyText) {
    addPlain();
    info.personID.clear();
    EXPECT_EQ(sql(), "select G.G01 as 甲 from G Where G.A00='' order by G99");
}

TEST_F(GridStatementTest, AnEmptyCatalogueGivesAnEmptyStatement) {
    const GridStatement made = makeGridStatement(info, false);
    EXPECT_EQ(made.sql, "");
    EXPECT_TRUE(made.widths.empty());
}

TEST_F(GridStatementTest, WidthsComeFromTheCatalogueAndAre2000WhereItHasNull) {
    add({.itemName = "G01", .itemDesc = "甲", .fldOrder = "1", .fldWidth = 700});
    add({.itemName = "G02", .itemDesc = "乙", .fldOrder = "2", .fldWidth = std::nullopt});
    add({.itemName = "G03", .itemDesc = "丙", .fldOrder = "3", .fldWidth = 32767});
    EXPECT_EQ(makeGridStatement(info, false).widths, (std::vector<std::int16_t>{700, 2000, 32767}));
}

TEST_F(GridStatementTest, AWidthOver32767Fails) {
    add({.itemName = "G01", .itemDesc = "甲", .fldWidth = 32768});
    EXPECT_EQ(failureOf([&] { (void)sql(); }), number(Failure::Overflow));
}

} // namespace
} // namespace quillmere

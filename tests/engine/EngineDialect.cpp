#include "EngineContract.h"

#include "../support/FailureNumber.h"

namespace quillmere::data {

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(EngineDialect);

namespace {

using Texts = std::vector<std::string>;

} // namespace

// ---- comparing texts

TEST_P(EngineDialect, TextIsComparedWithoutRegardToCase) {
    makeInfoTable();
    EXPECT_EQ(column("select tblname from s_infotable where tblname ='a02'"), Texts{"A02"});
    EXPECT_EQ(column("SELECT * FROM s_infotable where tblname in ('m01','N02','a01') order by otherprop"),
              (Texts{"A01", "n02", "M01"}));
    EXPECT_EQ(
        column(
            "select tblname from s_infotable where tblname <> 'a01' and tblname<>'N02' order by otherprop"),
        (Texts{"A02", "M01"}));
}

TEST_P(EngineDialect, NamesAreFoundWithoutRegardToCase) {
    makeInfoTable();
    EXPECT_EQ(cell("SELECT TBLDESC from S_InfoTable Where TblName='A01'"), Value("人员基本信息"));
}

TEST_P(EngineDialect, LikeTakesPercentAndIgnoresCase) {
    makeInfoTable();
    EXPECT_EQ(column("SELECT * FROM s_infotable where tblname like 'm%' order by otherprop"), Texts{"M01"});
    EXPECT_EQ(column("SELECT * FROM s_infotable where tblname like 'N%' or tblname='a01' order by otherprop"),
              (Texts{"A01", "n02"}));
    EXPECT_EQ(column("select tblname from s_infotable where tbldesc like '%学%经%'"), Texts{"A02"});
}

TEST_P(EngineDialect, ABackslashInAPatternIsACharacter) {
    execute("create table t (a " + engine->types().text + ")");
    execute("insert into t (a) values('a\\b')");
    EXPECT_EQ(column("select a from t where a like '%\\%'"), Texts{"a\\b"});
}

// ---- iif, true, false

TEST_P(EngineDialect, IifGivesADefaultForNull) {
    makeInfoTable();
    EXPECT_EQ(cell("select iif(tbldesc is null,'',tbldesc)  from s_infotable where tblname ='n02'"),
              Value(""));
    EXPECT_EQ(
        cell(
            "select iif(maxnumber is null,0,maxnumber) as maxnumber from  s_infotable  where tblname ='A02'"),
        Value(30));
    EXPECT_EQ(
        cell(
            "select iif(maxnumber is null,0,maxnumber) as maxnumber from  s_infotable  where tblname ='n02'"),
        Value(0));
    EXPECT_EQ(
        column("select iif(orderfield is null , '',orderfield) as orderfield  from s_infotable where tblname "
               "='A02'  and orderfield<>'' "),
        Texts{"A0203 desc"});
    EXPECT_TRUE(
        query("select iif(orderfield is null , '',orderfield) as orderfield  from s_infotable where tblname "
              "='M01'  and orderfield<>'' ")
            .empty());
}

TEST_P(EngineDialect, IifOfABooleanIsABoolean) {
    makeCodeTable("GB");
    const auto rows =
        query("select dmcod,dmcpt,iif(dmattr is null,false,dmattr) as dmattr  from GB where dmcod<>''  "
              "and dmcpt<>''    and len(dmcod) =2  order by dmcod");
    ASSERT_EQ(rows.rowCount(), 2U);
    EXPECT_EQ(rows.at(0, "dmattr"), Value(false));
    EXPECT_EQ(rows.at(1, "dmattr"), Value(false)); // null in the table
    const auto choices = query("select dmcod,dmcpt,iif(dmattr is null,false,dmattr) as dmattr from GB where  "
                               "dmcod<>'' and dmcpt<>''  and len(dmcod) =4  order by dmcod");
    ASSERT_EQ(choices.rowCount(), 3U);
    EXPECT_EQ(choices.at(0, "dmattr"), Value(true));
    EXPECT_EQ(choices.at(0, "dmcod"), Value("0101"));
}

TEST_P(EngineDialect, IifWithALiteralTrueOrFalseIsABoolean) {
    makeCodeTable("GB");
    const auto rows = query("select len(dmcod) as n, iif(dmcpt='',true,false) as nameless, "
                            "iif(dmhnd is null , FALSE , dmattr) as known from GB where dmcod in ('01','03') "
                            "order by dmcod");
    ASSERT_EQ(rows.rowCount(), 2U);
    EXPECT_EQ(rows.row(0), (std::vector<Value>{2, false, false}));
    EXPECT_EQ(rows.row(1), (std::vector<Value>{2, true, true}));
}

TEST_P(EngineDialect, IifOfNumbersIsANumber) {
    makeCodeTable("GB");
    EXPECT_EQ(cell("select iif(dmattr=true,1,0) as n from GB where dmcod='03'"), Value(1));
    EXPECT_EQ(cell("select iif(iif(dmattr is null,false,dmattr)=true,1,0) as n from GB where dmcod='03'"),
              Value(1));
}

TEST_P(EngineDialect, TrueAndFalseAreLiterals) {
    makeCodeTable("GB");
    EXPECT_EQ(column("select dmcod from GB where dmattr =true order by dmcod"),
              (Texts{"0101", "0102", "02A1", "03"}));
    EXPECT_EQ(column("select dmcod from GB where dmattr =false order by dmcod"), Texts{"01"});
    execute("update GB set dmattr=true where dmcod='01'");
    EXPECT_EQ(cell("select dmattr from GB where dmcod='01'"), Value(true));
}

TEST_P(EngineDialect, TheCodeSearchFindsNamesAndShortForms) {
    makeCodeTable("GB");
    const auto found = [&](const std::string& pattern) {
        return column(
            "select dmcod,dmcpt,iif(dmhnd is null, '',dmhnd) as dmhnd  from GB where dmattr =true and   "
            "dmcod<>''  and dmcpt<>''   and  ( DmCpt like '" +
            pattern + "' or   DmHnd like '" + pattern + "')     order by dmcod");
    };
    EXPECT_EQ(found("%s%"), (Texts{"0101", "0102", "02A1"}));
    EXPECT_EQ(found("%b%s%"), Texts{"0101"});
    EXPECT_EQ(found("%海%"), Texts{"02A1"});
    EXPECT_EQ(found("%h%b%"), Texts{}); // a heading cannot be chosen
}

// ---- max

TEST_P(EngineDialect, TheHighestSequenceNumberIsZeroWithoutRows) {
    execute("create table a01 (A00 " + engine->types().text + ", A0199 " + engine->types().integer + ")");
    EXPECT_EQ(cell("select iif(max(A0199) is null,0,max(A0199)) from a01  ").toInteger16(), 0);
    execute("insert into a01 (A00,A0199) values('p',null)");
    EXPECT_EQ(cell("select iif(max(A0199) is null,0,max(A0199)) from a01  ").toInteger16(), 0);
    execute("insert into a01 (A00,A0199) values('q',12)");
    execute("insert into a01 (A00,A0199) values('r',7)");
    EXPECT_EQ(cell("select iif(max(A0199) is null,0,max(A0199)) from a01  ").toInteger16(), 12);
}

// ---- len and mid

TEST_P(EngineDialect, LenCountsCharacters) {
    execute("create table t (a " + engine->types().text + ")");
    execute("insert into t (a) values('北京ab')");
    EXPECT_EQ(cell("select len(a) from t").toLong(), 4);
    execute("update t set a=''");
    EXPECT_EQ(cell("select len(a) from t").toLong(), 0);
    execute("update t set a=null");
    EXPECT_TRUE(cell("select len(a) from t").isNull());
}

TEST_P(EngineDialect, MidCountsCharactersFromOne) {
    execute("create table P01 (P0120 " + engine->types().text + ")");
    execute("insert into P01 (P0120) values('项目ab19900301')");
    EXPECT_EQ(cell("select mid(P0120,1,3) from P01"), Value("项目a"));
    EXPECT_EQ(cell("select mid(P0120,5) from P01"), Value("19900301"));
    EXPECT_EQ(cell("select mid(P0120,11,6) from P01"), Value("01"));
    EXPECT_EQ(cell("select mid(P0120,20,6) from P01"), Value(""));
    EXPECT_EQ(query("select * from P01 where mid(P0120,5,6)='199003'").rowCount(), 1U);
    EXPECT_EQ(query("select * from P01 where mid(P0120,5,6)='199004'").rowCount(), 0U);
    execute("update P01 set P0120=null");
    EXPECT_TRUE(cell("select mid(P0120,5,6) from P01").isNull());
}

// ---- format

struct FormatCase {
    const char* stored;
    const char* picture;
    const char* shown;
};

TEST_P(EngineDialect, FormatShowsTextByAPicture) {
    execute("create table A01 (A0111 " + engine->types().text + ")");
    for (const auto& [stored, picture, shown] : {
             FormatCase{"1990-03", "yyyy.MM", "1990.03"},
             FormatCase{"1990.03", "yyyy-MM", "1990-03"},
             FormatCase{"1990-03-05", "yyyy.MM.dd", "1990.03.05"},
             FormatCase{"1990/3/5", "yyyy-MM-dd", "1990-03-05"},
             FormatCase{"1990-03-05 08:30:00", "yyyy.MM", "1990.03"},
             FormatCase{"12.5", "0.00", "12.50"},
             FormatCase{"1234567.891", "#,##0.00", "1,234,567.89"},
             FormatCase{"不详", "yyyy.MM", "不详"},
             FormatCase{"", "yyyy.MM", ""},
         }) {
        execute("delete from A01");
        execute(std::string("insert into A01 (A0111) values('") + stored + "')");
        EXPECT_EQ(cell(std::string("select format(A01.A0111,'") + picture + "') as 出生日期 from A01"),
                  Value(shown))
            << stored << " by " << picture;
    }
}

TEST_P(EngineDialect, FormatShowsNumbersByAPicture) {
    execute("create table t (n " + engine->types().integer + ", x " + engine->types().real + ")");
    execute("insert into t (n,x) values(5,1234.5)");
    EXPECT_EQ(cell("select format(t.n,'0.00') as D from t"), Value("5.00"));
    EXPECT_EQ(cell("select format(t.x,'#,##0.00') as D from t"), Value("1,234.50"));
    execute("update t set x=7");
    EXPECT_EQ(cell("select format(t.x,'0') as D from t"), Value("7"));
}

TEST_P(EngineDialect, FormatOfNullIsNull) {
    execute("create table t (a " + engine->types().text + ")");
    execute("insert into t (a) values(null)");
    EXPECT_TRUE(cell("select format(t.a,'yyyy.MM') as D from t").isNull());
}

// ---- the statements of a grid

TEST_P(EngineDialect, TheFieldsOfAGridAreRead) {
    const auto types = engine->types();
    execute("create table s_infoitem (TblName " + types.text + ", ItemName " + types.text + ", ItemDesc " +
            types.text + ", CodeTable " + types.text + ", style " + types.text + ", FldOrder " +
            types.integer + " not null, FldWidth " + types.integer + ", \"IsNUll\" " + types.boolean +
            ", \"Check\" " + types.text + ")");
    for (const char* row :
         {"'A02','A00','主键','','',0,null,null,null", "'A02','A0203','国籍','GB',null,2,900,false,'N 1'",
          "'A02','A0201','日期',null,'yyyy.MM',1,null,true,null", "'A02','A0204','','','',3,null,null,null"})
        execute(std::string("insert into s_infoitem values(") + row + ")");
    const auto rows = query("select itemname,itemdesc,iif(codetable is null,'',codetable) as codetable "
                            ",iif(style is null,'',style) as "
                            "style ,iif(fldwidth is null,2000,fldwidth) as fldwidth from  s_infoitem where "
                            "tblname ='A02' and itemname "
                            "<> 'A00' and itemname <>'' and itemdesc <>''   order by fldorder ");
    ASSERT_EQ(rows.rowCount(), 2U);
    EXPECT_EQ(rows.row(0), (std::vector<Value>{"A0201", "日期", "", "yyyy.MM", 2000}));
    EXPECT_EQ(rows.row(1), (std::vector<Value>{"A0203", "国籍", "GB", "", 900}));

    const auto whole = query(" select * from s_infoitem  where tblname ='A02' order by fldorder");
    EXPECT_EQ(whole.at(1, "IsNUll"), Value(true));
    EXPECT_EQ(whole.at(2, "isnull"), Value(false));
    EXPECT_TRUE(whole.at(0, "IsNUll").isNull());
    EXPECT_EQ(whole.at(2, "Check"), Value("N 1"));
}

TEST_P(EngineDialect, AGridShowsCodeNamesThroughNestedLeftJoins) {
    const auto types = engine->types();
    makeCodeTable("GB");
    makeCodeTable("AX");
    execute("create table A02 (A00 " + types.text + ", A0201 " + types.text + ", A0202 " + types.text +
            ", A0203 " + types.text + ", A0204 " + types.real + ", A0299 " + types.integer + " not null)");
    execute("insert into A02 values('p1','0101','02a1','1990-03',1.5,2)");
    execute("insert into A02 values('p1','zz',null,null,null,1)");
    execute("insert into A02 values('p2','0102','0102','1991-04',2,1)");
    const auto rows = query(
        "select GB_A0201.dmcpt as 籍贯, AX_A0202.dmcpt as 出生地（省）, GB_A0202.dmcpt as 户口, "
        "format(A02.A0203,'yyyy.MM') as 日期, A02.A0204 as 金额（万元）, A02.A0299 as 序号 from ((( A02 "
        "left join GB GB_A0201 on A02.A0201=GB_A0201.dmcod)  left join AX AX_A0202 on "
        "A02.A0202=AX_A0202.dmcod)  left join GB GB_A0202 on A02.A0202=GB_A0202.dmcod)  Where A02.A00='p1' "
        "order by A0299");
    ASSERT_EQ(rows.rowCount(), 2U);
    EXPECT_EQ(rows.columns(), (Texts{"籍贯", "出生地（省）", "户口", "日期", "金额（万元）", "序号"}));
    EXPECT_EQ(rows.row(0), (std::vector<Value>{Null{}, Null{}, Null{}, Null{}, Null{}, 1}));
    EXPECT_EQ(rows.row(1), (std::vector<Value>{"北京市", "上海市", "上海市", "1990.03", 1.5, 2}));
}

TEST_P(EngineDialect, AGridOfNobodyIsEmpty) {
    execute("create table A02 (A00 " + engine->types().text + ", A0201 " + engine->types().text + ")");
    const auto rows = query("select A02.A0201 as 学校 from A02 Where A02.A00='' order by A0201");
    EXPECT_TRUE(rows.empty());
    EXPECT_EQ(rows.columns(), Texts{"学校"});
}

} // namespace quillmere::data

#include "SampleDatabase.h"

#include "metadata/Globals.h"
#include "metadata/cWhInfo.h"
#include "panels/GridStatement.h"
#include "platform/text/Text.h"
#include "sample/Catalogue.h"

#include <gtest/gtest.h>

#include <set>

namespace quillmere::sample {
namespace {

using test::countOf;
using test::defaultRegister;

/// Statements in use, with values filled in.
constexpr const char* statementsInUse[] = {
    "select count(A00) from a01 where a00 ='x'",
    "select count(A00) from B01 where a00 ='x'",
    "select a0101 from a01 where a00='x'",
    "select B0101 from B01 where A00='x'",
    "select iif(a0101 is null,'',a0101) from a01 where a00='x'",
    "select iif(B0101 is null,'',B0101) from B01 where a00='x'",
    "select A0136 from A01 where A00='x'",
    "select * from A01 where A00='x'",
    "select * from P01 where A00='x'",
    "delete from P01 where A00='x'",
    "select count(*) from A01 where A0101 = 'x'",
    "select count(*) from B01 where B0101 = 'x'",
    "select iif(max(A0199) is null,0,max(A0199)) from a01  ",
    "select iif(max(B0199) is null,0,max(B0199)) from B01  ",
    "select iif(max(P0299) is null,0,max(P0299)) from P02  ",
    "select iif(max(P0399) is null,0,max(P0399)) from P03  ",
    "select iif(max(C0499) is null,0,max(C0499)) from C04  ",
    "select count(1) from E06 where a00 ='x'",
    "select count(1) from M02 where a00 ='x'",
    "select P0299 as 序号,P0201 as 计划阶段起始年月 from P02 where A00='x' order by P0299",
    "select P0399 as 序号,P0301 as 用途 from P03 where A00='x' order by P0399",
    "select C0499 as 序号,C0401 as 用途 from C04 where A00='x' order by C0499",
    "delete from P02 where A00='x' and P0299=3",
    "delete from P03 where A00='x' and P0399=3",
    "delete from C04 where A00='x' and C0499=3",
    "update P02 set P0201='2026-01' where A00='x' and P0299=3",
    "update P03 set P0301='x' where A00='x' and P0399=3",
    "update C04 set C0401='x' where A00='x' and C0499=3",
    " select * from s_infoitem  where tblname ='A01'",
    "select itemname,itemdesc from s_infoitem where tblname='A01' and itemname <> 'A00' and itemname <>'' "
    "and itemdesc <>''   order by fldorder ",
    "select itemdesc from s_infoitem where itemdesc <>'' and  tblname = 'A02' and itemname = 'A0299' ",
    " select Property from s_infotable  where TblName ='A01'",
    "select iif(tbldesc is null,'',tbldesc)  from s_infotable where tblname ='A01'",
    "select iif(orderfield is null , '',orderfield) as orderfield  from s_infotable where tblname ='A02'  "
    "and orderfield<>'' ",
    "select iif(maxnumber is null,0,maxnumber) as maxnumber from  s_infotable  where tblname ='A02'",
    "SELECT * FROM s_infotable where tblname in ('A01','A02') order by otherprop",
    "SELECT * FROM s_infotable where tblname like 'M%' order by otherprop",
    "SELECT * FROM s_infotable where tblname like 'F%' or tblname='P01' order by otherprop",
    "SELECT * FROM s_infotable order by OtherProp",
    "select dmcpt from DM_XZQH where dmcod='110101'",
    "select dmcod,dmcpt,iif(dmattr is null,false,dmattr) as dmattr  from DM_XZQH where dmcod<>''  and "
    "dmcpt<>''    and len(dmcod) =2  order by dmcod",
    "select dmcod,dmcpt,iif(dmhnd is null, '',dmhnd) as dmhnd  from DM_XZQH where dmattr =true and   "
    "dmcod<>''  and dmcpt<>''   and  ( DmCpt like '%x%' or   DmHnd like '%x%')     order by dmcod",
    "select bit from s_CodeLevDefine where dmgrp ='DM_XB' order by levelnum",
    "select codtbldsc from s_CodeTableDefine where dmgrp ='DM_XB' ",
    "select * from TS_SetCustomize where DmCod='01'",
    "select * from ZZStyle",
    "select id from S_GUID where val='a'",
    " delete from S_GUID ",
    // The reference host's list.
    "select * from A01 order by A0199 desc limit 200 offset 400",
    "select * from B01 order by B0199 desc limit 200 offset 400",
    "select distinct A01.rowid from P01 cross join A01 where A01.A00=P01.A00 and P01.P0123='02' order by "
    "A01.rowid desc",
};

/// Tables whose size does not grow with the register: reading one whole costs next to nothing.
const std::set<std::string> smallTables{"s_infotable", "ZZStyle", "S_GUID"};

/// Fails for each step of the statement's plan that reads a whole table without an index.
void expectIndexed(const std::string& statement) {
    const data::RowSet plan = defaultRegister().query("explain query plan " + statement);
    for (std::size_t row = 0; row < plan.rowCount(); ++row) {
        const std::string step = plan.at(row, "detail").toText();
        if (!step.starts_with("SCAN ") || step.find("INDEX") != std::string::npos) continue;
        EXPECT_TRUE(smallTables.contains(text::split(step, " ").at(1))) << statement << ": " << step;
    }
}

class QueryPlan : public testing::TestWithParam<const char*> {};

TEST_P(QueryPlan, FindsAnIndex) { expectIndexed(GetParam()); }

INSTANTIATE_TEST_SUITE_P(InUse, QueryPlan, testing::ValuesIn(statementsInUse));

TEST(QueryPlans, AWholeTableIsSeenAsSuch) {
    // Else the tests here could not fail.
    const data::RowSet plan =
        defaultRegister().query("explain query plan select * from A01 where A0128='10012345678'");
    EXPECT_EQ(plan.at(0, "detail").toText(), "SCAN A01");
}

TEST(QueryPlans, TablesReadWholeStaySmall) {
    for (const std::string& table : smallTables)
        EXPECT_LE(countOf(defaultRegister(), "select count(*) from " + table), 100) << table;
}

TEST(QueryPlans, StatementsThatEverySetSharesFindItsIndex) {
    for (const SetRow& set : informationSets()) {
        const std::string ofPerson = " from " + set.name + " where A00='x'";
        for (const char* what : {"select *", "select count(*)", "delete"})
            expectIndexed(what + ofPerson);
        expectIndexed("update " + set.name + " set A00='x' where A00='x'");
        if (set.single) continue;
        const std::string sequence = set.name + "99";
        expectIndexed("select *" + ofPerson + " and " + sequence + "=2");
        expectIndexed("select *" + ofPerson + " order by " + sequence);
        expectIndexed("select count(*)" + ofPerson + " and " + sequence + " >0");
        expectIndexed("select iif(max(" + sequence + ") is null,0,max(" + sequence + "))" + ofPerson);
        expectIndexed("delete" + ofPerson + " and " + sequence + " = 1");
        expectIndexed("update " + set.name + " set " + sequence + " = " + sequence + " +200 where a00='x'");
        expectIndexed("update " + set.name + " set " + sequence + " = 2 where a00='x' and " + sequence +
                      " = 202");
    }
}

TEST(QueryPlans, GridsFindTheIndexOfTheirSetAndOfEveryCodeTable) {
    publishConnection(test::sharedDefaultRegister());
    for (const SetRow& set : informationSets()) {
        cWhInfo info;
        info.TabId = set.name;
        info.IsMult = !set.single;
        info.personID = "x";
        info.FldOrder = set.single ? "" : set.name + "99";
        expectIndexed(makeGridStatement(info, false).sql);
    }
    publishConnection(nullptr);
}

} // namespace
} // namespace quillmere::sample

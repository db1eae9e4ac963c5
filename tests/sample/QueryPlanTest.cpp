#include "SampleDatabase.h"

#include <gtest/gtest.h>

namespace quillmere::sample {
namespace {

/// Statements in use, with values filled in.
constexpr const char* statementsInUse[] = {
    "select count(A00) from a01 where a00 ='x'",
    "select count(A00) from B01 where a00 ='x'",
    "select * from P01 where A00='x'",
    "select count(*) from A01 where A0101 = 'x'",
    "select count(*) from B01 where B0101 = 'x'",
    "select iif(max(A0199) is null,0,max(A0199)) from a01  ",
    "select iif(max(B0199) is null,0,max(B0199)) from B01  ",
    "select iif(max(P0299) is null,0,max(P0299)) from P02  ",
    "select iif(max(P0399) is null,0,max(P0399)) from P03  ",
    "select iif(max(C0499) is null,0,max(C0499)) from C04  ",
    " select * from s_infoitem  where tblname ='A01'",
    "select itemdesc from s_infoitem where itemdesc <>'' and  tblname = 'A02' and itemname = 'A0299' ",
    " select Property from s_infotable  where TblName ='A01'",
    "SELECT * FROM s_infotable where tblname in ('A01','A02') order by otherprop",
    "select dmcpt from DM_XZQH where dmcod='110101'",
    "select bit from s_CodeLevDefine where dmgrp ='DM_XB' order by levelnum",
    "select codtbldsc from s_CodeTableDefine where dmgrp ='DM_XB' ",
    "select * from TS_SetCustomize where DmCod='01'",
    "select * from A02 where a00 ='x' and A0299=1",
    "select count(*) from A02 where A00 ='x' and A0299 >0",
    "delete from A02 where A00='x'  and A0299 = 1",
    "update A02 set A0299 = A0299 +200 where a00='x'",
    "select * from A02 where A00 ='x' order by A0201",
    "select id from S_GUID where val='a'",
};

class QueryPlan : public testing::TestWithParam<const char*> {};

TEST_P(QueryPlan, FindsAnIndex) {
    const std::string statement = GetParam();
    const data::RowSet plan = test::defaultRegister().query("explain query plan " + statement);
    ASSERT_FALSE(plan.empty());
    for (std::size_t row = 0; row < plan.rowCount(); ++row) {
        const std::string step = plan.at(row, "detail").toText();
        // The identifier table holds one row at the most.
        const bool tiny = step == "SCAN S_GUID";
        const bool wholeTable = step.starts_with("SCAN") && step.find("INDEX") == std::string::npos;
        EXPECT_TRUE(tiny || !wholeTable) << statement << ": " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(InUse, QueryPlan, testing::ValuesIn(statementsInUse));

} // namespace
} // namespace quillmere::sample

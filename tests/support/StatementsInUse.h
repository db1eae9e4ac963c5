#pragma once

#include "metadata/cWhInfo.h"
#include "panels/GridStatement.h"
#include "sample/Catalogue.h"

#include <string>
#include <vector>

// What the system says to a register, for the tests on how the engines go about it.

namespace quillmere::test {

/// Statements in use, with values filled in.
inline constexpr const char* statementsInUse[] = {
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
};

/// The statements that every information set shares.
[[nodiscard]] inline std::vector<std::string> statementsOfSet(const sample::SetRow& set) {
    const std::string ofPerson = " from " + set.name + " where A00='x'";
    std::vector<std::string> statements{"select *" + ofPerson, "select count(*)" + ofPerson,
                                        "delete" + ofPerson,
                                        "update " + set.name + " set A00='x' where A00='x'"};
    if (set.single) return statements;
    const std::string sequence = set.name + "99";
    statements.insert(
        statements.end(),
        {"select *" + ofPerson + " and " + sequence + "=2", "select *" + ofPerson + " order by " + sequence,
         "select count(*)" + ofPerson + " and " + sequence + " >0",
         "select iif(max(" + sequence + ") is null,0,max(" + sequence + "))" + ofPerson,
         "delete" + ofPerson + " and " + sequence + " = 1",
         "update " + set.name + " set " + sequence + " = " + sequence + " +200 where a00='x'",
         "update " + set.name + " set " + sequence + " = 2 where a00='x' and " + sequence + " = 202"});
    return statements;
}

/// The statement behind the grid of a set's panel. The register has to be the published connection.
[[nodiscard]] inline std::string gridStatementOf(const sample::SetRow& set) {
    cWhInfo info;
    info.TabId = set.name;
    info.IsMult = !set.single;
    info.personID = "x";
    info.FldOrder = set.single ? "" : set.name + "99";
    return makeGridStatement(info, false).sql;
}

} // namespace quillmere::test

#include "Faults.h"

namespace quillmere::check::test {

namespace {

// The catalogue of the sample register lets no order be null and no code stand twice; others do.
constexpr std::string_view looseSets =
    "create table s_infotable (tblname text collate nocase primary key, tbldesc "
    "text collate nocase, OtherProp integer, orderfield text collate nocase, "
    "maxnumber integer, Property boolean)";
constexpr std::string_view looseFields =
    "create table s_infoitem (TblName text collate nocase, ItemName text collate nocase, ItemDesc text "
    "collate "
    "nocase, FieldType text, FieldLength text, CodeTable text collate nocase, style text, \"Check\" text, "
    "FldOrder integer, FldWidth integer, FldExplain text, \"IsNUll\" boolean)";
constexpr std::string_view looseCodes =
    "create table DM_XB (dmcod text collate nocase, dmcpt text, dmhnd text, dmattr boolean)";

const std::vector<Fault> rows{
    // Tables and columns.
    {{"drop table E06"}, "table-missing E06"},
    {{"drop table S_GUID"}, "table-missing S_GUID"},
    {{"alter table P01 drop column P0111"}, "column-missing P01 column=P0111"},
    {{"alter table s_infotable drop column maxnumber"}, "column-missing s_infotable column=maxnumber"},

    // Information sets.
    {{"update s_infotable set Property=null where tblname='A09'"},
     "set-property-null s_infotable tblname=A09"},
    {{"alter table s_infotable rename to old", looseSets, "insert into s_infotable select * from old",
      "drop table old", "update s_infotable set OtherProp=null where tblname='P04'"},
     "set-order-null s_infotable tblname=P04"},
    {{"update s_infotable set OtherProp=109 where tblname='A10'"}, "set-order-tie s_infotable tblname=A10"},
    {{"update s_infotable set tbldesc=null where tblname='A09'"},
     "set-without-caption s_infotable tblname=A09"},
    {{"delete from s_infoitem where TblName='A09'"}, "set-without-fields s_infotable tblname=A09"},
    {{"update s_infotable set maxnumber=40000 where tblname='A02'"},
     "set-limit-overflow s_infotable tblname=A02"},
    {{"update s_infotable set orderfield='A0201x' where tblname='A02'"},
     "orderfield-invalid s_infotable tblname=A02"},
    {{"update s_infoitem set ItemDesc='' where ItemName='A0999'"},
     "sequence-undescribed s_infotable tblname=A09"},
    {{"delete from s_infoitem where ItemName='A0999'"}, "sequence-undescribed s_infotable tblname=A09"},

    // Fields.
    {{"insert into s_infoitem select * from s_infoitem where ItemName='A0901'"},
     "field-duplicate s_infoitem TblName=A09 ItemName=A0901"},
    {{"insert into s_infoitem (TblName,ItemName,ItemDesc,FieldType,FldOrder) "
      "values ('A09','A0950','新的一项','varchar',500)"},
     "field-without-column s_infoitem TblName=A09 ItemName=A0950"},
    {{"insert into s_infoitem (TblName,ItemName,ItemDesc,FieldType,FldOrder) "
      "values ('A09',null,'无名','varchar',500)"},
     "field-without-column s_infoitem TblName=A09 ItemName="},
    {{"insert into s_infoitem (TblName,ItemName,ItemDesc,FieldType,FldOrder) "
      "values ('Z01','Z0101','无主','varchar',10)"},
     "field-of-no-set s_infoitem TblName=Z01 ItemName=Z0101"},
    {{"update s_infoitem set FldWidth=40000 where ItemName='A0901'"},
     "field-unreadable s_infoitem TblName=A09 ItemName=A0901"},
    {{"update s_infoitem set FieldType='money' where ItemName='A0902'"},
     "type-unknown s_infoitem TblName=A09 ItemName=A0902"},
    {{"update s_infoitem set FieldLength='一百' where ItemName='A0902'"},
     "length-not-number s_infoitem TblName=A09 ItemName=A0902"},
    {{"alter table s_infoitem rename to old", looseFields, "insert into s_infoitem select * from old",
      "drop table old", "create index IX_loose on s_infoitem (TblName)",
      "update s_infoitem set FldOrder=null where ItemName='A0902'"},
     "field-order-null s_infoitem TblName=A09 ItemName=A0902"},
    {{"update s_infoitem set FldOrder=40 where ItemName='A0905'"},
     "field-order-tie s_infoitem TblName=A09 ItemName=A0905"},

    // Headings of grids.
    {{"update s_infoitem set ItemDesc='奖励 名称' where ItemName='A0902'"},
     "desc-not-heading s_infoitem TblName=A09 ItemName=A0902"},
    {{"update s_infoitem set ItemDesc='名称(全)' where ItemName='A0902'"},
     "desc-not-heading s_infoitem TblName=A09 ItemName=A0902"},
    {{"update s_infoitem set ItemDesc='a from A01' where ItemName='A0902'"},
     "desc-not-heading s_infoitem TblName=A09 ItemName=A0902"},
    {{"update s_infoitem set ItemDesc='项目名称' where ItemName='A0902'"},
     "desc-duplicate s_infoitem TblName=A09 ItemName=A0902"},
    {{"update s_infoitem set style='yyyy''年' where ItemName='A0202'"}, "grid-fails s_infotable tblname=A02"},

    // Rules.
    {{"update s_infoitem set \"Check\"='X 9' where ItemName='A0902'"},
     "rule-unreadable s_infoitem TblName=A09 ItemName=A0902"},
    {{"update s_infoitem set \"Check\"='A100' where ItemName='A0902'"},
     "rule-unreadable s_infoitem TblName=A09 ItemName=A0902"},
    {{"update s_infoitem set \"Check\"='A 100 字' where ItemName='A0902'"},
     "rule-ignored-part s_infoitem TblName=A09 ItemName=A0902"},
    {{"update s_infoitem set \"Check\"='N 10' where ItemName='A0902'"},
     "rule-raises s_infoitem TblName=A09 ItemName=A0902"},
    {{"update s_infoitem set \"Check\"='N 10, 2' where ItemName='A0902'"},
     "rule-raises s_infoitem TblName=A09 ItemName=A0902"},
    {{"update s_infoitem set \"Check\"='L 0,十' where ItemName='A0902'"},
     "rule-raises s_infoitem TblName=A09 ItemName=A0902"},
    {{"update s_infoitem set \"Check\"='B 1900' where ItemName='A0904'"},
     "rule-raises s_infoitem TblName=A09 ItemName=A0904"},
    {{"update s_infoitem set \"Check\"='B 1,9' where ItemName='A0905'"},
     "rule-not-applied s_infoitem TblName=A09 ItemName=A0905"},
    {{"update s_infoitem set \"Check\"='B 1900.01' where ItemName='A0202'"},
     "rule-not-applied s_infoitem TblName=A02 ItemName=A0202"},
    {{"update s_infoitem set \"Check\"='B 2100,1900' where ItemName='A0904'"},
     "rule-never-passes s_infoitem TblName=A09 ItemName=A0904"},
    {{"update s_infoitem set \"Check\"='B 2100.01,1900.01' where ItemName='A0202'"},
     "rule-never-passes s_infoitem TblName=A02 ItemName=A0202"},
    {{"update s_infoitem set \"Check\"='N 2,2' where ItemName='A0905'"},
     "rule-never-passes s_infoitem TblName=A09 ItemName=A0905"},

    // Widgets.
    {{"delete from s_infoitem where ItemName='A0902'"},
     "widget-without-field s_infoitem TblName=A09 ItemName=A0902"},
    {{"update s_infoitem set ItemDesc=null where ItemName='A0902'"},
     "desc-empty s_infoitem TblName=A09 ItemName=A0902"},
    {{"update s_infoitem set FieldType='int', \"Check\"=null where ItemName='A0904'"},
     "mask-not-stored s_infoitem TblName=A09 ItemName=A0904"},
    {{"update s_infoitem set FieldType='datetime' where ItemName='A0904'", "update A09 set A0904=null"},
     "date-on-year-mask s_infoitem TblName=A09 ItemName=A0904"},
    {{"update s_infoitem set FieldType='ntext' where ItemName='A0903'"},
     "coded-unfit s_infoitem TblName=A09 ItemName=A0903"},
    {{"update s_infoitem set CodeTable='DM_XB' where ItemName='P0501'"},
     "coded-unfit s_infoitem TblName=P05 ItemName=P0501"},
    {{"update s_infoitem set \"IsNUll\"=false where ItemName='P0501'"},
     "required-on-checkbox s_infoitem TblName=P05 ItemName=P0501"},
    {{"alter table A09 add column A0950 text",
      "insert into s_infoitem (TblName,ItemName,ItemDesc,FieldType,FldOrder,\"IsNUll\") "
      "values ('A09','A0950','新的一项','varchar',500,false)"},
     "required-without-widget s_infoitem TblName=A09 ItemName=A0950"},
    {{"update s_infoitem set \"Check\"='L 6' where ItemName='A0902'"},
     "rule-requires s_infoitem TblName=A09 ItemName=A0902"},

    // Codes.
    {{"drop table DM_JLDJ"}, "code-table-missing DM_JLDJ"},
    {{"alter table DM_JLDJ drop column dmhnd"}, "code-table-missing DM_JLDJ"},
    {{"delete from s_CodeTableDefine where dmgrp='DM_XB'"},
     "code-table-undescribed s_CodeTableDefine dmgrp=DM_XB"},
    {{"delete from s_CodeLevDefine where dmgrp='DM_XB'"}, "code-levels-missing s_CodeLevDefine dmgrp=DM_XB"},
    {{"update s_CodeLevDefine set bit=1 where dmgrp='DM_DWLB' and levelnum=2"},
     "code-levels-invalid s_CodeLevDefine dmgrp=DM_DWLB"},
    {{"insert into DM_XB values ('33','另一种','lyz',true)"}, "code-length DM_XB"},
    {{"insert into DM_DWLB values ('Z1','无上级','wsj',true)"}, "code-orphan DM_DWLB"},
    {{"alter table DM_XB rename to old", looseCodes, "insert into DM_XB select * from old", "drop table old",
      "create index IX_loose on DM_XB (dmcod)", "insert into DM_XB values ('1','男子','nz',true)"},
     "code-duplicate DM_XB"},
    {{"insert into DM_XB values ('8',null,null,true)"}, "code-without-caption DM_XB"},
    {{"update DM_XB set dmattr=null"}, "code-none-choosable DM_XB"},

    // Menus.
    {{"delete from TS_SetCustomize where DmCod='03'"}, "menu-row-missing TS_SetCustomize DmCod=03"},
    {{"update TS_SetCustomize set PersonItem='' where DmCod='03'"},
     "menu-list-empty TS_SetCustomize DmCod=03 column=PersonItem"},
    {{"update TS_SetCustomize set PlanItem=null where DmCod='06'"},
     "menu-list-empty TS_SetCustomize DmCod=06 column=PlanItem"},
    {{"update TS_SetCustomize set ProjectItem='P01,P11, P03,P04' where DmCod='03'"},
     "menu-list-blank TS_SetCustomize DmCod=03 column=ProjectItem"},
    {{"update TS_SetCustomize set ProjectItem='P01,P11,P03,P99' where DmCod='03'"},
     "menu-list-unknown TS_SetCustomize DmCod=03 column=ProjectItem"},
    {{"delete from ZZStyle"}, "setting-missing ZZStyle"},
    {{"update ZZStyle set ZZYear=null"}, "setting-missing ZZStyle"},
    {{"update ZZStyle set ZZType='9'"}, "setting-unknown-type ZZStyle ZZType=9"},

    // Panels.
    {{"update s_infotable set tbldesc='进度计划' where tblname='P02'"},
     "caption-missing s_infotable tbldesc=项目工作进度计划"},
    {{"update s_infotable set tbldesc='项目总体经费使用...' where tblname='C04'"},
     "caption-missing s_infotable tbldesc=项目总体经费使用…"},
    {{"update s_infotable set tbldesc='经费预算' where tblname='P03'",
      "update s_infotable set tbldesc='经费使用安排' where tblname='A09'"},
     "caption-not-compared s_infotable tblname=P03"},
    {{"create table E99 (A00 text collate nocase primary key)",
      "insert into s_infotable values ('E99','其他报告',699,null,null,true)"},
     "menu-no-panel s_infotable tblname=E99"},
    {{"update TS_SetCustomize set PlanItem='P01,Plan1,Plan5,P03' where DmCod='01'"},
     "menu-wrong-group s_infotable tblname=P03"},
    {{"update TS_SetCustomize set PersonItem='A02,A03' where DmCod='03'"},
     "menu-first-item TS_SetCustomize DmCod=03"},
    {{"delete from s_infotable where tblname like 'M%'", "delete from s_infoitem where TblName like 'M%'"},
     "menu-group-empty s_infotable type=06 group=4"},
    {{"update TS_SetCustomize set ProjectItem=replace(ProjectItem,',P16','')"},
     "panel-unreached s_infotable panel=A1ctrlUserP16"},

    // Stored values.
    {{"update A01 set A0104='x' where A0199=1"}, "data-code-unknown A01 column=A0104"},
    {{"update A09 set "
      "A0902='很长的名称很长的名称很长的名称很长的名称很长的名称很长的名称很长的名称很长的名称很长的名称"
      "很长的名称很长的名称很长的名称很长的名称很长的名称很长的名称很长的名称很长的名称很长的名称很长的名称很"
      "长的名称长'"
      " where A0999=1"},
     "data-too-long A09 column=A0902"},
    {{"update A02 set A0202='以后' where A0299=1"}, "data-not-date A02 column=A0202"},

    // Records.
    {{"update A09 set A0999=40000 where A0999=1"}, "sequence-unusable A09 column=A0999"},
    {{"update A09 set A0999=0 where A0999=1"}, "sequence-below-one A09 column=A0999"},
    {{"update A09 set A0999=1 where A0999=2"}, "sequence-duplicate A09 column=A0999"},
    {{"update A01 set A0199=32767 where A0199=1"}, "running-number-full A01 column=A0199"},
    {{"drop index UX_A01_A00", "create index IX_loose on A01 (A00)",
      "insert into A01 (A00,A0101,A0199) select A00,A0101,A0199 from A01 where A0199=1"},
     "base-duplicate A01"},
    {{"drop index UX_A10_A00", "create index IX_loose on A10 (A00)",
      "insert into A10 (A00) select A00 from A10 where A00=(select min(A00) from A10)"},
     "single-duplicate A10"},
    {{"delete from P01 where A00=(select min(A00) from A01)"}, "project-row-missing A01"},

    // Indexes.
    {{"drop index IX_A09_A00"}, "index-missing A09 column=A00"},
    {{"drop index IX_A01_A0101"}, "index-missing A01 column=A0101"},
    {{"drop index IX_s_infoitem"}, "index-missing s_infoitem column=TblName"},
};

} // namespace

std::span<const Fault> faults() { return rows; }

} // namespace quillmere::check::test

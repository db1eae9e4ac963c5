create table s_infotable (
    tblname $text PRIMARY KEY,
    tbldesc $text,
    OtherProp $integer NOT NULL,
    orderfield $text,
    maxnumber $integer CHECK (maxnumber between -2147483648 and 2147483647),
    Property $boolean CHECK (Property in (false,true)));

create table s_infoitem (
    TblName $text,
    ItemName $text,
    ItemDesc $text,
    FieldType $text,
    FieldLength $text,
    CodeTable $text,
    style $text,
    "Check" $text,
    FldOrder $integer NOT NULL CHECK (FldOrder between -2147483648 and 2147483647),
    FldWidth $integer CHECK (FldWidth between -2147483648 and 2147483647),
    FldExplain $text,
    "IsNUll" $boolean CHECK ("IsNUll" in (false,true)));

create index IX_s_infoitem on s_infoitem (TblName, FldOrder);

create table TS_SetCustomize (
    DmCod $text PRIMARY KEY,
    PersonItem $text,
    ProjectItem $text,
    PlanItem $text);

create table s_CodeTableDefine (
    dmgrp $text PRIMARY KEY,
    codtbldsc $text);

create table s_CodeLevDefine (
    dmgrp $text,
    levelnum $integer NOT NULL,
    bit $integer NOT NULL,
    PRIMARY KEY (dmgrp, levelnum));

create table ZZStyle (
    ZZType $text,
    ZZYear $text);

create table S_GUID (
    id $text DEFAULT $guid PRIMARY KEY,
    val $text);

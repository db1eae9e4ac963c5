#include "check/RequiredColumns.h"

#include <array>

namespace quillmere::check {

namespace {

using Names = std::string_view;

constexpr Names setColumns[] = {"tblname", "tbldesc", "OtherProp", "orderfield", "maxnumber", "Property"};
constexpr Names fieldColumns[] = {"TblName", "ItemName", "ItemDesc", "FieldType", "FieldLength", "CodeTable",
                                  "style",   "Check",    "FldOrder", "FldWidth",  "FldExplain",  "IsNUll"};
constexpr Names menuColumns[] = {"DmCod", "PersonItem", "ProjectItem", "PlanItem"};
constexpr Names codeTableColumns[] = {"dmgrp", "codtbldsc"};
constexpr Names levelColumns[] = {"dmgrp", "levelnum", "bit"};
constexpr Names settingColumns[] = {"ZZType", "ZZYear"};
constexpr Names identityColumns[] = {"id", "val"};

constexpr std::array catalogue{
    RequiredColumns{"s_infotable", setColumns},       RequiredColumns{"s_infoitem", fieldColumns},
    RequiredColumns{"TS_SetCustomize", menuColumns},  RequiredColumns{"s_CodeTableDefine", codeTableColumns},
    RequiredColumns{"s_CodeLevDefine", levelColumns}, RequiredColumns{"ZZStyle", settingColumns},
    RequiredColumns{"S_GUID", identityColumns},
};

constexpr Names columnsA01[] = {"A00", "A0101", "A0136", "A0137", "A0199"};
constexpr Names columnsB01[] = {"A00", "B0101", "B0124", "B0199"};
constexpr Names columnsP01[] = {"A00", "P0111", "P0120", "P0123"};
constexpr Names columnsP02[] = {"A00", "P0201", "P0202", "P0203", "P0204", "P0299"};
constexpr Names columnsP03[] = {"A00", "P0301", "P0302", "P0303", "P0399"};
constexpr Names columnsC04[] = {"A00", "C0401", "C0402", "C0403", "C0404", "C0405", "C0406", "C0499"};
// These two are counted to see whether a project has reported yet.
constexpr Names columnsOfReports[] = {"A00"};

constexpr std::array dataTables{
    RequiredColumns{"A01", columnsA01},       RequiredColumns{"B01", columnsB01},
    RequiredColumns{"P01", columnsP01},       RequiredColumns{"P02", columnsP02},
    RequiredColumns{"P03", columnsP03},       RequiredColumns{"C04", columnsC04},
    RequiredColumns{"E06", columnsOfReports}, RequiredColumns{"M02", columnsOfReports},
};

} // namespace

std::span<const RequiredColumns> catalogueColumns() { return catalogue; }

std::span<const RequiredColumns> dataColumns() { return dataTables; }

} // namespace quillmere::check

#include "register/RegisterSource.h"

namespace quillmere::host {

namespace {

const Source persons{
    .table = "A01",
    .number = "A0199",
    .name = "A0101",
    .searched = {"A0101", "A0103", "A0114"},
    .searchedNames = "姓名、姓名拼音首字母、身份证号和工作单位",
    .selected = "R.A00, R.A0136, R.A0101, DM_XB.dmcpt, R.A0106, R.A0103, R.A0114, DM_ZZLX.dmcpt, R.A0137",
    .joined = " left join DM_XB on DM_XB.dmcod=R.A0104 left join DM_ZZLX on DM_ZZLX.dmcod=R.A0136",
    .columns = {{"姓名", 96},
                {"性别", 56},
                {"出生日期", 100},
                {"身份证号", 172},
                {"工作单位", 220},
                {"资助类型", 176},
                {"年度", 60},
                {"项目名称", 250},
                {"项目阶段", 80}},
};

const Source units{
    .table = "B01",
    .number = "B0199",
    .name = "B0101",
    .searched = {"B0101", "B0104", "A00"},
    .searchedNames = "单位名称、名称拼音首字母、编号和局级单位代码",
    .selected = "R.A00, '06', R.B0101, DM_DWLB.dmcpt, DM_DWXZ.dmcpt, R.B0104, DM_ZGBM.dmcpt, R.B0124",
    .joined = " left join DM_DWLB on DM_DWLB.dmcod=R.B0102 left join DM_DWXZ on DM_DWXZ.dmcod=R.B0103"
              " left join DM_ZGBM on DM_ZGBM.dmcod=R.B0104",
    .columns = {{"单位名称", 240},
                {"单位类别", 130},
                {"单位性质", 130},
                {"局级单位代码", 110},
                {"主管部门", 150},
                {"申报年度", 80},
                {"项目名称", 270},
                {"项目阶段", 80}},
};

} // namespace

const Source& sourceOf(Kind kind) { return kind == Kind::Persons ? persons : units; }

} // namespace quillmere::host

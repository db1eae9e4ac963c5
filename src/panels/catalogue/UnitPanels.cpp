#include "panels/catalogue/PanelGroups.h"

namespace quillmere::catalogue {

namespace {

using namespace field;

constexpr FieldRow fieldsB01[] = {
    text("B0101", "单位名称"),
    text("B0102", "单位类别"),
    text("B0103", "单位性质"),
    text("B0104", "主管部门"),
    text("B0105", "通讯地址"),
    text("B0106", "邮  编").digits(),
    text("B0107", "主管人才工作领导姓名"),
    text("B0108", "主管人才工作领导职务"),
    text("B0109", "主管人才工作领导电话").phone(),
    text("B0110", "组织(人事)部门负责人姓名"),
    text("B0111", "组织部门负责人职务"),
    text("B0112", "组织部门负责人电话").phone(),
    text("B0113", "单位职工总数").digits(),
    text("B0114", "硕士学位以上人员").digits(),
    text("B0115", "博士学位人员数").digits(),
    text("B0116", "专业技术人员总数").digits(),
    text("B0117", "高级技术人员数").max(4).digits(),
    text("B0118", "中级技术人员数").digits(),
    text("B0119", "行政管理人员数").digits(),
    text("B0120", "局级（含副局级）人员总数").digits(),
    text("B0121", "处级（含副处级）人员总数").digits(),
    longText("B0122", "单位（系统）人才培养、队伍建设的工作机制、取得的主要成效（限600字）"),
};

constexpr FieldRow fieldsB02[] = {
    text("B0201", "项目名称"),
    text("B0202", "金    额").decimal().in("万元"),
    text("B0203", "管理部门"),
    text("B0204", "投入方式"),
};

constexpr PanelRow rows[] = {
    {.className = "A1ctrlUserB01", .widgetTable = "B01", .title = "申请单位基本情况", .fields = fieldsB01},
    {.className = "A1ctrlUserB02",
     .widgetTable = "B02",
     .title = "单位（系统）人才培养投入",
     .fields = fieldsB02},
};

} // namespace

std::span<const PanelRow> unitPanels() { return rows; }

} // namespace quillmere::catalogue

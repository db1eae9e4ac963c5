#include "panels/catalogue/PanelGroups.h"

namespace quillmere::catalogue {

namespace {

using namespace field;

constexpr FieldRow fieldsE02[] = {
    text("E0201", "资助经费管理部门"),
    text("E0202", "负责人"),
    text("E0203", "资助经费已使用金额").decimal().in("万元"),
    text("E0204", "用途"),
    month("E0205", "用款年月"),
    number("SHBYear", "上报年度"),
};

constexpr FieldRow fieldsE05[] = {
    text("E0501", "计划配套金额").decimal().in("万元"),
    text("E0502", "实际配套金额").decimal().in("万元"),
    number("SHBYear", "上报年度"),
    text("E0503", "资金缺口解决办法"),
};

constexpr FieldRow fieldsE06[] = {
    longText("E0601", "项目进度计划，资助经费使用计划已经修改完善的内容和有关说明"),
    number("SHBYear", "上报年度"),
    longText("E0602", "项目进展情况"),
    longText("E0603", "项目工作小结"),
};

constexpr FieldRow fieldsE07[] = {
    month("E0701", "起始年月"),
    month("E0702", "截止年月"),
    text("E0703", "工作任务"),
    text("E0704", "阶段考核指标、成果"),
    text("E0705", "资助经费预算").decimal().in("万元"),
    number("SHBYear", "上报年度"),
};

constexpr FieldRow fieldsE08[] = {
    number("SHBYear", "上报年度"),
    longText("E0801", "所在单位意见"),
    longText("E0802", "上级主管单位党委意见"),
};

constexpr FieldRow fieldsM02[] = {
    text("M0201", "资助经费管理部门"),
    text("M0202", "负责人"),
    text("M0203", "资助经费已使用金额").decimal().in("万元"),
    text("M0204", "用途"),
    month("M0205", "用款年月"),
    number("SHBYear", "上报年度"),
};

constexpr FieldRow fieldsM03[] = {
    number("SHBYear", "上报年度"),
    longText("M0301", "领导班子研究部署、指导项目工作情况"),
    longText("M0302", "项目实施管理方案，工作计划已经修改完善的内容及说明"),
    longText("M0303", "有关管理制度建立、执行情况"),
};

constexpr FieldRow fieldsM04[] = {
    number("SHBYear", "上报年度"),
    text("M0402", "工作任务"),
    text("M0403", "责任部门"),
};

constexpr FieldRow fieldsM05[] = {
    text("M0501", "信息题目"),  text("M0503", "提交部门"),     text("M0504", "刊载使用情况"),
    month("M0502", "报送时间"), number("SHBYear", "上报年度"),
};

constexpr FieldRow fieldsM06[] = {
    number("SHBYear", "上报年度"),
    text("M0601", "项目实施管理方案落实情况综述"),
};

constexpr FieldRow fieldsM07[] = {
    month("M0701", "起始年月"),
    month("M0702", "截止年月"),
    text("M0703", "主要工作内容"),
    text("M0704", "考核指标、成果"),
    text("M0705", "资金预算").decimal().in("万元"),
    text("M0706", "资助经费").decimal().in("万元"),
    text("M0707", "其他经费").decimal().in("万元"),
    number("SHBYear", "上报年度"),
};

constexpr FieldRow fieldsM08[] = {
    text("M0802", "实际配套金额").decimal().in("万元"),
    text("M0801", "计划配套金额").decimal().in("万元"),
    text("M0803", "资金缺口解决办法"),
    number("SHBYear", "上报年度"),
};

constexpr PanelRow rows[] = {
    {.className = "A1ctrlUserE02",
     .widgetTable = "E02",
     .title = "资助经费管理、使用情况",
     .fields = fieldsE02,
     .firstFocus = FirstFocus::IfEmpty},
    {.className = "A1ctrlUserE05", .widgetTable = "E05", .title = "配套资金落实情况", .fields = fieldsE05},
    {.className = "A1ctrlUserE06",
     .widgetTable = "E06",
     .title = "项目进展情况",
     .fields = fieldsE06,
     .firstFocus = FirstFocus::Never},
    {.className = "A1ctrlUserE07", .widgetTable = "E07", .title = "下阶段项目工作计划", .fields = fieldsE07},
    {.className = "A1ctrlUserE08", .widgetTable = "E08", .title = "单位意见", .fields = fieldsE08},
    {.className = "A1ctrlUserM02",
     .widgetTable = "M02",
     .title = "资助经费管理、使用情况",
     .fields = fieldsM02,
     .firstFocus = FirstFocus::IfEmpty},
    {.className = "A1ctrlUserM03",
     .widgetTable = "M03",
     .title = "项目资助协议书执行情况",
     .fields = fieldsM03},
    {.className = "A1ctrlUserM04",
     .widgetTable = "M04",
     .title = "项目任务分解、责任落实情况",
     .fields = fieldsM04},
    {.className = "A1ctrlUserM05", .widgetTable = "M05", .title = "报送工作信息情况", .fields = fieldsM05},
    {.className = "A1ctrlUserM06",
     .widgetTable = "M06",
     .title = "项目实施管理方案落实情况综述",
     .fields = fieldsM06},
    {.className = "A1ctrlUserM07", .widgetTable = "M07", .title = "下阶段项目工作计划", .fields = fieldsM07},
    {.className = "A1ctrluserM08", .widgetTable = "M08", .title = "配套资金落实情况", .fields = fieldsM08},
};

} // namespace

std::span<const PanelRow> reportPanels() { return rows; }

} // namespace quillmere::catalogue

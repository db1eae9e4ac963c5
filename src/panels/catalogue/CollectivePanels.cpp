#include "panels/catalogue/PanelGroups.h"

namespace quillmere::catalogue {

namespace {

using namespace field;

constexpr FieldRow fieldsC01[] = {
    text("C0102", "项目责任单位"),
    text("C0103", "项目负责人（局级）姓名"),
    text("C0104", "负责人职务"),
    text("C0105", "负责人电话"),
    text("C0106", "项目联系人（处级）姓名"),
    text("C0107", "联系人职务"),
    text("C0108", "联系人电话"),
    text("C0109", "联系人电子邮件"),
    longText("C0110", "项目实施的目的、意义"),
    longText("C0111", "项目背景；确定申请资助项目的主要依据（限1000字）"),
    longText("C0112", "项目实施解决的重点问题"),
    longText("C0113", "与申请项目相关工作的进展或准备情况"),
    longText("C0114", "项目实施的主要管理制度、保障手段及措施"),
    longText("C0115", "项目资金筹措计划"),
};

constexpr FieldRow fieldsC02[] = {
    text("C0201", "单位名称"),
    text("C0202", "职责及分工"),
};

constexpr FieldRow fieldsC03[] = {
    text("C0301", "姓名"),   text("C0302", "工作单位"),     text("C0303", "职务"),
    text("C0304", "职  称"), text("C0305", "工作分工内容"),
};

constexpr FieldRow fieldsC04[] = {
    text("P0103", "项目经费总预算金额").in("万元"),
    text("P0102", "申请资助金额").in("万元"),
    text("P0127", "本单位配套金额").in("万元"),
    text("P0104", "项目资金缺口解决办法"),
};

constexpr FieldRow fieldsC05[] = {
    longText("C0501", "人才培养及队伍建设规划，管理方案"),
};

constexpr FieldRow fieldsC06[] = {
    month("C0601", "起始年月"),
    month("C0602", "截止年月"),
    text("C0603", "主要工作内容"),
    text("C0604", "考核指标、成果"),
};

constexpr FieldRow fieldsC07[] = {
    text("C0701", "姓名"),         text("C0702", "工作单位"), text("C0703", "职务"),
    text("C0704", "专业技术职称"), text("C0705", "专业方向"), text("C0706", "培养方向和主要措施"),
};

constexpr PanelRow rows[] = {
    {.className = "A1ctrlUserC01", .widgetTable = "C01", .title = "集体项目基本情况", .fields = fieldsC01},
    {.className = "A1ctrlUserC02",
     .widgetTable = "C02",
     .title = "主要参加单位在项目中的职责及分工",
     .fields = fieldsC02},
    {.className = "A1ctrlUserC03",
     .widgetTable = "C03",
     .title = "项目负责人、主要参加成员及在项目中的分工",
     .fields = fieldsC03},
    {.className = "A1ctrlUserC04",
     .widgetTable = "P01",
     .title = "项目总体经费使用安排",
     .fields = fieldsC04,
     .hasGrid = false},
    {.className = "A1ctrlUserC05", .widgetTable = "C05", .title = "工作规划管理方案", .fields = fieldsC05},
    {.className = "A1ctrlUserC06",
     .widgetTable = "C06",
     .title = "申报资助项目工作进度计划及阶段性考核指标、成果",
     .fields = fieldsC06},
    {.className = "A1ctrlUserC07",
     .widgetTable = "C07",
     .title = "项目中计划重点培养人员情况",
     .fields = fieldsC07},
};

} // namespace

std::span<const PanelRow> collectivePanels() { return rows; }

} // namespace quillmere::catalogue

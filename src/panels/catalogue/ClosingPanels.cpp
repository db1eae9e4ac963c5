#include "panels/catalogue/PanelGroups.h"

namespace quillmere::catalogue {

namespace {

using namespace field;

constexpr FieldRow fieldsF02[] = {
    text("F0201", "资助经费管理部门"),
    text("F0202", "负责人"),
    text("F0203", "资助经费已使用金额").decimal().in("万元"),
    text("F0204", "用途"),
    month("F0205", "用款年月"),
};

constexpr FieldRow fieldsF03[] = {
    text("F0301", "购置仪器设备名称"),
    text("F0302", "规格"),
    text("F0303", "数量").digits(),
    text("F0304", "单价").decimal().in("元"),
    text("F0305", "总金额").decimal().in("元"),
    text("F0306", "制造厂家"),
};

constexpr FieldRow fieldsF04[] = {
    text("F0401", "材料、试验耗材"),
    text("F0402", "规格"),
    text("F0403", "数量").digits(),
    text("F0404", "单价").decimal().in("元"),
    text("F0405", "总金额").decimal().in("元"),
    text("F0406", "制造厂家"),
};

constexpr FieldRow fieldsF05[] = {
    text("F0501", "项目总投入资金").decimal().in("万元"),
    text("F0502", "实际配套金额").decimal().in("万元"),
    text("F0503", "使用资助经费合计").decimal().in("万元"),
    text("F0504", "资助经费结余说明"),
    longText("F0505", "资助经费管理部门意见"),
};

constexpr FieldRow fieldsF07[] = {
    longText("F0701", "项目工作总结"),
    longText("F0702", "主持人在项目中承担的工作，主要创新贡献及成效"),
    longText("F0703", "项目主要成果简介"),
    longText("F0704", "项目成果鉴定、验收意见"),
    longText("F0705", "项目成果（申报）获奖、专利登记（批准）情况"),
    longText("F0706", "有关情况的说明"),
    longText("F0707", "主持人个人总结"),
};

constexpr FieldRow fieldsF08[] = {
    month("F0801", "起始年月"),
    month("F0802", "截止年月"),
    text("F0803", "工作任务或培养措施"),
    text("F0804", "培养目标、考核指标"),
};

constexpr FieldRow fieldsF09[] = {
    longText("F0901", "所在单位意见"),
    longText("F0902", "上级主管单位党委意见"),
};

constexpr FieldRow fieldsN02[] = {
    text("N0201", "资助经费管理部门"),
    text("N0202", "负责人"),
    text("N0203", "资助经费已使用金额").decimal().in("万元"),
    text("N0204", "用途"),
    month("N0205", "用款年月"),
};

constexpr FieldRow fieldsN03[] = {
    text("N0301", "总投入资金").decimal().in("万元"),
    text("N0302", "实际配套金额").decimal().in("万元"),
    text("N0303", "使用资助经费合计").decimal().in("万元"),
    text("N0304", "资助经费结余说明"),
    longText("N0305", "资助经费管理部门意见"),
};

constexpr FieldRow fieldsN04[] = {
    longText("N0401", "项目工作总结"),
    longText("N0402", "项目中的主要创新工作及应用成效"),
    longText("N0403", "项目主要成果简介"),
    longText("N0404", "项目成果获奖情况"),
    longText("N0405", "有关管理制度,建立、执行情况"),
    longText("N0406", "项目资助协议书、实施管理方案落实情况"),
    longText("N0407", "有关情况的说明"),
    longText("N0408", "项目目标实现情况的自我评价，主要经验和工作建议"),
};

constexpr FieldRow fieldsN05[] = {
    month("N0501", "起始年月"), month("N0502", "截止年月"),          text("N0503", "主要工作内容"),
    text("N0504", "责任单位"),  text("N0505", "工作目标、考核指标"),
};

constexpr FieldRow fieldsN06[] = {
    longText("N0601", "项目承担单位党委意见"),
};

constexpr FieldRow fieldsN07[] = {
    text("N0701", "工作任务"),
    text("N0702", "责任部门"),
};

constexpr PanelRow rows[] = {
    {.className = "A1ctrlUserF02",
     .widgetTable = "F02",
     .title = "资助经费管理、使用情况",
     .fields = fieldsF02,
     .firstFocus = FirstFocus::IfEmpty},
    {.className = "A1ctrlUserF03", .widgetTable = "F03", .title = "购置仪器设备名称", .fields = fieldsF03},
    {.className = "A1ctrlUserF04", .widgetTable = "F04", .title = "材料、试验耗材", .fields = fieldsF04},
    {.className = "A1ctrlUserF05", .widgetTable = "F05", .title = "项目资金使用情况", .fields = fieldsF05},
    {.className = "A1ctrlUserF07", .widgetTable = "F07", .title = "项目完成、结题情况", .fields = fieldsF07},
    {.className = "A1ctrlUserF08",
     .widgetTable = "F08",
     .title = "对项目主持人的跟踪培养计划",
     .fields = fieldsF08},
    {.className = "A1ctrlUserF09", .widgetTable = "F09", .title = "单位意见", .fields = fieldsF09},
    {.className = "A1ctrlUserN02",
     .widgetTable = "N02",
     .title = "资助经费管理、使用情况",
     .fields = fieldsN02,
     .firstFocus = FirstFocus::IfEmpty},
    {.className = "A1ctrlUserN03", .widgetTable = "N03", .title = "项目资金使用情况", .fields = fieldsN03},
    {.className = "A1ctrlUserN04", .widgetTable = "N04", .title = "项目完成、结题情况", .fields = fieldsN04},
    {.className = "A1ctrlUserN05", .widgetTable = "N05", .title = "项目后续工作计划", .fields = fieldsN05},
    {.className = "A1ctrlUserN06",
     .widgetTable = "N06",
     .title = "项目实施管理方案落实情况综述",
     .fields = fieldsN06},
    {.className = "A1ctrlUserN07",
     .widgetTable = "N07",
     .title = "项目任务分解、责任落实情况",
     .fields = fieldsN07},
};

} // namespace

std::span<const PanelRow> closingPanels() { return rows; }

} // namespace quillmere::catalogue

#include "panels/catalogue/PanelGroups.h"

namespace quillmere::catalogue {

namespace {

using namespace field;

constexpr FieldRow fieldsPlan1[] = {
    month("Plan101", "阶段起始时间"),
    month("Plan102", "阶段截止时间"),
    text("Plan103", "工作内容"),
    text("Plan104", "阶段考核指标、成果"),
};

constexpr FieldRow fieldsPlan2[] = {
    text("Plan201", "购置仪器设备名称"),
    text("Plan202", "规格"),
    text("Plan203", "数量").digits(),
    text("Plan204", "单价").decimal().in("元"),
    text("Plan205", "总金额").decimal().in("元"),
    text("Plan206", "制造厂家"),
};

constexpr FieldRow fieldsPlan3[] = {
    text("Plan301", "材料、试验耗材"),
    text("Plan302", "规格"),
    text("Plan303", "数量").digits(),
    text("Plan304", "单价").decimal().in("元"),
    text("Plan305", "总金额").decimal().in("元"),
    text("Plan306", "制造厂家"),
};

constexpr FieldRow fieldsPlan4[] = {
    text("Plan401", "用途"),
    text("Plan402", "预算金额").decimal().in("万元"),
};

constexpr FieldRow fieldsPlan5[] = {
    text("Plan501", "专利、出版费金额").in("万元"),   month("Plan502", "用款时间"),
    text("Plan503", "调研、外协费金额").in("万元"),   month("Plan504", "用款时间"),
    text("Plan505", "差旅、会议费金额").in("万元"),   month("Plan506", "用款时间"),
    text("Plan507", "技术、图书资料金额").in("万元"), month("Plan508", "用款时间"),
    text("Plan509", "培训费金额").in("万元"),         month("Plan510", "用款时间"),
    text("Plan511", "其它费用金额").in("万元"),       month("Plan512", "用款时间"),
};

constexpr PanelRow rows[] = {
    {.className = "A1ctrlUserPlan1",
     .widgetTable = "Plan1",
     .title = "项目进度计划",
     .fields = fieldsPlan1,
     .fill = FillTemplate::Plain,
     .firstFocus = FirstFocus::IfEmpty},
    {.className = "A1ctrlUserPlan2",
     .widgetTable = "Plan2",
     .title = "购置仪器设备名称",
     .fields = fieldsPlan2,
     .caretToFront = false},
    {.className = "A1ctrlUserPlan3",
     .widgetTable = "Plan3",
     .title = "材料、试验耗材",
     .fields = fieldsPlan3,
     .caretToFront = false},
    {.className = "A1ctrlUserPlan4",
     .widgetTable = "Plan4",
     .title = "科研业务、学术活动费用",
     .fields = fieldsPlan4},
    {.className = "A1ctrlUserPlan5",
     .widgetTable = "Plan5",
     .title = "科研业务、学术活动费用",
     .fields = fieldsPlan5},
};

} // namespace

std::span<const PanelRow> planPanels() { return rows; }

} // namespace quillmere::catalogue

#include "faults/Deeds.h"

#include "platform/ui/CommandButton.h"
#include "platform/ui/MaskEdBox.h"
#include "platform/ui/TextBox.h"
#include "support/ScriptedPerson.h"
#include "support/WindowWork.h"

#include <gtest/gtest.h>

namespace quillmere::test {

namespace {

constexpr Reaction travels{};
constexpr Reaction saveBox{"信息保存", ""};
// The editor of the schedule has the box that names source and number.
constexpr Reaction scheduleBox{"提示", "Quillmere(-2147217900) 发生错误 \r\n"};
constexpr Reaction budgetBox{"错误", "在维护经费使用安排时出现错误，错误原因为："};
constexpr Reaction planBox{"错误", "在保存集体资助的经费使用安排时出错，错误原因为："};
constexpr Reaction scheduleRemoval{"注意", "在删除申请资助项目进度计划时出错！出错原因为："};
constexpr Reaction budgetRemoval{"注意", "在删除经费使用安排数据时出错！出错原因为："};
// The funding plan uses the words of the schedule too.
constexpr Reaction scheduleBinding{"错误", "在申请资助项目进度计划的数据绑定的时候出错误，错误原因为："};
constexpr Reaction budgetBinding{"错误", "在经费使用安排的数据绑定的时候出错误，错误原因为："};

/// Where a reload begins.
constexpr const char* reloading = "select count(A00) from a01";

auto item(const char* caption) {
    return [caption](frmPersonWh& window) { ASSERT_TRUE(clickItem(window, caption)) << caption; };
}

auto typed(const char* widget, const char* text) {
    return [=](frmPersonWh& window) { ASSERT_TRUE(enterText(window, widget, text)) << widget; };
}

auto both(std::function<void(frmPersonWh&)> first, std::function<void(frmPersonWh&)> second) {
    return [first = std::move(first), second = std::move(second)](frmPersonWh& window) {
        first(window);
        second(window);
    };
}

auto pressed(const char* key) {
    return [key](frmPersonWh& window) { ASSERT_TRUE(pressButton(window, key)) << key; };
}

auto clicked(const char* button) {
    return [button](frmPersonWh& window) {
        ASSERT_TRUE(window.click(controlOf<ui::CommandButton>(window, button))) << button;
    };
}

void nothing(frmPersonWh& /*window*/) {}

// ---- rows

constexpr const char* stage = "insert into P02 (A00,P0299,P0201,P0202,P0203,P0204) values "
                              "('11111111-1111-4111-8111-111111111111',1,'2026-01','2026-06','试制','样机')";
constexpr const char* budget = "insert into P03 (A00,P0399,P0301,P0302,P0303) values "
                               "('11111111-1111-4111-8111-111111111111',1,'材料','12','自筹')";
constexpr const char* plan = "insert into C04 (A00,C0499,C0401,C0402,C0403,C0404,C0405,C0406) values "
                             "('22222222-2222-4222-8222-222222222222',1,'设备','3','1','1','1','2026')";
constexpr const char* collective = "update ZZStyle set ZZType='6'";

// ---- row editors

void fillStage(ui::Form& editor) {
    ASSERT_TRUE(enterText(editor, "txtP0201", "202701"));
    ASSERT_TRUE(enterText(editor, "txtP0202", "202706"));
    ASSERT_TRUE(enterText(editor, "txtP0203", "试验"));
    ASSERT_TRUE(enterText(editor, "txtP0204", "报告"));
}

void fillBySubject(ui::Form& editor) {
    ASSERT_TRUE(enterText(editor, "txtP0301_t", "差旅"));
    ASSERT_TRUE(enterText(editor, "txtP0302_t", "3.5"));
}

void fillByPurpose(ui::Form& editor) {
    ASSERT_TRUE(enterText(editor, "txtP0301_q", "差旅"));
    ASSERT_TRUE(enterText(editor, "txtP0302_q", "3.5"));
    ASSERT_TRUE(enterText(editor, "txtP0303_q", "资助"));
}

void fillPlan(ui::Form& editor) {
    ASSERT_TRUE(enterText(editor, "txtC0401", "设备"));
    ASSERT_TRUE(enterText(editor, "txtC0402", "7"));
    ASSERT_TRUE(enterText(editor, "txtC0406", "2027"));
}

std::vector<Deed> savingDeeds() {
    const std::vector<const char*> three(std::begin(studies), std::end(studies));
    const auto study = both(item("主要学习经历"), typed("A02_A0203_v", "丁"));
    const auto nextStudy = both(both(item("主要学习经历"), pressed("Add")), typed("A02_A0203_v", "丁"));
    const auto name = typed("A01_A0101_v", "秦志");
    const std::vector<Phase> inOneSave{{"", saveBox}, {reloading, travels}};
    const std::vector<Phase> inReplacing{{"", saveBox}, {"select iif(maxnumber", travels}};
    return {
        {"NewPerson",
         0,
         2,
         "nobody-00000000-0000-0000-0000-000000000000",
         {},
         name,
         pressed("Save"),
         inOneSave},
        {"NewUnit",
         0,
         6,
         "nobody-00000000-0000-0000-0000-000000000000",
         {collective},
         typed("B01_B0101_v", "新厂"),
         pressed("Save"),
         inOneSave},
        {"ChangedPerson", 4, 2, thePerson, {}, name, pressed("Save"), inOneSave},
        {"ChangedUnit", 4, 6, theUnit, {}, typed("B01_B0101_v", "新厂"), pressed("Save"), inOneSave},
        {"ChangedProject",
         4,
         2,
         thePerson,
         {},
         both(item("项目基本信息"), typed("P01_P0109_v", "新桥")),
         pressed("Save"),
         inOneSave},
        {"ChangedStudy", 4, 2, thePerson, three, study, pressed("Save"), inReplacing},
        {"FirstStudy", 4, 2, thePerson, {}, study, pressed("Save"), inReplacing},
        {"AnotherStudy", 4, 2, thePerson, three, nextStudy, pressed("Save"), inReplacing},
        {"SingleRecord",
         4,
         2,
         thePerson,
         {},
         both(item("创新点及主要业绩"), typed("A10_A1001_v", "新法")),
         pressed("Save"),
         inOneSave},
        // The prompts that save.
        {"ClickWithEdits",
         4,
         2,
         thePerson,
         three,
         study,
         item("项目基本信息"),
         {{"", saveBox}, {reloading, travels}}},
        {"AddWithEdits",
         4,
         2,
         thePerson,
         three,
         study,
         pressed("Add"),
         {{"", travels}, {"delete from A02", saveBox}, {"select iif(max(A0299)", travels}}},
        {"ExitWithEdits", 4, 2, thePerson, three, study, pressed("Exit"), {{"", saveBox}}},
        {"CancelWithEdits",
         4,
         2,
         thePerson,
         three,
         study,
         pressed("Cancel"),
         {{"", saveBox}, {reloading, travels}}},
    };
}

std::vector<Deed> deletingDeeds() {
    const std::vector<const char*> three(std::begin(studies), std::end(studies));
    const std::vector<const char*> lastTwo(std::begin(studies) + 1, std::end(studies));
    const auto open = item("主要学习经历");
    return {
        {"OneOfThreeStudies", 4, 2, thePerson, three, open, pressed("Delete"), {{"", travels}}},
        {"OneOfTwoStudies", 4, 2, thePerson, lastTwo, open, pressed("Delete"), {{"", travels}}},
        {"LastStudy", 4, 2, thePerson, {studies[0]}, open, pressed("Delete"), {{"", travels}}},
        {"Person", 4, 2, thePerson, three, nothing, pressed("Delete"), {{"", travels}}},
        // The window runs the command for itself: on a unit the button stands disabled.
        {"Unit",
         4,
         6,
         theUnit,
         {},
         nothing,
         [](frmPersonWh& window) { window.TbMain_ButtonClick(window.toolbarButton("Delete")); },
         {{"", travels}}},
    };
}

std::vector<Deed> rowDeeds() {
    const char* schedule = "项目工作进度计划";
    const char* spending = "经费使用安排";
    const char* funding = "项目总体经费使用…";
    const auto changing = [](Reaction saving, const char* binding, Reaction bound) {
        return std::vector<Phase>{{"", saving}, {binding, bound}};
    };
    const char* stages = "select P0299 as";
    const char* amounts = "select P0399 as";
    const char* plans = "select C0499 as";
    return {
        {"AddStage",
         4,
         4,
         thePerson,
         {stage},
         item(schedule),
         clicked("cmdAdd"),
         changing(scheduleBox, stages, scheduleBinding),
         fillStage,
         "cmdOK_1"},
        {"ChangeStage",
         4,
         4,
         thePerson,
         {stage},
         item(schedule),
         clicked("cmdModify"),
         changing(scheduleBox, stages, scheduleBinding),
         fillStage,
         "cmdOK_1"},
        {"DeleteStage",
         4,
         4,
         thePerson,
         {stage},
         item(schedule),
         clicked("cmdDel"),
         changing(scheduleRemoval, stages, scheduleBinding)},
        {"AddAmountBySubject",
         4,
         2,
         thePerson,
         {budget},
         item(spending),
         clicked("cmdAdd"),
         changing(budgetBox, amounts, budgetBinding),
         fillBySubject,
         "cmdOK_t"},
        {"ChangeAmountBySubject",
         4,
         2,
         thePerson,
         {budget},
         item(spending),
         clicked("cmdModify"),
         changing(budgetBox, amounts, budgetBinding),
         fillBySubject,
         "cmdOK_t"},
        {"DeleteAmountBySubject",
         4,
         2,
         thePerson,
         {budget},
         item(spending),
         clicked("cmdDel"),
         changing(budgetRemoval, amounts, budgetBinding)},
        {"AddAmountByPurpose",
         4,
         4,
         thePerson,
         {budget},
         item(spending),
         clicked("cmdAdd_q"),
         changing(budgetBox, amounts, budgetBinding),
         fillByPurpose,
         "cmdOK_q"},
        {"DeleteAmountByPurpose",
         4,
         4,
         thePerson,
         {budget},
         item(spending),
         clicked("cmdDel_q"),
         changing(budgetRemoval, amounts, budgetBinding)},
        {"AddToPlan",
         4,
         6,
         theUnit,
         {plan},
         item(funding),
         clicked("cmdAdd"),
         changing(planBox, plans, scheduleBinding),
         fillPlan,
         "cmdOK"},
        {"ChangePlan",
         4,
         6,
         theUnit,
         {plan},
         item(funding),
         clicked("cmdModify"),
         changing(planBox, plans, scheduleBinding),
         fillPlan,
         "cmdOK"},
        {"DeleteFromPlan",
         4,
         6,
         theUnit,
         {plan},
         item(funding),
         clicked("cmdDel"),
         changing(budgetRemoval, plans, scheduleBinding)},
    };
}

} // namespace

const std::vector<Deed>& deeds() {
    static const std::vector<Deed> all = [] {
        std::vector<Deed> rows;
        for (const auto& part : {savingDeeds(), deletingDeeds(), rowDeeds()})
            rows.insert(rows.end(), part.begin(), part.end());
        return rows;
    }();
    return all;
}

} // namespace quillmere::test

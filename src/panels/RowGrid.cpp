#include "panels/RowGrid.h"

namespace quillmere {

namespace {

constexpr GridColumnRow amount(std::string_view input) { return {.input = input, .isNumber = true}; }

constexpr GridColumnRow scheduleColumns[] = {
    {"txtP0201", true}, {"txtP0202", true}, {"txtP0203"}, {"txtP0204"}};

constexpr GridColumnRow bySubjectColumns[] = {{"txtP0301_t"}, amount("txtP0302_t")};

constexpr GridColumnRow byPurposeColumns[] = {{"txtP0301_q"}, amount("txtP0302_q"), {"txtP0303_q"}};

constexpr GridColumnRow fundingPlanColumns[] = {{"txtC0401"},       amount("txtC0402"), amount("txtC0403"),
                                                amount("txtC0404"), amount("txtC0405"), {"txtC0406"}};

// The funding plan of a collective project uses the words of the schedule too: meant so.
constexpr FailureBox scheduleBinding{"错误", "在申请资助项目进度计划的数据绑定的时候出错误，错误原因为："};
constexpr FailureBox budgetBinding{"错误", "在经费使用安排的数据绑定的时候出错误，错误原因为："};
constexpr FailureBox scheduleRemoving{"注意", "在删除申请资助项目进度计划时出错！出错原因为：",
                                      ui::Icon::Warning};
constexpr FailureBox fundingRemoving{"注意", "在删除经费使用安排数据时出错！出错原因为：", ui::Icon::Warning};

constexpr RowGridRow schedule[] = {
    {.grid = "DGItems_1",
     .select = "select P0299 as 序号,P0201 as 计划阶段起始年月,P0202 as 计划阶段截止年月,"
               "P0203 as 主要工作内容,P0204 as 考核指标成果 from P02 where A00='",
     .selectEnd = "' order by P0299",
     .remove = "delete from P02 where A00='",
     .removeEnd = "' and P0299=",
     .frameNo = "4",
     .caption = "申请资助项目进度计划",
     .sequence = &frmC04::SeqP0299,
     .columns = scheduleColumns,
     .bindFailure = scheduleBinding,
     .removeFailure = scheduleRemoving},
};

constexpr RowGridRow budget[] = {
    {.grid = "DGItems_1",
     .frame = "frmABCE",
     .select = "select P0399 as 序号,P0301 as 预算支出科目,P0302 as 金额（万元） from P03 where A00='",
     .selectEnd = "' order by P0399",
     .remove = "delete from P03 where A00='",
     .removeEnd = "' and P0399=",
     .frameNo = "2",
     .caption = "申请资助经费预算",
     .sequence = &frmC04::SeqP0399,
     .columns = bySubjectColumns,
     .bindFailure = budgetBinding,
     .removeFailure = fundingRemoving},
    {.grid = "DGItems_q",
     .buttonEnding = "_q",
     .frame = "frmDG",
     .select = "select P0399 as 序号,P0301 as 用途,P0302 as 预算金额（万元）,P0303 as 经费来源 "
               "from P03 where A00='",
     .selectEnd = "' order by P0399",
     .remove = "delete from P03 where A00='",
     .removeEnd = "' and P0399=",
     .frameNo = "3",
     .caption = "项目总体经费使用安排",
     .sequence = &frmC04::SeqP0399,
     .columns = byPurposeColumns,
     .bindFailure = budgetBinding,
     .removeFailure = fundingRemoving},
};

constexpr RowGridRow fundingPlan[] = {
    {.grid = "DGItems_1",
     .select = "select C0499 as 序号,C0401 as 用途,C0402 as 资金预算（万元）,C0403 as 资助款,"
               "C0404 as 单位匹配款,C0405 as 其他,C0406 as 用款年度 from C04 where A00='",
     .selectEnd = "' order by C0499",
     .remove = "delete from C04 where A00='",
     .removeEnd = "' and C0499=",
     .frameNo = "1",
     .caption = "项目总体经费使用安排",
     .sequence = &frmC04::SeqC0499,
     .columns = fundingPlanColumns,
     .bindFailure = scheduleBinding,
     .removeFailure = fundingRemoving,
     .captionAfterLoad = true,
     .reportsAdding = false},
};

} // namespace

std::span<const RowGridRow> scheduleGrids() { return schedule; }
std::span<const RowGridRow> budgetGrids() { return budget; }
std::span<const RowGridRow> fundingPlanGrids() { return fundingPlan; }

} // namespace quillmere

#include "panels/frmC04Frames.h"

#include "panels/frmC04.h"

namespace quillmere {

namespace {

using enum RowFault;
using enum StoredForm;
using ui::Icon;

// The overall funding plan of a collective project, table C04.

constexpr RowInputRow inputsC04[] = {
    {"txtC0401", "用途"},
    {"txtC0402", "资金预算", RowInput::Amount},
    {"txtC0403", "资助款", RowInput::Amount},
    {"txtC0404", "单位匹配款", RowInput::Amount},
    {"txtC0405", "其他", RowInput::Amount},
    {"txtC0406", "用款年度", RowInput::Year},
};

constexpr RowCheckRow checksC04[] = {
    {"txtC0401", Empty, "请您输入用途！"},
    {"txtC0402", Empty, "请您输入预算金额！"},
    {"txtC0402", TooLarge, "预算金额的整数位数不能超过８位！"},
    // The focus goes to the purpose and not to the year: meant so.
    {"txtC0406", NoYear, "请您输入用款年度！", Icon::Warning, "txtC0401"},
    {"txtC0403", TooLargeIfFilled, "资助款金额的整数位数不能超过８位！"},
    {"txtC0404", TooLargeIfFilled, "单位匹配款金额的整数位数不能超过８位！"},
    {"txtC0405", TooLargeIfFilled, "其他金额的整数位数不能超过８位！"},
};

constexpr RowColumnRow columnsC04[] = {
    {"C0401", "txtC0401"}, {"C0402", "txtC0402"}, {"C0403", "txtC0403"},
    {"C0404", "txtC0404"}, {"C0405", "txtC0405"}, {"C0406", "txtC0406"},
};

// The budget by subject, table P03.

constexpr RowInputRow inputsABCE[] = {
    {"txtP0301_t", "预算支出科目"},
    {"txtP0302_t", "金 额", RowInput::Amount},
};

constexpr RowCheckRow checksABCE[] = {
    {"txtP0301_t", Empty, "请输入预算支出科目！", Icon::Information},
    {"txtP0302_t", Empty, "请输入金额！"},
    {"txtP0302_t", TooLarge, "金额的整数位数不能超过８位！"},
};

// A new row keeps the blanks that a changed row loses: meant so.
constexpr RowColumnRow columnsABCE[] = {
    {"P0301", "txtP0301_t", AsItStands, Trimmed},
    {"P0302", "txtP0302_t", AsItStands, Trimmed},
};

// The budget by purpose, table P03.

constexpr RowInputRow inputsDG[] = {
    {"txtP0301_q", "用途"},
    {"txtP0302_q", "预算金额", RowInput::Amount},
    {"txtP0303_q", "经费来源"},
};

constexpr RowCheckRow checksDG[] = {
    {"txtP0301_q", Empty, "请输入用途！", Icon::Information},
    {"txtP0302_q", Empty, "请输入金额！"},
    {"txtP0302_q", TooLarge, "金额的整数位数不能超过８位！"},
    {"txtP0303_q", Empty, "请输入经费来源！", Icon::Information},
};

constexpr RowColumnRow columnsDG[] = {
    {"P0301", "txtP0301_q", AsItStands, Trimmed},
    {"P0302", "txtP0302_q", AsItStands, Trimmed},
    {"P0303", "txtP0303_q", AsItStands, Trimmed},
};

// The work schedule, table P02.

constexpr RowInputRow inputsP02[] = {
    {"txtP0201", "计划阶段起始年月", RowInput::Month},
    {"txtP0202", "计划阶段截止年月", RowInput::Month},
    {"txtP0203", "主要工作内容", RowInput::LongText},
    {"txtP0204", "考核指标或成果", RowInput::LongText},
};

// One icon differs from the others, and nothing compares the start with the end: both meant so.
constexpr RowCheckRow checksP02[] = {
    {"txtP0201", NoDate, "请输入计划阶段起始年月！", Icon::Information},
    {"txtP0202", NoDate, "请输入计划阶段截止年月！", Icon::Warning},
    {"txtP0203", Empty, "请输入主要工作内容！", Icon::Information},
    {"txtP0204", Empty, "请输入考核指标、成果！", Icon::Information},
};

constexpr RowColumnRow columnsP02[] = {
    {"P0201", "txtP0201", Month, Month},
    {"P0202", "txtP0202", Month, Month},
    {"P0203", "txtP0203", Trimmed, Trimmed},
    {"P0204", "txtP0204", Trimmed, Trimmed},
};

constexpr FailureBox fundingPlanFailure{"错误", "在保存集体资助的经费使用安排时出错，错误原因为："};
constexpr FailureBox budgetFailure{"错误", "在维护经费使用安排时出现错误，错误原因为："};

// The greatest number is that of the whole table and not of one project, whose numbers therefore have
// gaps: meant so.
constexpr RowFrameRow frames[] = {
    {.number = "1",
     .frame = "frameC04",
     .saveButton = "cmdOK",
     .cancelButton = "cmdExit",
     .inputs = inputsC04,
     .checks = checksC04,
     .insertHead = "insert into C04 (A00,C0401,C0402,C0403,C0404,C0405,C0406,C0499) values('",
     .updateHead = "update C04 set ",
     .sequence = "C0499",
     .greatest = "select iif(max(C0499) is null,0,max(C0499)) from C04  ",
     .changed = &frmC04::SeqC0499,
     .columns = columnsC04,
     .failure = fundingPlanFailure},
    {.number = "2",
     .frame = "frameP03ABCE",
     .saveButton = "cmdOK_t",
     .cancelButton = "cmdExit_t",
     .inputs = inputsABCE,
     .checks = checksABCE,
     .insertHead = "insert into P03 (A00,P0301,P0302,P0399) values('",
     .updateHead = "update P03 set ",
     .sequence = "P0399",
     .greatest = "select iif(max(P0399) is null,0,max(P0399)) from P03  ",
     .changed = &frmC04::SeqP0399,
     .columns = columnsABCE,
     .failure = budgetFailure},
    {.number = "3",
     .frame = "frameP03DG",
     .saveButton = "cmdOK_q",
     .cancelButton = "cmdExit_q",
     .inputs = inputsDG,
     .checks = checksDG,
     .insertHead = "insert into P03 (A00,P0301,P0302,P0303,P0399) values('",
     .updateHead = "update P03 set ",
     .sequence = "P0399",
     .greatest = "select iif(max(P0399) is null,0,max(P0399)) from P03  ",
     .changed = &frmC04::SeqP0399,
     .columns = columnsDG,
     .failure = budgetFailure},
    {.number = "4",
     .frame = "frameP02",
     .saveButton = "cmdOK_1",
     .cancelButton = "cmdExit_1",
     .inputs = inputsP02,
     .checks = checksP02,
     .insertHead = "insert into P02 (A00,P0201,P0202,P0203,P0204,P0299) values('",
     .updateHead = "update P02 set ",
     .sequence = "P0299",
     .greatest = "select iif(max(P0299) is null,0,max(P0299)) from P02  ",
     .changed = &frmC04::SeqP0299,
     .columns = columnsP02,
     .failure = {}},
};

} // namespace

std::span<const RowFrameRow> rowFrames() { return frames; }

} // namespace quillmere

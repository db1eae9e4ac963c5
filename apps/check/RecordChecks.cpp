#include "check/CheckGroup.h"
#include "check/Examples.h"
#include "check/RegisterView.h"

#include <array>
#include <limits>
#include <string>

namespace quillmere::check {

namespace {

constexpr FindingKind sequenceUnusable{
    .id = "sequence-unusable",
    .title = "记录的序号为空或超出 16 位整数",
    .effect = "表格走到这条记录时读取序号失败，窗口关闭，这个人的记录都不能维护。",
    .remedy = "把这个人的记录从 1 开始重新编号。"};

constexpr FindingKind sequenceBelowOne{
    .id = "sequence-below-one",
    .level = Level::Warning,
    .title = "记录的序号小于 1",
    .effect =
        "表格里有这条记录，点到它时输入框却是空的，不能修改；这样的记录也不算数，只有它时窗口当作没有记录。",
    .remedy = "把这个人的记录从 1 开始重新编号。"};

constexpr FindingKind sequenceTwice{
    .id = "sequence-duplicate",
    .title = "同一个人有两条序号相同的记录",
    .effect = "点到哪一条，装入的都是其中的第一条；保存或删除时两条一起删掉，丢失一条。",
    .remedy = "把这个人的记录从 1 开始重新编号，序号不能重复。"};

constexpr FindingKind runningNumberFull{
    .id = "running-number-full",
    .title = "流水号用完了",
    .effect = "新记录的号是全表的最大号加一，已经超出 16 位整数：再增加时弹出出错信息，存不进去。",
    .remedy = "把最大的号改小，例如从 1 开始重新编号。",
    .failure = Failure::Overflow};

constexpr FindingKind baseTwice{
    .id = "base-duplicate",
    .title = "基本信息重复",
    .effect =
        "同一个 A00 "
        "有几条基本信息：打开时提示“无法维护此条信息。可能不存在此Id号或Id号重复。”，保存时几条一起修改。",
    .remedy = "删去多余的基本信息，或者给它另一个 A00。"};

constexpr FindingKind singleTwice{.id = "single-duplicate",
                                  .level = Level::Warning,
                                  .title = "单记录信息集有几条记录",
                                  .effect =
                                      "只显示数据库给出的第一条；保存时几条一起删掉或者一起改成相同的内容。",
                                  .remedy = "只保留一条。"};

constexpr FindingKind projectMissing{
    .id = "project-row-missing",
    .title = "人员或单位没有项目记录",
    .effect = "P01 中没有它的一行，项目信息的保存只修改、不新增：录入的项目信息没有任何提示就丢掉了。",
    .remedy = "在 P01 中给它插入一行：A00 相同，P0123 为 01，P0120 为空文本；单位还要写 P0111。"};

constexpr const FindingKind* kinds[] = {&sequenceUnusable,  &sequenceBelowOne, &sequenceTwice,
                                        &runningNumberFull, &baseTwice,        &singleTwice,
                                        &projectMissing};

constexpr int leastNumber = std::numeric_limits<std::int16_t>::min();
constexpr int greatestNumber = std::numeric_limits<std::int16_t>::max();

/// Tables whose new rows take the greatest number of the whole table plus 1.
struct RunningNumber {
    std::string_view table;
    std::string_view column;
};
constexpr std::array runningNumbers{RunningNumber{"A01", "A0199"}, RunningNumber{"B01", "B0199"},
                                    RunningNumber{"P02", "P0299"}, RunningNumber{"P03", "P0399"},
                                    RunningNumber{"C04", "C0499"}};

/// Reports what a statement finds; each of its rows is one record, shown by its columns.
void tell(const RegisterView& view, const FindingKind& kind, const std::string& table, std::vector<Key> place,
          const std::string& sql, Report& report) {
    const data::RowSet rows = view.connection().query(sql);
    Examples examples;
    for (std::size_t row = 0; row < rows.rowCount(); ++row) {
        std::string example;
        for (std::size_t column = 0; column < rows.columns().size(); ++column) {
            const data::Value& value = rows.at(row, column);
            example += (example.empty() ? "" : " ") + rows.columns()[column] + "=" +
                       (value.isNull() ? "Null" : value.toText());
        }
        examples.add(example);
    }
    if (!examples.empty()) report.add(kind, table, std::move(place), examples.text("处"));
}

void checkSequence(const RegisterView& view, const SetEntry& set, Report& report) {
    const std::string number = set.sequenceField();
    const std::string columns = "select A00," + number + " from " + set.name;
    const std::vector<Key> place{{"column", number}};
    tell(view, sequenceUnusable, set.name, place,
         columns + " where " + number + " is null or " + number + ">" + std::to_string(greatestNumber) +
             " or " + number + "<" + std::to_string(leastNumber) + " order by A00",
         report);
    tell(view, sequenceBelowOne, set.name, place,
         columns + " where " + number + "<1 and " + number + ">=" + std::to_string(leastNumber) +
             " order by A00",
         report);
    tell(view, sequenceTwice, set.name, place,
         columns + " where " + number + " is not null group by A00," + number +
             " having count(*)>1 order by A00",
         report);
}

std::string repeatedIdentities(const std::string& table) {
    return "select A00 from " + table + " group by A00 having count(*)>1 order by A00";
}

void checkRecords(const RegisterView& view, const SetEntry& set, Report& report) {
    const bool isBase = set.name == "A01" || set.name == "B01";
    if (isBase) {
        tell(view, baseTwice, set.name, {}, repeatedIdentities(set.name), report);
        tell(view, projectMissing, set.name, {},
             "select " + set.name + ".A00 from " + set.name + " left join P01 on " + set.name +
                 ".A00=P01.A00 where P01.A00 is null order by " + set.name + ".A00",
             report);
    } else if (set.isMultiple()) {
        checkSequence(view, set, report);
    } else if (set.isSingle) {
        tell(view, singleTwice, set.name, {}, repeatedIdentities(set.name), report);
    }
}

bool hasKeys(const RegisterView& view, const SetEntry& set) {
    return view.hasColumn(set.name, "A00") && view.hasColumn("P01", "A00") &&
           (!set.isMultiple() || view.hasColumn(set.name, set.sequenceField()));
}

void checkRunningNumber(const RegisterView& view, const RunningNumber& running, Report& report) {
    const std::string table(running.table);
    const std::string column(running.column);
    if (!view.hasColumn(table, column)) return;
    const data::Value greatest = view.connection()
                                     .query("select max(" + column + ") from " + table + " where " + column +
                                            ">=" + std::to_string(greatestNumber))
                                     .at(0, 0);
    if (!greatest.isNull())
        report.add(runningNumberFull, table, {{"column", column}}, "最大的号是 " + greatest.toText());
}

void run(const RegisterView& view, Report& report) {
    for (const SetEntry& set : view.sets())
        if (hasKeys(view, set)) checkRecords(view, set, report);
    for (const RunningNumber& running : runningNumbers)
        checkRunningNumber(view, running, report);
}

} // namespace

CheckGroup recordChecks() { return {kinds, run}; }

} // namespace quillmere::check

#include "check/CheckGroup.h"
#include "check/FieldPlace.h"
#include "check/RegisterView.h"

#include "metadata/cWhInfo.h"
#include "panels/GridStatement.h"
#include "platform/Error.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <map>
#include <string>

namespace quillmere::check {

namespace {

constexpr FindingKind notHeading{
    .id = "desc-not-heading",
    .title = "说明不能用作列标题",
    .effect =
        "多记录信息集的表格把 ItemDesc 直接写进查询作列名，这个说明使查询失败，或者被数据库改成另外的名称："
        "点击菜单项，窗口关闭，或者表格的行和记录联系不起来。",
    .remedy = "去掉说明中的空格、半角括号和其他半角符号，不要以数字开头，不要用数据库的保留字；"
              "面板上的标题另有文字，不受影响。",
    .failure = Failure::StatementFailed};

constexpr FindingKind headingTwice{
    .id = "desc-duplicate",
    .level = Level::Warning,
    .title = "同一信息集里说明重复",
    .effect = "表格里有两列同名，提示信息也分不清说的是哪个字段；和序号字段重名时，表格会把另一列当作序号。",
    .remedy = "给其中一个字段换一个说明。"};

constexpr FindingKind gridFails{
    .id = "grid-fails",
    .title = "表格的查询不能执行",
    .effect = "按编目拼成的表格查询被数据库拒绝：点击菜单项，窗口关闭。",
    .remedy =
        "按所附的数据库信息，检查这个信息集各字段的 ItemDesc、style 和 CodeTable（例如 style 中的引号）。",
    .failure = Failure::StatementFailed};

constexpr const FindingKind* kinds[] = {&notHeading, &headingTwice, &gridFails};

bool isHeading(data::Connection& connection, const std::string& description) {
    try {
        const data::RowSet answer = connection.query("select 1 as " + description);
        return answer.columns().size() == 1 && text::equalsNoCase(answer.columns().front(), description);
    } catch (const Error&) {
        return false;
    }
}

/// The fields that are columns of the grid.
std::vector<const FieldEntry*> columnsOf(const RegisterView& view, const SetEntry& set) {
    auto fields = view.fieldsOf(set.name);
    std::erase_if(fields, [](const FieldEntry* field) {
        return !field->item || field->item->ItemDesc.empty() || field->name.empty() ||
               text::equalsNoCase(field->name, "A00");
    });
    return fields;
}

/// Whether every heading will do.
bool checkHeadings(const RegisterView& view, const std::vector<const FieldEntry*>& fields, Report& report) {
    bool fit = true;
    std::map<std::string, std::string> bearers;
    for (const FieldEntry* field : fields) {
        const std::string& description = field->item->ItemDesc;
        if (!isHeading(view.connection(), description)) {
            report.add(notHeading, fieldCatalogue, keyOf(*field), "ItemDesc 是“" + description + "”");
            fit = false;
        }
        const auto [bearer, isNew] = bearers.try_emplace(text::lower(description), field->name);
        if (!isNew && !text::equalsNoCase(bearer->second, field->name)) {
            report.add(headingTwice, fieldCatalogue, keyOf(*field),
                       "和 " + bearer->second + " 一样是“" + description + "”");
        }
    }
    return fit;
}

/// Other findings tell why the grid fails.
bool isExplained(const RegisterView& view, const SetEntry& set,
                 const std::vector<const FieldEntry*>& fields) {
    const bool allReadable = std::ranges::all_of(
        view.fieldsOf(set.name), [](const FieldEntry* field) { return field->item != nullptr; });
    return !allReadable || !view.hasTable(set.name) ||
           std::ranges::any_of(fields, [&](const FieldEntry* field) {
               const std::string& codes = field->item->CodeTable;
               return !view.hasColumn(set.name, field->name) ||
                      (!codes.empty() && !(view.hasColumn(codes, "dmcod") && view.hasColumn(codes, "dmcpt")));
           });
}

void checkGrid(const RegisterView& view, const SetEntry& set, Report& report) {
    try {
        cWhInfo info;
        info.TabId = set.name;
        info.IsMult = true;
        info.FldOrder = set.sequenceField();
        const GridStatement grid = makeGridStatement(info, ownPanel(set)->aliasedGridCatalogue);
        (void)view.connection().query(grid.sql);
    } catch (const Error& failure) {
        report.add(gridFails, "s_infotable", {{"tblname", set.name}}, failure.description());
    }
}

void run(const RegisterView& view, Report& report) {
    for (const SetEntry& set : view.sets()) {
        const auto fields = columnsOf(view, set);
        if (!showsGrid(set) || fields.empty()) continue;
        if (checkHeadings(view, fields, report) && !isExplained(view, set, fields))
            checkGrid(view, set, report);
    }
}

} // namespace

CheckGroup headingChecks() { return {kinds, run}; }

} // namespace quillmere::check

#include "check/CheckGroup.h"
#include "check/CodeTables.h"
#include "check/Examples.h"
#include "check/RegisterView.h"

#include "platform/Error.h"
#include "platform/convert/Convert.h"
#include "platform/convert/DateTime.h"
#include "platform/text/Text.h"

#include <string>

namespace quillmere::check {

namespace {

constexpr FindingKind codeUnknown{.id = "data-code-unknown",
                                  .level = Level::Warning,
                                  .title = "存储的代码不在代码表中",
                                  .effect =
                                      "面板上显示代码本身而不是名称，表格里显示空白；再次保存时原样写回。",
                                  .remedy = "在代码表中补上这些代码，或者改正记录中的代码。"};

constexpr FindingKind tooLong{
    .id = "data-too-long",
    .level = Level::Warning,
    .title = "存储的文本比规定的长",
    .effect =
        "文本超过了 FieldLength：再次保存时，检查规则会拒绝它，超过 255 个字符的 varchar 字段一定存不进去。",
    .remedy = "缩短文本，或者加大 FieldLength 和检查规则中的长度。"};

constexpr FindingKind notDate{.id = "data-not-date",
                              .level = Level::Warning,
                              .title = "存储的日期读不出来",
                              .effect = "多数面板的掩码框显示为空白，再次保存时原来的内容没有任何提示就丢掉了"
                                        "；其余的原样显示，再次保存时被拒绝。",
                              .remedy = "改成年-月或者年-月-日的形式，例如 1990-03、1990-03-12。"};

constexpr const FindingKind* kinds[] = {&codeUnknown, &tooLong, &notDate};

std::vector<Key> columnKey(const FieldEntry& field) { return {{"column", field.name}}; }

void checkCodes(data::Connection& connection, const FieldEntry& field, Report& report) {
    const std::string column = field.table + "." + field.name;
    const std::string& codes = field.item->CodeTable;
    const data::RowSet rows =
        connection.query("select " + column + " as code, count(*) as records from " + field.table +
                         " left join " + codes + " codes on " + column + "=codes.dmcod where " + column +
                         "<>'' and codes.dmcod is null group by " + column + " order by " + column);
    Examples examples;
    for (std::size_t row = 0; row < rows.rowCount(); ++row)
        examples.add(rows.at(row, 0).toText() + "（" + rows.at(row, 1).toText() + " 条记录）");
    if (!examples.empty())
        report.add(codeUnknown, field.table, columnKey(field), codes + " 中没有 " + examples.text("个代码"));
}

void checkDates(data::Connection& connection, const FieldEntry& field, Report& report) {
    const data::RowSet rows = connection.query("select distinct " + field.name + " from " + field.table +
                                               " where " + field.name + "<>'' order by " + field.name);
    Examples examples;
    for (std::size_t row = 0; row < rows.rowCount(); ++row) {
        const std::string date = rows.at(row, 0).toText();
        if (!convert::isDate(date)) examples.add(date);
    }
    if (!examples.empty()) report.add(notDate, field.table, columnKey(field), examples.text("种内容"));
}

struct LimitedField {
    const FieldEntry* field;
    std::int32_t limit;

    [[nodiscard]] std::string isTooLong() const {
        return "len(" + field->name + ")>" + std::to_string(limit);
    }
};

/// All of a table's texts in one statement, so that a big table is read once.
void checkLengths(data::Connection& connection, const std::string& table,
                  const std::vector<LimitedField>& fields, Report& report) {
    if (fields.empty()) return;
    std::string counts;
    for (const LimitedField& limited : fields) {
        counts += counts.empty() ? "" : ",";
        counts += "sum(iif(" + limited.isTooLong() + ",1,0)) as " + limited.field->name;
    }
    const data::RowSet answer = connection.query("select " + counts + " from " + table);
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const LimitedField& limited = fields[i];
        const data::Value& count = answer.at(0, i);
        if (count.isNull() || count.toLong() == 0) continue;
        const data::RowSet first =
            connection.query("select min(A00) from " + table + " where " + limited.isTooLong());
        report.add(tooLong, table, columnKey(*limited.field),
                   count.toText() + " 条记录超过 " + std::to_string(limited.limit) +
                       " 个字符，例如 A00=" + first.at(0, 0).toTextOrEmpty());
    }
}

/// The limit in characters; 0 for none.
std::int32_t limitOf(const cFieldItem& item) {
    try {
        return item.FieldLength.empty() ? 0 : convert::toLong(item.FieldLength);
    } catch (const Error&) {
        return 0;
    }
}

void checkSet(const RegisterView& view, const SetEntry& set, Report& report) {
    data::Connection& connection = view.connection();
    std::vector<LimitedField> texts;
    for (const FieldEntry* field : view.fieldsOf(set.name)) {
        if (!field->item || field->isKey() || !view.hasColumn(set.name, field->name)) continue;
        const cFieldItem& item = *field->item;
        const std::string type = text::lower(item.FieldType);
        if (type == "datetime") {
            checkDates(connection, *field, report);
        } else if (type == "varchar" && !item.CodeTable.empty()) {
            if (isUsable(view, item.CodeTable)) checkCodes(connection, *field, report);
        } else if (type == "varchar" || type == "ntext") {
            if (const std::int32_t limit = limitOf(item); limit > 0) texts.push_back({field, limit});
        }
    }
    if (view.hasColumn(set.name, "A00")) checkLengths(connection, set.name, texts, report);
}

void run(const RegisterView& view, Report& report) {
    for (const SetEntry& set : view.sets())
        if (view.hasTable(set.name)) checkSet(view, set, report);
}

} // namespace

CheckGroup valueChecks() { return {kinds, run}; }

} // namespace quillmere::check

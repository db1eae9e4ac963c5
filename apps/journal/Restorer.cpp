#include "journal/Restorer.h"

#include "journal/EntryFacts.h"
#include "platform/Error.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <ostream>

namespace quillmere::recovery {

namespace {

using text::equalsNoCase;

bool holds(const data::RowSet& rows, std::string_view column, const data::Value& value) {
    for (std::size_t row = 0; row < rows.rowCount(); ++row)
        if (isSameValue(rows.at(row, column), value)) return true;
    return false;
}

std::int64_t nextNumber(const data::RowSet& rows, std::string_view column) {
    std::int64_t greatest = 0;
    for (std::size_t row = 0; row < rows.rowCount(); ++row) {
        const data::Value& number = rows.at(row, column);
        if (!number.isNull()) greatest = std::max<std::int64_t>(greatest, number.toLong());
    }
    return greatest + 1;
}

} // namespace

Restorer::Restorer(data::Connection& connection, RestoreOptions options, std::ostream& out)
    : connection_(connection), options_(options), out_(out) {}

data::Value Restorer::Row::value(std::string_view column) const {
    const auto found = entry.rows.findColumn(column);
    return found ? at(*found) : data::Value();
}

std::string Restorer::Row::name() const {
    std::string words = shownText(table.name);
    if (table.key == RowKey::Unknown) return words + " 第 " + std::to_string(index + 1) + " 行";
    words += " " + shownText(value(identityColumn).toTextOrEmpty());
    if (table.key == RowKey::Numbered) words += " 序号 " + value(numberColumn(table.name)).toTextOrEmpty();
    return words;
}

const RegisterTable& Restorer::tableOf(const std::string& name) {
    const auto known = tables_.find(name);
    return known != tables_.end() ? known->second
                                  : tables_.emplace(name, readTable(connection_, name)).first->second;
}

std::string Restorer::objection(const journal::KeptEntry& kept) {
    const journal::Entry& entry = kept.entry;
    if (entry.kind == journal::Kind::Insert) return "这是新增，没有丢掉什么";
    if (entry.kind == journal::Kind::Other) return "只记下了语句，没有行可以恢复";
    if (!entry.trouble.empty()) return "当时没有记下行：" + shownText(entry.trouble);
    if (entry.kind == journal::Kind::Update && !tellsColumns(entry)) return "看不出语句改了哪些字段";
    if (renumbers(entry)) return "这是重编序号，行的内容没有改变";
    if (entry.rows.empty()) return "语句没有涉及任何行";
    try {
        const RegisterTable& table = tableOf(entry.table);
        for (const std::string& column : entry.rows.columns())
            if (!table.column(column))
                return "登记库的表 " + shownText(table.name) + " 里没有字段 " + shownText(column);
        if (entry.kind == journal::Kind::Update && table.key == RowKey::Unknown)
            return "不知道表 " + shownText(table.name) + " 的行凭什么区分，不能改回";
    } catch (const Error& failure) {
        return failure.description();
    }
    return {};
}

void Restorer::restore(const journal::KeptEntry& kept) {
    out_ << "第 " << kept.number << " 条，" << kept.entry.time << " " << deedOf(kept.entry) << "\n";
    const RegisterTable& table = tableOf(kept.entry.table);
    const RowComparison comparison(kept.entry.rows, table.columns, numberColumn(table.name));
    for (std::size_t index = 0; index < kept.entry.rows.rowCount(); ++index)
        restoreRow({kept.entry, index, table, comparison});
    if (kept.entry.rowsLeftOut != 0) out_ << "  另有 " << kept.entry.rowsLeftOut << " 行当时没有记下\n";
    count_.refused += kept.entry.rowsLeftOut;
}

void Restorer::restoreRow(const Row& row) {
    try {
        if (row.entry.kind == journal::Kind::Update)
            updateBack(row);
        else
            insertBack(row);
    } catch (const Error& failure) {
        tellRefused(row, failure.description());
    }
}

std::string Restorer::condition(const Row& row, const std::vector<std::string>& columns) const {
    std::string words;
    for (const std::string& column : columns) {
        const data::Value value = row.value(column);
        words += words.empty() ? " where " : " and ";
        words += *row.table.column(column) + (value.isNull() ? " is null" : "=" + literal(value));
    }
    return words;
}

data::RowSet Restorer::candidates(const Row& row) const {
    std::vector<std::string> columns{std::string(identityColumn)};
    if (row.table.key == RowKey::Unknown) {
        columns.clear();
        // An engine may find a fraction unequal to its own text; the comparison of the values decides.
        for (std::size_t i = 0; i < row.columns().size(); ++i)
            if (!row.at(i).isReal()) columns.push_back(row.columns()[i]);
    }
    return connection_.query("select * from " + row.table.name + condition(row, columns));
}

void Restorer::insertBack(const Row& row) {
    const data::RowSet there = candidates(row);
    const std::string number = numberColumn(row.table.name);
    if (row.comparison.hasSame(there, row.index)) return tellPresent(row, "登记库里已有，没有改动");
    if (row.table.key == RowKey::Identity && !there.empty())
        return tellRefused(row, "登记库里已有另一条记录，每个身份只能有一条；先删除那一条再恢复");
    std::optional<std::int64_t> otherNumber;
    if (row.table.key == RowKey::Numbered) {
        const auto same = row.comparison.findUnderOtherNumber(there, row.index);
        if (same && !options_.anyway)
            return tellPresent(row, "登记库里已有同样的记录，序号是 " +
                                        there.at(*same, number).toTextOrEmpty() +
                                        "，没有改动（--anyway 再恢复一条）");
        if (holds(there, number, row.value(number))) otherNumber = nextNumber(there, number);
    }
    std::string names;
    std::string values;
    for (std::size_t i = 0; i < row.columns().size(); ++i) {
        const std::string& column = row.columns()[i];
        const bool renumbered = otherNumber && equalsNoCase(column, number);
        names += (names.empty() ? "" : ",") + *row.table.column(column);
        values +=
            (values.empty() ? "" : ",") + (renumbered ? std::to_string(*otherNumber) : literal(row.at(i)));
    }
    run("insert into " + row.table.name + " (" + names + ") values (" + values + ")");
    tellRestored(row, otherNumber ? "原来的序号已被另一条记录占用，恢复为序号 " + std::to_string(*otherNumber)
                                  : "恢复");
}

void Restorer::updateBack(const Row& row) {
    std::vector<std::string> key{std::string(identityColumn)};
    if (row.table.key == RowKey::Numbered) key.push_back(numberColumn(row.table.name));
    const std::string where = condition(row, key);
    const data::RowSet there = connection_.query("select * from " + row.table.name + where);
    if (there.empty()) return insertBack(row);
    if (there.rowCount() > 1)
        return tellRefused(row, "登记库里有 " + std::to_string(there.rowCount()) + " 行，不知道是哪一行");
    std::string list;
    std::string words;
    for (std::size_t i = 0; i < row.columns().size(); ++i) {
        const std::string& column = row.columns()[i];
        const data::Value& now = there.at(0, column);
        // What the statement left alone may have been changed since, and for good.
        if (!newValue(row.entry, column) || isSameValue(now, row.at(i))) continue;
        list += (list.empty() ? "" : ",") + *row.table.column(column) + "=" + literal(row.at(i));
        words += "\n    " + column + "：" + shown(now) + " → " + shown(row.at(i));
    }
    if (list.empty()) return tellPresent(row, "登记库里已是原来的内容，没有改动");
    run("update " + row.table.name + " set " + list + where);
    tellRestored(row, "改回" + words);
}

void Restorer::run(const std::string& sql) {
    if (!options_.dryRun) connection_.execute(sql);
}

void Restorer::tell(const Row& row, const std::string& words) {
    out_ << "  " << row.name() << "：" << words << "\n";
}

void Restorer::tellRestored(const Row& row, const std::string& words) {
    ++count_.restored;
    tell(row, words);
}

void Restorer::tellPresent(const Row& row, const std::string& words) {
    ++count_.present;
    tell(row, words);
}

void Restorer::tellRefused(const Row& row, const std::string& words) {
    ++count_.refused;
    tell(row, "没有恢复：" + words);
}

} // namespace quillmere::recovery

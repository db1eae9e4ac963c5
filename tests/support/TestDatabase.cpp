#include "support/TestDatabase.h"

#include "adapters/sqlite/SqliteConnection.h"
#include "metadata/Globals.h"
#include "platform/text/Text.h"

#include <gtest/gtest.h>

namespace quillmere::test {

namespace {

constexpr const char* catalogueTables[] = {
    "create table s_infotable (tblname text collate nocase, tbldesc text collate nocase, OtherProp integer, "
    "orderfield text collate nocase, maxnumber integer, Property boolean)",
    "create table s_infoitem (TblName text collate nocase, ItemName text collate nocase, "
    "ItemDesc text collate nocase, FieldType text, FieldLength text, CodeTable text, style text, "
    "\"Check\" text, FldOrder text, FldWidth integer, FldExplain text, \"IsNUll\" boolean)",
    "create table TS_SetCustomize (DmCod text collate nocase, PersonItem text, ProjectItem text, "
    "PlanItem text)",
    "create table s_CodeTableDefine (dmgrp text collate nocase, codtbldsc text)",
    "create table s_CodeLevDefine (dmgrp text collate nocase, levelnum integer, bit integer)",
    "create table ZZStyle (ZZType text, ZZYear text)",
    "create table S_GUID (id text default ('{' || hex(randomblob(4)) || '-' || hex(randomblob(2)) || '-' || "
    "hex(randomblob(2)) || '-' || hex(randomblob(2)) || '-' || hex(randomblob(6)) || '}'), "
    "val text collate nocase)",
};

std::string cellText(const data::Value& value) { return value.isNull() ? "(null)" : value.toText(); }

} // namespace

std::string literal(const std::optional<std::string>& text) {
    return text ? "'" + text::replaceAll(*text, "'", "''") + "'" : "null";
}

std::string literal(const std::optional<bool>& value) {
    if (!value) return "null";
    return *value ? "true" : "false";
}

std::string literal(const std::optional<std::int64_t>& value) {
    return value ? std::to_string(*value) : "null";
}

TestDatabase::TestDatabase()
    : engine_(sqlite::openInMemory())
    , failing_(std::make_shared<data::FailingConnection>(engine_))
    , recorder_(std::make_shared<data::RecordingConnection>(failing_)) {
    publishConnection(recorder_);
}

TestDatabase::~TestDatabase() { publishConnection(nullptr); }

void TestDatabase::run(std::string_view sql) { engine_->execute(sql); }

data::RowSet TestDatabase::rows(std::string_view sql) { return engine_->query(sql); }

std::string TestDatabase::cell(std::string_view sql) {
    const data::RowSet answer = engine_->query(sql);
    if (answer.empty()) {
        ADD_FAILURE() << "no row for " << sql;
        return "(no row)";
    }
    return cellText(answer.at(0, 0));
}

std::vector<std::string> TestDatabase::column(std::string_view sql) {
    const data::RowSet answer = engine_->query(sql);
    std::vector<std::string> texts;
    for (std::size_t row = 0; row < answer.rowCount(); ++row)
        texts.push_back(cellText(answer.at(row, 0)));
    return texts;
}

void TestDatabase::createCatalogue() {
    for (const char* statement : catalogueTables)
        run(statement);
}

void TestDatabase::addSet(const SetRow& row) {
    std::optional<std::int64_t> maxNumber;
    if (row.maxNumber) maxNumber = *row.maxNumber;
    run("insert into s_infotable values (" + literal(row.tblName) + "," + literal(row.tblDesc) + "," +
        row.otherProp + "," + literal(row.orderField) + "," + literal(maxNumber) + "," +
        literal(row.property) + ")");
}

void TestDatabase::addField(const FieldRow& row) {
    run("insert into s_infoitem values (" + literal(row.tblName) + "," + literal(row.itemName) + "," +
        literal(row.itemDesc) + "," + literal(row.fieldType) + "," + literal(row.fieldLength) + "," +
        literal(row.codeTable) + "," + literal(row.style) + "," + literal(row.check) + "," +
        literal(row.fldOrder) + "," + literal(row.fldWidth) + "," + literal(row.fldExplain) + "," +
        literal(row.isNull) + ")");
}

void TestDatabase::createDataTable(std::string_view name, const std::vector<std::string>& columns) {
    std::string sql = "create table " + std::string(name) + " (A00 text collate nocase";
    for (const std::string& column : columns) {
        const bool typed = column.find(' ') != std::string::npos;
        sql += ", " + column + (typed ? "" : " text collate nocase");
    }
    run(sql + ")");
}

void TestDatabase::addRow(std::string_view table, const std::vector<std::optional<std::string>>& values) {
    std::vector<std::string> literals;
    for (const auto& value : values)
        literals.push_back(literal(value));
    run("insert into " + std::string(table) + " values (" + text::join(literals, ",") + ")");
}

void TestDatabase::createCodeTable(std::string_view name, std::string_view description,
                                   const std::vector<int>& lengths, const std::vector<CodeRow>& rows) {
    const std::string table(name);
    run("create table " + table +
        " (dmcod text collate nocase, dmcpt text collate nocase, dmhnd text collate nocase, dmattr boolean)");
    for (const CodeRow& row : rows) {
        run("insert into " + table + " values (" + literal(row.dmcod) + "," + literal(row.dmcpt) + "," +
            literal(row.dmhnd) + "," + literal(row.dmattr) + ")");
    }
    if (!description.empty()) {
        run("insert into s_CodeTableDefine values (" + literal(table) + "," +
            literal(std::string(description)) + ")");
    }
    int level = 0;
    for (const int length : lengths) {
        run("insert into s_CodeLevDefine values (" + literal(table) + "," + std::to_string(++level) + "," +
            std::to_string(length) + ")");
    }
}

} // namespace quillmere::test

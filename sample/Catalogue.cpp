#include "sample/Catalogue.h"

#include "platform/Error.h"
#include "sample/Csv.h"
#include "sample/EmbeddedFiles.h"
#include "sample/InsertBatch.h"

#include <algorithm>
#include <string_view>

namespace quillmere::sample {
namespace {

CsvTable embeddedTable(const std::string& table) {
    const std::string file = table + ".csv";
    return parseCsv(embeddedFile(file), file);
}

/// How the columns of one table become literals: a letter a column, `t` text, `b` as it stands.
struct TableForm {
    std::string_view table;
    std::string_view kinds;
};

constexpr TableForm catalogueForms[] = {
    {"s_infotable", "ttbtbb"},   {"s_infoitem", "ttttttttbbtb"}, {"TS_SetCustomize", "tttt"},
    {"s_CodeTableDefine", "tt"}, {"s_CodeLevDefine", "tbb"},     {"ZZStyle", "tt"},
};

constexpr std::string_view codeTableKinds = "tttb";

std::string columnList(const std::vector<std::string>& columns) {
    std::string list;
    for (const std::string& column : columns) {
        if (!list.empty()) list += ',';
        // Two columns bear names that are keywords to the engines.
        const bool keyword = column == "Check" || column == "IsNUll";
        list += keyword ? '"' + column + '"' : column;
    }
    return list;
}

void writeTable(data::Connection& connection, const std::string& table, std::string_view kinds) {
    const CsvTable csv = embeddedTable(table);
    if (csv.columns().size() != kinds.size()) {
        throw Error(Failure::BadArguments, table + ".csv 的列数不对", "Catalogue");
    }
    InsertBatch batch(connection, table, columnList(csv.columns()));
    std::vector<std::string> literals(kinds.size());
    for (const auto& row : csv.rows()) {
        for (std::size_t i = 0; i < kinds.size(); ++i) {
            literals[i] = kinds[i] == 't' ? quotedOrNull(row[i]) : bareOrNull(row[i]);
        }
        batch.add(literals);
    }
    batch.flush();
}

} // namespace

std::vector<SetRow> informationSets() {
    const CsvTable tables = embeddedTable("s_infotable");
    const std::size_t name = tables.column("tblname");
    const std::size_t single = tables.column("Property");
    std::vector<SetRow> sets;
    for (const auto& row : tables.rows())
        sets.push_back({row[name], row[single] == "true", {}});

    const CsvTable items = embeddedTable("s_infoitem");
    const std::size_t table = items.column("TblName");
    const std::size_t item = items.column("ItemName");
    const std::size_t type = items.column("FieldType");
    for (const auto& row : items.rows()) {
        const auto set =
            std::find_if(sets.begin(), sets.end(), [&](const SetRow& s) { return s.name == row[table]; });
        if (set == sets.end()) throw Error(Failure::BadArguments, "没有信息集 " + row[table], "Catalogue");
        set->fields.push_back({row[item], row[type]});
    }
    for (const SetRow& set : sets) {
        if (set.fields.empty())
            throw Error(Failure::BadArguments, "信息集 " + set.name + " 没有字段", "Catalogue");
    }
    return sets;
}

std::vector<std::string> codeTableNames() {
    std::vector<std::string> names;
    const CsvTable tables = embeddedTable("s_CodeTableDefine");
    for (const auto& row : tables.rows())
        names.push_back(row.front());
    return names;
}

void writeCatalogue(data::Connection& connection) {
    for (const TableForm& form : catalogueForms)
        writeTable(connection, std::string(form.table), form.kinds);
}

void writeCodeTables(data::Connection& connection) {
    for (const std::string& name : codeTableNames())
        writeTable(connection, name, codeTableKinds);
}

} // namespace quillmere::sample

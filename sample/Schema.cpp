#include "sample/Schema.h"

#include "platform/Error.h"
#include "platform/text/Text.h"
#include "sample/EmbeddedFiles.h"

#include <string_view>

namespace quillmere::sample {
namespace {

constexpr std::string_view longestText = "255";

/// Columns that a statement searches or takes the maximum of, beside the key of every table.
constexpr std::string_view furtherIndexes[] = {
    "create index IX_A01_A0101 on A01 (A0101)",
    "create index IX_A01_A0199 on A01 (A0199)",
    "create index IX_B01_B0101 on B01 (B0101)",
    "create index IX_B01_B0199 on B01 (B0199)",
    "create index IX_P01_P0120 on P01 (P0120)",
    "create index IX_P02_P0299 on P02 (P0299)",
    "create index IX_P03_P0399 on P03 (P0399)",
    "create index IX_C04_C0499 on C04 (C0499)",
    // With the identity beside the stage, a search by stage reads no project.
    "create index IX_P01_P0123 on P01 (P0123, A00)",
};

std::string column(const SetRow& set, const FieldRow& field, const Dialect& dialect) {
    const std::string type = text::lower(field.type);
    const std::string& name = field.name;
    const auto declared = [&](std::string_view engineType) { return name + " " + std::string(engineType); };
    if (name == "A00") return declared(dialect.text) + " NOT NULL";
    const std::string wholeRange = " CHECK (" + name + " between -2147483648 and 2147483647)";
    // Order columns are never null: the engines sort nulls to different ends.
    if (name == set.name + "99") {
        const std::string required = set.single ? "" : " NOT NULL DEFAULT 0";
        return declared(dialect.integer) + required + wholeRange;
    }
    if (type == "int") return declared(dialect.number) + wholeRange;
    if (type == "bit")
        return declared(dialect.boolean) + " DEFAULT false CHECK (" + name + " in (false,true))";
    if (type == "varchar") {
        return declared(dialect.text) + " CHECK (length(" + name + ") <= " + std::string(longestText) + ")";
    }
    if (type == "ntext" || type == "datetime") return declared(dialect.text);
    throw Error(Failure::BadArguments, "字段 " + name + " 的类型不对：" + field.type, "Schema");
}

} // namespace

std::vector<std::string> catalogueStatements(const Dialect& dialect) {
    std::string script(embeddedFile("catalogue.sql"));
    script = text::replaceAll(script, "$text", dialect.text);
    script = text::replaceAll(script, "$boolean", dialect.boolean);
    script = text::replaceAll(script, "$integer", dialect.integer);
    script = text::replaceAll(script, "$guid", dialect.guidDefault);
    std::vector<std::string> statements;
    for (const std::string& piece : text::split(script, ";\n")) {
        if (piece.find_first_not_of(" \r\n") != std::string::npos) statements.push_back(piece);
    }
    statements.insert(statements.end(), dialect.identityGuard.begin(), dialect.identityGuard.end());
    return statements;
}

std::string codeTableStatement(const std::string& table, const Dialect& dialect) {
    const std::string textType(dialect.text);
    return "create table " + table + " (dmcod " + textType + " PRIMARY KEY, dmcpt " + textType + ", dmhnd " +
           textType + ", dmattr " + std::string(dialect.boolean) + " CHECK (dmattr in (false,true)))";
}

std::string dataTableStatement(const SetRow& set, const Dialect& dialect) {
    std::string columns;
    for (const FieldRow& field : set.fields) {
        if (!columns.empty()) columns += ", ";
        columns += column(set, field, dialect);
    }
    return "create table " + set.name + " (" + columns + ")";
}

std::vector<std::string> indexStatements(const std::vector<SetRow>& sets, const Dialect& dialect) {
    std::vector<std::string> statements;
    for (const SetRow& set : sets) {
        const std::string& name = set.name;
        const std::string sequence = " (A00, " + name + "99)";
        if (set.single) {
            statements.push_back("create unique index UX_" + name + "_A00 on " + name + " (A00)");
        } else if (dialect.deferrableKeys) {
            statements.push_back("alter table " + name + " add constraint UX_" + name + "_A00 unique" +
                                 sequence + " deferrable initially immediate");
        } else {
            statements.push_back("create index IX_" + name + "_A00 on " + name + sequence);
        }
    }
    statements.insert(statements.end(), std::begin(furtherIndexes), std::end(furtherIndexes));
    return statements;
}

void createTables(data::Connection& connection, const std::vector<SetRow>& sets, const Dialect& dialect) {
    for (const std::string& statement : catalogueStatements(dialect))
        connection.execute(statement);
    for (const std::string& table : codeTableNames())
        connection.execute(codeTableStatement(table, dialect));
    for (const SetRow& set : sets)
        connection.execute(dataTableStatement(set, dialect));
}

void createIndexes(data::Connection& connection, const std::vector<SetRow>& sets, const Dialect& dialect) {
    for (const std::string& statement : indexStatements(sets, dialect))
        connection.execute(statement);
}

void createSchema(data::Connection& connection, const std::vector<SetRow>& sets, const Dialect& dialect) {
    createTables(connection, sets, dialect);
    createIndexes(connection, sets, dialect);
}

} // namespace quillmere::sample

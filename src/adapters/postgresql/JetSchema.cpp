#include "adapters/postgresql/JetSchema.h"

#include "adapters/postgresql/PostgreSqlConnection.h"
#include "adapters/postgresql/SchemaFiles.h"

#include <charconv>
#include <string>

namespace quillmere::postgresql {

namespace {

/// The number that a file's name begins with.
int numberOf(std::string_view name) {
    int number = 0;
    std::from_chars(name.data(), name.data() + name.size(), number);
    return number;
}

constexpr std::string_view opening =
    // Two installations at a time take turns; the number stands for nothing.
    "begin;\n"
    "select pg_advisory_xact_lock(7355608);\n"
    "create schema if not exists data;\n"
    "create schema if not exists jet;\n"
    "grant usage on schema jet to public;\n"
    "create table if not exists jet.version (number integer primary key,"
    " installed timestamptz not null default now());\n"
    "grant select on jet.version to public;\n";

/// A file that another installation has run meanwhile fails here, and the whole is taken back.
std::string stepOf(std::string_view file) {
    std::string step = "insert into jet.version (number) values (" + std::to_string(numberOf(file)) + ");\n";
    return step.append(embeddedFile(file)).append("\n");
}

} // namespace

int neededJetVersion() { return numberOf(embeddedFileNames().back()); }

int installedJetVersion(data::Connection& connection) {
    // The table may be missing, and a statement that names it would fail then.
    if (connection.query("select to_regclass('jet.version')").at(0, 0).isNull()) return 0;
    return connection.query("select coalesce(max(number),0) from jet.version").at(0, 0).toLong();
}

void installJetSchema(PostgreSqlConnection& connection) {
    const int installed = installedJetVersion(connection);
    if (installed >= neededJetVersion()) return;
    std::string script(opening);
    for (const std::string_view file : embeddedFileNames())
        if (numberOf(file) > installed) script += stepOf(file);
    script += "commit;\n";
    try {
        connection.executeScript(script);
    } catch (...) {
        connection.executeScript("rollback");
        throw;
    }
}

} // namespace quillmere::postgresql

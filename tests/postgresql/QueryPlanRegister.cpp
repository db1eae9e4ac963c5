#include "QueryPlanRegister.h"

#include "metadata/Globals.h"
#include "sample/Schema.h"

namespace quillmere::postgresql {

LargeRegister::LargeRegister(int parts) : connection_(schema_.connect()) {
    const auto sets = sample::informationSets();
    const sample::Dialect& dialect = sample::dialectOf(sample::Engine::PostgreSql);
    sample::createTables(*connection_, {}, dialect);
    sample::writeCatalogue(*connection_);
    sample::writeCodeTables(*connection_);
    for (const sample::SetRow& set : sets) {
        makeTable(set, parts);
        fill(set);
    }
    sample::createIndexes(*connection_, sets, dialect);
    connection_->execute("analyze");
    publishConnection(connection_);
}

LargeRegister::~LargeRegister() { publishConnection(nullptr); }

std::set<std::string> LargeRegister::tablesOf(const std::string& statement, const std::string& step) const {
    std::set<std::string> tables;
    const data::RowSet plan = connection_->query("explain " + statement);
    for (std::size_t row = 0; row < plan.rowCount(); ++row) {
        // "->  Index Scan using ux_a01_a00 on a01  (cost=...)", "Delete on a01 ..."
        const std::string text = plan.at(row, 0).toText();
        constexpr std::string_view mark = " on ";
        const std::size_t at = text.find(mark);
        // A bitmap is read from an index; the table stands in the step above it.
        if (at == std::string::npos || text.find("Bitmap Index Scan") != std::string::npos) continue;
        if (text.substr(0, at).find(step) == std::string::npos) continue;
        const std::string rest = text.substr(at + mark.size());
        tables.insert(rest.substr(0, rest.find(' ')));
    }
    return tables;
}

void LargeRegister::makeTable(const sample::SetRow& set, int parts) const {
    const std::string table = sample::dataTableStatement(set, sample::dialectOf(sample::Engine::PostgreSql));
    connection_->execute(parts == 0 ? table : table + " partition by hash (A00)");
    for (int part = 0; part < parts; ++part) {
        connection_->execute("create table " + set.name + "_part" + std::to_string(part) + " partition of " +
                             set.name + " for values with (modulus " + std::to_string(parts) +
                             ", remainder " + std::to_string(part) + ")");
    }
}

void LargeRegister::fill(const sample::SetRow& set) const {
    const std::string& name = set.name;
    const bool isMaster = name == "A01" || name == "B01";
    std::string columns = "A00";
    std::string values = "'KEY-00000000-0000-0000-0000-' || n";
    if (!set.single || isMaster) {
        columns += "," + name + "99";
        values += ",n";
    }
    if (isMaster) {
        columns += "," + name + "01";
        values += ",'名' || n";
    }
    connection_->execute("insert into " + name + " (" + columns + ") select " + values +
                         " from generate_series(1," + std::to_string(rows) + ") n");
}

} // namespace quillmere::postgresql

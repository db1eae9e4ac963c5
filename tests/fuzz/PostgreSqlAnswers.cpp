// What a server may answer: any type over any text, under any statement.

#include "support/Fuzzing.h"

#include "adapters/postgresql/ResultRows.h"
#include "platform/text/Text.h"

#include <libpq-fe.h>

#include <memory>
#include <vector>

namespace {

using namespace quillmere;
using fuzz::hold;

struct Cell {
    std::string name;
    Oid type;
    std::string value;
};

struct Clear {
    void operator()(PGresult* result) const { PQclear(result); }
};
using Answer = std::unique_ptr<PGresult, Clear>;

Answer answerOf(std::vector<Cell>& cells) {
    Answer answer(PQmakeEmptyPGresult(nullptr, PGRES_TUPLES_OK));
    std::vector<PGresAttDesc> columns;
    for (Cell& cell : cells)
        columns.push_back({.name = cell.name.data(),
                           .tableid = 0,
                           .columnid = 0,
                           .format = 0,
                           .typid = cell.type,
                           .typlen = -1,
                           .atttypmod = -1});
    hold(PQsetResultAttrs(answer.get(), static_cast<int>(columns.size()), columns.data()) == 1,
         "columns are made");
    for (int i = 0; i < static_cast<int>(cells.size()); ++i) {
        std::string& value = cells[static_cast<std::size_t>(i)].value;
        const bool isNull = value == "null";
        hold(PQsetvalue(answer.get(), 0, i, isNull ? nullptr : value.data(),
                        isNull ? -1 : static_cast<int>(value.size())) == 1,
             "values are made");
    }
    return answer;
}

} // namespace

/// A line with the statement, then three lines for each column: name, number of the type, value.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input input(data, size);
    const std::string sql = input.line();
    std::vector<Cell> cells;
    while (!input.atEnd() && cells.size() < 20) {
        // libpq takes names that end at a zero.
        std::string name = input.line().c_str();
        const auto type = static_cast<Oid>(std::abs(fuzz::numberOf(input.line())));
        cells.push_back({std::move(name), type, input.line()});
    }
    if (cells.empty()) return 0;
    const auto rows = postgresql::rowsOf(answerOf(cells).get(), sql);
    hold(rows.rowCount() == 1 && rows.columns().size() == cells.size(), "there are as many rows and columns");
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const std::string& name = rows.columns()[i];
        hold(text::startsWithNoCase(name, cells[i].name),
             "a column bears its name, in any case, and maybe longer");
        hold(rows.at(0, i).isNull() == (cells[i].value == "null"), "nulls stay nulls");
        if (rows.at(0, i).isText()) hold(rows.at(0, i).toText() == cells[i].value, "texts stay as they are");
    }
    return 0;
}

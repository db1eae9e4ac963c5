// What follows `delete from A02` or `update A02 set ...`: the rows that a journal would keep are those that
// the statement then changes.

#include "support/Chance.h"
#include "support/Fuzzing.h"
#include "support/WatchedEngine.h"

#include "adapters/journal/WritingStatement.h"
#include "platform/data/RowSet.h"

namespace {

namespace fuzz = quillmere::fuzz;
namespace journal = quillmere::journal;
using fuzz::hold;

struct Deed {
    const char* beginning;
    /// The rows that it has changed.
    const char* changed;
};

constexpr Deed deeds[] = {
    {"delete from A02 ", "select n from everyone where n not in (select rowid from A02) order by n"},
    {"update A02 set A0203='改' ", "select rowid from A02 where A0203='改' order by rowid"},
};

std::string numbersIn(const quillmere::data::RowSet& rows) {
    std::string numbers;
    for (std::size_t row = 0; row < rows.rowCount(); ++row)
        numbers += rows.at(row, std::size_t{0}).toText() + "|\n";
    return numbers;
}

void keepWhatChanges(const Deed& deed, const std::string& rest) {
    const std::string sql = deed.beginning + rest;
    const auto statement = journal::readWriting(sql);
    // Behind a dot A02 is a schema; with an operator behind it the text is another one.
    if (!statement || !statement->tellsRows || statement->table != "A02") return;
    if (!statement->assignments.empty() && statement->assignments.back().expression != "'改'") return;

    fuzz::WatchedEngine engine;
    engine.directly("create table A02 (A00 text collate nocase, A0203 text, A0299 integer);"
                    "insert into A02 values('{1}','甲',1),('{2}','乙',2),('{3}',null,null),('{a}','','3');"
                    "create table everyone as select rowid as n from A02");
    std::string kept;
    const std::string query =
        "select rowid from (" + journal::selectionOf(*statement, "rowid") + ") order by 1";
    const auto unread = fuzz::failureOf([&] { kept = numbersIn(engine.connection().query(query)); });
    const auto failure = fuzz::failureOf([&] { engine.connection().execute(sql); });
    if (unread || failure) return;
    hold(engine.directly(deed.changed) == kept, "the rows that are kept are those that change");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string rest = fuzz::Input(data, size).rest();
    if (fuzz::mayDiffer(rest)) return 0;
    for (const Deed& deed : deeds)
        keepWhatChanges(deed, rest);
    return 0;
}

#include "clerk/ClerksRegister.h"

#include "adapters/sqlite/SqliteConnection.h"
#include "sample/Catalogue.h"
#include "sample/SampleRegister.h"
#include "shell/frmPersonWh.h"
#include "support/CountedIdentities.h"

namespace quillmere::test {

ClerksRegister::ClerksRegister()
    : engine_(sqlite::openInMemory())
    , failing_(std::make_shared<data::FailingConnection>(engine_))
    , witness_(std::make_shared<Witness>(failing_, [] { return frmPersonWh::defaultInstance().personID; })) {
    sample::build(*engine_, {.persons = sample::plainPersons + 4, .units = sample::plainUnits + 2});
    countIdentities(*engine_);
    for (const sample::SetRow& set : sample::informationSets())
        tables_.push_back(set.name);
}

std::vector<std::string> ClerksRegister::identities() {
    const data::RowSet found = engine_->query("select A00 from A01 union select A00 from B01 order by A00");
    std::vector<std::string> identities;
    for (std::size_t row = 0; row < found.rowCount(); ++row)
        identities.push_back(found.at(row, 0).toText());
    return identities;
}

ClerksRegister::Rows ClerksRegister::rows() {
    Rows all;
    for (const std::string& table : tables_) {
        const data::RowSet found = engine_->query("select * from " + table + " order by rowid");
        for (std::size_t row = 0; row < found.rowCount(); ++row) {
            std::string line = table;
            for (const data::Value& value : found.row(row))
                line += "|" + (value.isNull() ? "(null)" : value.toText());
            all[found.at(row, "A00").toTextOrEmpty()].push_back(line);
        }
    }
    return all;
}

} // namespace quillmere::test

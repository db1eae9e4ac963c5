#include "faults/SmallRegister.h"

#include "sample/Catalogue.h"
#include "sample/Schema.h"
#include "support/CountedIdentities.h"

namespace quillmere::test {

void makeSmallRegister(data::Connection& connection) {
    connection.execute("begin");
    sample::createSchema(connection, sample::informationSets(), sample::dialectOf(sample::Engine::Sqlite));
    sample::writeCatalogue(connection);
    countIdentities(connection);
    connection.execute("update s_infoitem set \"IsNUll\"=true, \"Check\"=''");
    const std::string person(thePerson);
    const std::string unit(theUnit);
    connection.execute("insert into A01 (A00,A0101,A0199) values ('" + person + "','秦志明',1)");
    connection.execute("insert into B01 (A00,B0101,B0199) values ('" + unit + "','江城桥梁厂',1)");
    for (const std::string& id : {person, unit})
        connection.execute("insert into P01 (A00,P0123,P0120) values ('" + id + "','01','')");
    connection.execute("commit");
}

Lines allRows(data::Connection& connection) {
    static const std::vector<sample::SetRow> sets = sample::informationSets();
    Lines all;
    for (const sample::SetRow& set : sets) {
        const data::RowSet rows = connection.query("select * from " + set.name);
        for (std::size_t row = 0; row < rows.rowCount(); ++row) {
            std::string line = set.name;
            for (const data::Value& value : rows.row(row))
                line += "|" + (value.isNull() ? "(null)" : value.toText());
            all.push_back(line);
        }
    }
    return all;
}

} // namespace quillmere::test

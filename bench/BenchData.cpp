#include "BenchData.h"

#include "Require.h"

namespace quillmere::bench {

namespace {

/// What marks the jobs that were added.
constexpr const char* employer = "量具单位";

/// `n(i)` from 0 and below `count`.
std::string numbersBelow(std::size_t count) {
    return "with recursive n(i) as (select 0 union all select i+1 from n where i<" +
           std::to_string(count - 1) + ") ";
}

/// Persons of a stage in which records are not locked. They stand at the beginning, where every size has
/// them.
std::vector<std::string> openPersons(data::Connection& connection) {
    const data::RowSet rows = connection.query(
        "select A01.A00 from A01 join P01 on P01.A00=A01.A00 where P0123='01' and A0136 in ('01','1') and "
        "A0199 between 1 and 200 order by A0199");
    std::vector<std::string> persons;
    for (std::size_t row = 0; row < rows.rowCount(); ++row)
        persons.push_back(rows.at(row, std::size_t{0}).toText());
    require(persons.size() >= std::size(listLengths), "there are too few persons with open records");
    return persons;
}

void addJobs(data::Connection& connection, const std::string& person, std::size_t rows) {
    connection.execute("delete from A03 where A00='" + person + "'");
    connection.execute("insert into A03 (A00,A0399,A0301,A0302,A0303,A0304,A0305) " + numbersBelow(rows) +
                       "select '" + person + "', i+1, '1990-01', '1991-12', '" + employer + "', '" +
                       std::to_string(rows) + "', '012' from n");
}

/// 100 codes of two digits, 99 below each of them, 10 below each of the first 90 of those. `DM_BENCH1` has
/// the first 300 of the lowest level alone.
const char* const codeStatements[] = {
    "create table DM_BENCH3 (dmcod text collate nocase primary key, dmcpt text, dmhnd text, dmattr boolean)",
    "insert into DM_BENCH3 with recursive n(i) as (select 0 union all select i+1 from n where i<99) "
    "select printf('%02d',i), '大类'||i, 'dl', false from n",
    "insert into DM_BENCH3 with recursive n(i) as (select 0 union all select i+1 from n where i<9899) "
    "select printf('%02d%02d',i/99,i%99), '中类'||i, 'zl', true from n",
    "insert into DM_BENCH3 with recursive n(i) as (select 0 union all select i+1 from n where i<89999) "
    "select printf('%02d%02d%d',i/900,i/10%90,i%10), '小类'||i, 'xl', true from n",
    "insert into s_CodeTableDefine (dmgrp,codtbldsc) values ('DM_BENCH3','三级')",
    "insert into s_CodeLevDefine (dmgrp,levelnum,bit) values ('DM_BENCH3',1,2)",
    "insert into s_CodeLevDefine (dmgrp,levelnum,bit) values ('DM_BENCH3',2,4)",
    "insert into s_CodeLevDefine (dmgrp,levelnum,bit) values ('DM_BENCH3',3,5)",
    "create table DM_BENCH1 (dmcod text collate nocase primary key, dmcpt text, dmhnd text, dmattr boolean)",
    "insert into DM_BENCH1 select * from DM_BENCH3 where len(dmcod)=5 order by dmcod limit 300",
    "insert into s_CodeTableDefine (dmgrp,codtbldsc) values ('DM_BENCH1','一级')",
    "insert into s_CodeLevDefine (dmgrp,levelnum,bit) values ('DM_BENCH1',1,5)",
};

} // namespace

void addLists(data::Connection& connection) {
    const auto persons = openPersons(connection);
    for (std::size_t i = 0; i < std::size(listLengths); ++i)
        addJobs(connection, persons[i], listLengths[i]);
}

void addCodeTables(data::Connection& connection) {
    for (const char* statement : codeStatements)
        connection.execute(statement);
}

std::string personWithJobs(const Register& from, std::size_t rows) {
    // By way of the persons at the beginning: there is no index of employers.
    const auto found =
        from.ask("select distinct A01.A00 from A01 join A03 on A03.A00=A01.A00 where A0199 between 1 "
                 "and 200 and A0303='" +
                 std::string(employer) + "' and A0304='" + std::to_string(rows) + "'");
    require(found.size(), 1, "persons with " + std::to_string(rows) + " jobs");
    return found.front();
}

} // namespace quillmere::bench

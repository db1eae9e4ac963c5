#include "OpenRecord.h"

#include "Comparison.h"
#include "StatementsOf.h"
#include "metadata/Globals.h"
#include "shell/MenuComposition.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

namespace quillmere::bench {

namespace {

constexpr int rounds = 500;

std::size_t countStarting(const std::vector<std::string>& statements, std::string_view begin) {
    return static_cast<std::size_t>(
        std::ranges::count_if(statements, [&](const std::string& sql) { return sql.starts_with(begin); }));
}

void require(std::size_t found, std::size_t expected, const std::string& what) {
    if (found == expected) return;
    throw std::runtime_error(what + ": " + std::to_string(found) + " instead of " + std::to_string(expected));
}

std::size_t codedFields(data::Connection& connection) {
    const auto rows =
        connection.query("select count(*) from s_infoitem where tblname='A01' and codetable<>''");
    return static_cast<std::size_t>(rows.at(0, std::size_t{0}).toLong());
}

std::size_t fieldsOnShow(const frmPersonWh& window) {
    const A1ctrlUser* panel = window.GetUserCtrl();
    if (panel == nullptr || panel->name() != "A1ctrlUserA01")
        throw std::runtime_error("the window does not show A1ctrlUserA01");
    return static_cast<std::size_t>(std::ranges::count_if(
        panel->Controls(), [](const auto& control) { return control->name().ends_with("_v"); }));
}

/// One person's record on show, and what it takes the bare engine to read the same.
struct Opening {
    std::string personID;
    std::vector<std::string> statements;
};

void open(frmPersonWh& window, const std::string& personID) {
    window.personID = personID;
    if (!window.menu().clickItem(1, 1)) throw std::runtime_error("the menu has no first item");
}

/// Opens the record once. Raises std::runtime_error when that is not done as it should be.
Opening observe(frmPersonWh& window, data::RecordingConnection& connection, const std::string& personID,
                std::size_t coded) {
    constexpr std::size_t fieldsOfPerson = 35;
    auto statements = statementsOf(connection, [&] { open(window, personID); });
    require(fieldsOnShow(window), fieldsOfPerson, "fields on the panel");

    const std::string record = "select * from A01 where a00 ='" + personID + "'";
    require(countStarting(statements, " select * from s_infoitem "), 1, "catalogue statements");
    require(countStarting(statements, record), 1, "record statements");
    require(countStarting(statements, "select dmcpt from "), coded, "lookups of coded fields");
    return {personID, std::move(statements)};
}

/// Opens the records by turns.
void measureTurns(const std::string& what, frmPersonWh& window, const std::vector<Opening>& openings,
                  BareEngine& engine) {
    std::size_t opened = 0;
    std::size_t read = 0;
    const auto comparison = compare(
        rounds, [&] { open(window, openings[opened++ % openings.size()].personID); },
        [&] { engine.run(openings[read++ % openings.size()].statements); });
    print(what, openings.front().statements.size(), comparison);
}

} // namespace

void measureOpenRecord(frmPersonWh& window, data::RecordingConnection& connection, BareEngine& engine) {
    const std::size_t coded = codedFields(connection);
    const data::RowSet persons = connection.query("select A00 from A01 order by A0199");
    std::vector<Opening> openings;
    for (std::size_t i = 0; i < persons.rowCount(); ++i)
        openings.push_back(observe(window, connection, persons.at(i, std::size_t{0}).toText(), coded));
    std::printf("reading a record: %zu statements, 2 and one for each of %zu coded fields\n", 2 + coded,
                coded);
    measureTurns("opening a record of 35 fields again", window, {openings.front()}, engine);
    measureTurns("opening the records of " + std::to_string(openings.size()) + " persons by turns", window,
                 openings, engine);
}

void measureMenu(frmPersonWh& window, data::RecordingConnection& connection, BareEngine& engine) {
    constexpr std::size_t most = 8;
    const auto compose = [&window] { composeMenu(window.menu(), gZZType); };
    const auto statements = statementsOf(connection, compose);
    if (statements.size() > most)
        throw std::runtime_error("the menu takes " + std::to_string(statements.size()) + " statements");
    print("composing the menu", statements.size(), compare(rounds, compose, [&] { engine.run(statements); }));
}

} // namespace quillmere::bench

#include "Case.h"
#include "Comparison.h"
#include "Require.h"
#include "StatementsOf.h"
#include "Window.h"
#include "metadata/Globals.h"
#include "shell/MenuComposition.h"

#include <algorithm>

// The menu, and the basic information of persons.

namespace quillmere::bench {

namespace {

constexpr std::size_t manyPersons = 200;

/// Persons from all over the register, so that a large one is not read at its beginning alone.
std::vector<std::string> personsApart(const Register& from, std::size_t count) {
    const std::size_t step = std::max<std::size_t>(1, from.persons / count);
    auto persons =
        from.ask("select A00 from (select A00, row_number() over (order by A00) as n from A01) as numbered "
                 "where n % " +
                 std::to_string(step) + "=0 order by n limit " + std::to_string(count));
    require(persons.size(), std::min(from.persons, count), "persons");
    return persons;
}

std::size_t fieldsOnShow(const frmPersonWh& window) {
    const A1ctrlUser* panel = window.GetUserCtrl();
    require(panel != nullptr && panel->name() == "A1ctrlUserA01", "the window does not show A1ctrlUserA01");
    return static_cast<std::size_t>(std::ranges::count_if(
        panel->Controls(), [](const auto& control) { return control->name().ends_with("_v"); }));
}

void open(frmPersonWh& window, const std::string& personID) {
    window.personID = personID;
    require(window.menu().clickItem(1, 1), "the menu has no first item");
}

/// A record is read with one statement for the catalogue, one for the record and one for each coded field.
Turn opening(frmPersonWh& window, const Register& from, const std::string& personID, std::size_t coded) {
    constexpr std::size_t fieldsOfPerson = 35;
    const auto action = [&window, personID] { open(window, personID); };
    auto statements = statementsOf(*from.connection, action);
    require(fieldsOnShow(window), fieldsOfPerson, "fields on the panel");
    require(countStarting(statements, " select * from s_infoitem "), 1, "catalogue statements");
    require(countStarting(statements, "select * from A01 where a00 ='" + personID + "'"), 1,
            "record statements");
    require(countStarting(statements, "select dmcpt from "), coded, "lookups of coded fields");
    return {action, std::move(statements)};
}

void openPersons(benchmark::State& state, Register& from, std::size_t count) {
    const auto persons = personsApart(from, count);
    const std::size_t coded =
        from.count("select count(*) from s_infoitem where tblname='A01' and codetable<>''");
    withWindow(from, persons.front(), [&](frmPersonWh& window) {
        Work work;
        for (const std::string& person : persons)
            work.turns.push_back(opening(window, from, person, coded));
        compare(state, *from.engine, work);
    });
}

void openOne(benchmark::State& state, Register& from) { openPersons(state, from, 1); }
void openMany(benchmark::State& state, Register& from) { openPersons(state, from, manyPersons); }

void composeTheMenu(benchmark::State& state, Register& from) {
    constexpr std::size_t most = 8;
    withWindow(from, personsApart(from, 1).front(), [&](frmPersonWh& window) {
        const auto compose = [&window] { composeMenu(window.menu(), gZZType); };
        auto statements = statementsOf(*from.connection, compose);
        require(statements.size() <= most,
                "the menu takes " + std::to_string(statements.size()) + " statements");
        compare(state, *from.engine, {.turns = {{compose, std::move(statements)}}});
    });
}

} // namespace

std::vector<Case> recordCases() {
    return {
        {"menu/compose", 500, composeTheMenu, Sizes::Smallest},
        {"open/same-person", 500, openOne},
        {"open/200-persons-by-turns", 1000, openMany},
    };
}

} // namespace quillmere::bench

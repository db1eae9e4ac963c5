#include "BenchData.h"
#include "Case.h"
#include "Comparison.h"
#include "Require.h"
#include "StatementsOf.h"
#include "Window.h"
#include "WorkFolder.h"
#include "quillmere/Journal.h"

// The three roads of a save, each with the reload behind it.

namespace quillmere::bench {

namespace {

constexpr const char* basics = "人员基本信息";
constexpr const char* jobs = "主要工作经历";

Turn saving(frmPersonWh& window, const Register& from) {
    const auto save = [&window] { press(window, "Save"); };
    return {save, statementsOf(*from.connection, save)};
}

/// `count` statements that begin so.
void requireStatements(const Turn& turn, const std::string& beginning, std::size_t count) {
    require(countStarting(turn.statements, beginning), count, beginning);
}

void updatePerson(benchmark::State& state, const Register& from) {
    withWindow(from, personWithJobs(from, 10), [&](frmPersonWh& window) {
        const auto begin = [&window] { openSet(window, basics); };
        begin();
        const Turn turn = saving(window, from);
        requireStatements(turn, "update A01 set ", 1);
        compare(state, *from.engine, {.turns = {turn}, .before = begin});
    });
}

/// The new person goes again behind each save.
void insertPerson(benchmark::State& state, const Register& from) {
    const std::string person = personWithJobs(from, 10);
    withWindow(from, person, [&](frmPersonWh& window) {
        std::string added;
        const auto begin = [&] {
            window.personID = person;
            openSet(window, basics);
            press(window, "Add");
            enter(window, "A01_A0101_v", "量新人");
            added = window.personID;
        };
        begin();
        const Turn turn = saving(window, from);
        requireStatements(turn, "insert into A01", 1);
        requireStatements(turn, "insert into P01", 1);
        const std::string recorded = added;
        const auto takeBack = [&] {
            for (const char* table : {"A01", "P01"})
                from.engine->run(std::vector<std::string>{"delete from " + std::string(table) +
                                                          " where A00 in ('" + recorded + "','" + added +
                                                          "')"});
        };
        takeBack();
        compare(state, *from.engine, {.turns = {turn}, .before = begin, .after = takeBack});
    });
}

/// The first of the person's jobs is deleted and inserted again, and all are numbered anew.
void replaceJob(benchmark::State& state, const Register& from, std::size_t rows) {
    withWindow(from, personWithJobs(from, rows), [&](frmPersonWh& window) {
        const auto begin = [&window] { openSet(window, jobs); };
        begin();
        const Turn turn = saving(window, from);
        requireStatements(turn, "delete from A03 ", 1);
        requireStatements(turn, "insert into A03", 1);
        requireStatements(turn, "update A03 set A0399 = ", 1 + rows);
        compare(state, *from.engine, {.turns = {turn}, .before = begin});
    });
}

/// A job is added behind all others; it goes again behind each save.
void addJob(benchmark::State& state, const Register& from, std::size_t rows) {
    const std::string person = personWithJobs(from, rows);
    withWindow(from, person, [&](frmPersonWh& window) {
        const auto begin = [&window] {
            openSet(window, jobs);
            press(window, "Add");
            enter(window, "A03_A0301_v", "200001");
            enter(window, "A03_A0302_v", "200112");
            enter(window, "A03_A0303_v", "新单位");
            enter(window, "A03_A0304_v", "工程师");
        };
        begin();
        const Turn turn = saving(window, from);
        requireStatements(turn, "insert into A03", 1);
        requireStatements(turn, "update A03 set A0399 = ", 2 + rows);
        const auto takeBack = [&] {
            from.engine->run(
                std::vector<std::string>{"delete from A03 where A00='" + person + "' and A0303='新单位'"});
        };
        takeBack();
        compare(state, *from.engine, {.turns = {turn}, .before = begin, .after = takeBack});
    });
}

/// The register as a host opens it that keeps a journal; the bare engine runs the statements of the system
/// alone.
Register withJournal(const Register& from, const WorkFolder& folder) {
    Register journaled = from;
    journaled.connection = std::make_shared<data::RecordingConnection>(
        quillmere::journaled(from.connection, {.file = folder.path() / "bench.journal"}));
    journaled.connection->keepStatements(false);
    return journaled;
}

} // namespace

std::vector<Case> saveCases() {
    std::vector<Case> cases{
        {"save/update-person", 200, updatePerson},
        // A running number of persons has 16 bits: a larger register takes no new person.
        {"save/insert-person", 100, insertPerson, Sizes::Smallest},
    };
    struct Row {
        std::size_t records;
        int rounds;
    };
    for (const Row& row : {Row{10, 40}, Row{200, 15}}) {
        const std::string suffix = std::to_string(row.records) + "-rows";
        const auto add = [&](const char* name, auto measure) {
            cases.push_back({name + suffix, row.rounds,
                             [measure, records = row.records](benchmark::State& state, Register& from) {
                                 measure(state, from, records);
                             }});
        };
        add("save/replace-in-", replaceJob);
        add("save/add-to-", addJob);
    }
    cases.push_back({"save-with-journal/update-person", 60,
                     [](benchmark::State& state, Register& from) {
                         const WorkFolder folder;
                         updatePerson(state, withJournal(from, folder));
                     },
                     Sizes::Smallest});
    cases.push_back({"save-with-journal/replace-in-10-rows", 30,
                     [](benchmark::State& state, Register& from) {
                         const WorkFolder folder;
                         replaceJob(state, withJournal(from, folder), 10);
                     },
                     Sizes::Smallest});
    return cases;
}

} // namespace quillmere::bench

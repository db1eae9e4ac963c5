#include "Comparison.h"
#include "QtCase.h"
#include "Require.h"
#include "StatementsOf.h"
#include "register/RegisterSearch.h"

// The reference host's search over all persons, to its end. It reports the first finds long before.

namespace quillmere::bench {

namespace {

host::Query queryOf(const char* text, const char* stage) {
    host::Query query;
    query.text = QString::fromUtf8(text);
    query.stage = QString::fromLatin1(stage);
    return query;
}

void search(benchmark::State& state, Stage& stage, const host::Query& query) {
    std::size_t found = 0;
    const auto run = [&] {
        found = 0;
        const bool ended = host::search(*stage.from.connection, query, [&](const host::SearchStep& step) {
            found += step.keys.size();
            return true;
        });
        require(ended, "the search broke off");
    };
    auto statements = statementsOf(*stage.from.connection, run);
    require(found > 0, "nothing was found");
    compare(state, *stage.from.engine, {.turns = {{run, std::move(statements)}}});
    state.counters["found"] = static_cast<double>(found);
}

} // namespace

std::vector<QtCase> searchCases() {
    struct Row {
        const char* name;
        host::Query query;
    };
    const Row rows[] = {
        {"search/by-name", queryOf("王", "")},
        {"search/by-initials", queryOf("wj", "")},
        {"search/by-stage", queryOf("", "02")},
    };
    std::vector<QtCase> cases;
    for (const Row& row : rows) {
        cases.push_back({row.name, 5,
                         [query = row.query](auto& state, auto& stage) { search(state, stage, query); },
                         true});
    }
    return cases;
}

} // namespace quillmere::bench

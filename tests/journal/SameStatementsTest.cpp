#include "JournalBench.h"

#include "faults/Deeds.h"

// Whatever a clerk does, the engine gets the same statements in the same order as without a journal, beside
// what the journal reads, and the same rows come of it.

namespace quillmere::journal {
namespace {

using test::Deed;
using test::Rehearsal;
using test::statementsOf;

bool isOfTheJournal(const std::string& statement) {
    return statement.starts_with("select * from ") && statement.ends_with(" limit 1001");
}

/// Of the deed, and of what came behind it.
Lines storyOf(const test::Seen& seen) {
    Lines all = seen.story;
    all.insert(all.end(), seen.rest.begin(), seen.rest.end());
    return all;
}

class SameStatements : public sqlite::SqliteFolder, public testing::WithParamInterface<Deed> {
protected:
    [[nodiscard]] Rehearsal::Around aJournal(Lines& asked) {
        return [this, &asked](std::shared_ptr<data::Connection> connection) {
            const auto kept = journaled(std::move(connection),
                                        {.file = path("journal"), .complain = [](const std::string& words) {
                                             ADD_FAILURE() << words;
                                         }});
            return std::make_shared<data::RecordingConnection>(
                kept, [&asked](std::string_view sql) { asked.emplace_back(sql); });
        };
    }
};

TEST_P(SameStatements, AreRunWithAJournal) {
    Lines story;
    Lines rows;
    {
        Rehearsal without(GetParam());
        EXPECT_FALSE(without.play());
        story = storyOf(without.seen);
        rows = without.seen.rowsAtTheEnd;
    }
    Lines asked;
    Rehearsal with(GetParam());
    with.around = aJournal(asked);
    EXPECT_FALSE(with.play());
    Lines ran = storyOf(with.seen);
    const std::size_t read = std::erase_if(ran, [](const std::string& line) {
        return line.starts_with("SQL ") && isOfTheJournal(line.substr(4));
    });
    EXPECT_EQ(ran, story);
    EXPECT_EQ(with.seen.rowsAtTheEnd, rows);
    EXPECT_GE(asked.size(), statementsOf(story).size());
    EXPECT_EQ(std::ranges::count_if(asked, isOfTheJournal), 0);

    const Journal journal = readJournal(path("journal"));
    std::size_t withRows = 0;
    Lines kept;
    for (const KeptEntry& entry : journal.entries) {
        kept.push_back(entry.entry.statement);
        withRows += entry.entry.kind == Kind::Insert ? 0U : 1U;
        EXPECT_TRUE(entry.outcome && !entry.outcome->failure) << entry.entry.statement;
    }
    // An entry for each statement that writes, in their order.
    Lines writing = statementsOf(story);
    std::erase_if(writing, [](const std::string& sql) {
        const auto statement = readWriting(sql);
        return !statement || statement->table == "S_GUID";
    });
    EXPECT_EQ(kept, writing);
    EXPECT_EQ(read, withRows);
    EXPECT_GT(kept.size(), 0U);
}

INSTANTIATE_TEST_SUITE_P(OfEveryDeed, SameStatements, testing::ValuesIn(test::deeds()),
                         [](const auto& each) { return std::string(each.param.name); });

} // namespace
} // namespace quillmere::journal

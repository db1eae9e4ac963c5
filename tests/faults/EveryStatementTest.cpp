#include "faults/Deeds.h"

#include <gtest/gtest.h>

// Every deed with the connection failing at each of its statements, one after the other.

namespace quillmere::test {

namespace {

bool changes(const std::string& statement) {
    return statement.find_first_not_of(' ') != statement.find("select");
}

Lines upTo(const Lines& lines, std::size_t count) {
    return {lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(count)};
}

class EveryStatement : public testing::TestWithParam<Deed> {
protected:
    void SetUp() override {
        Rehearsal whole(GetParam());
        ASSERT_FALSE(whole.play());
        story_ = whole.seen.story;
        statements_ = statementsOf(story_);
        ASSERT_FALSE(statements_.empty());
    }

    [[nodiscard]] std::size_t count() const { return statements_.size(); }
    [[nodiscard]] const std::string& statement(std::size_t k) const { return statements_[k - 1]; }

    /// The changes that the deed makes before its statement `k`.
    [[nodiscard]] Lines changesBefore(std::size_t k) const {
        Lines found;
        for (std::size_t i = 0; i + 1 < k; ++i)
            if (changes(statements_[i])) found.push_back(statements_[i]);
        return found;
    }

    /// The boxes that the whole deed shows before its statement `k`.
    [[nodiscard]] Lines boxesBefore(std::size_t k) const {
        Lines lines;
        std::size_t statements = 0;
        for (const std::string& line : story_) {
            if (line.starts_with("SQL ") && ++statements == k) break;
            lines.push_back(line);
        }
        return boxesOf(lines);
    }

    [[nodiscard]] Reaction reactionTo(std::size_t k) const {
        return GetParam().phases[phasesReached(k) - 1].reaction;
    }

    /// How many phases have begun at the statement `k`.
    [[nodiscard]] std::size_t phasesReached(std::size_t k) const {
        const auto& phases = GetParam().phases;
        std::size_t reached = 0;
        for (std::size_t i = 0; i < k; ++i) {
            while (reached < phases.size() && statements_[i].starts_with(phases[reached].from))
                ++reached;
        }
        return reached;
    }

    void failAt(std::size_t k) const {
        const Reaction reaction = reactionTo(k);
        const Played failed = fail(k);
        const Played expected = replay(k, reaction, failed);
        // Up to the one that failed all is as ever, and nothing ran behind it.
        EXPECT_EQ(statementsOf(failed.seen.story), upTo(statements_, k));
        Lines boxes = boxesBefore(k);
        if (!reaction.travels())
            boxes.push_back(std::string("[") + reaction.title + "] " + reaction.beginning + "断线");
        EXPECT_EQ(boxesOf(failed.seen.story), boxes);
        // What ran before it stays, to the row.
        EXPECT_EQ(failed.seen.behind.rows, expected.seen.before.rows);
        // The next action finds nothing but the register changed.
        EXPECT_EQ(failed.seen.rowsAtTheEnd, expected.seen.rowsAtTheEnd);
        EXPECT_EQ(failed.seen.opening, expected.seen.opening);
        if (reaction.travels())
            expectTravelled(failed);
        else
            expectTold(failed, expected);
    }

private:
    struct Played {
        Seen seen;
        std::optional<Error> failure;
        std::string id;
    };

    /// Fails at the statement `k`, and goes on with the next action: the same deed once more in the window
    /// that is still open, or else the window opened again.
    [[nodiscard]] Played fail(std::size_t k) const {
        Rehearsal rehearsal(GetParam());
        rehearsal.failAt = static_cast<int>(k);
        rehearsal.actsAgain = true;
        Played played;
        played.failure = rehearsal.play();
        played.id = frmPersonWh::defaultInstance().personID;
        if (reactionTo(k).travels()) {
            EXPECT_FALSE(rehearsal.reopen(played.id));
        }
        played.seen = rehearsal.seen;
        return played;
    }

    /// The same next action in a window that has met no failure, on the rows that the statements before `k`
    /// make.
    [[nodiscard]] Played replay(std::size_t k, Reaction reaction, const Played& failed) const {
        Rehearsal rehearsal(GetParam());
        rehearsal.beforehand = changesBefore(k);
        rehearsal.acts = !reaction.travels();
        Played played;
        played.failure = rehearsal.play();
        if (reaction.travels()) {
            EXPECT_FALSE(rehearsal.reopen(failed.id));
        }
        played.seen = rehearsal.seen;
        return played;
    }

    static void expectTravelled(const Played& failed) {
        ASSERT_TRUE(failed.failure);
        EXPECT_EQ(failed.failure->number(), static_cast<int>(Failure::StatementFailed));
        EXPECT_EQ(failed.failure->description(), "断线");
        EXPECT_EQ(failed.seen.behind.panel, "(none)");
        EXPECT_FALSE(frmPersonWh::defaultInstance().isLoaded());
    }

    static void expectTold(const Played& failed, const Played& expected) {
        EXPECT_FALSE(failed.failure);
        const Sight& before = failed.seen.before;
        const Sight& behind = failed.seen.behind;
        EXPECT_EQ(behind.panel, before.panel);
        EXPECT_EQ(behind.isChange, before.isChange);
        EXPECT_EQ(behind.isSaved, before.isSaved);
        EXPECT_EQ(behind.whState, before.whState);
        EXPECT_EQ(behind.texts, before.texts);
        if (behind.editorOpen) {
            EXPECT_EQ(behind.kept, behind.typed);
        } else {
            EXPECT_EQ(boxesOf(failed.seen.rest), boxesOf(expected.seen.story));
        }
    }

    Lines story_;
    Lines statements_;
};

INSTANTIATE_TEST_SUITE_P(Deeds, EveryStatement, testing::ValuesIn(deeds()),
                         [](const auto& deed) { return std::string(deed.param.name); });

TEST_P(EveryStatement, FailsAsItMustLeavesWhatRanBeforeAndLetsTheNextActionRun) {
    ASSERT_EQ(phasesReached(count()), GetParam().phases.size());
    for (std::size_t k = 1; k <= count(); ++k) {
        SCOPED_TRACE(statement(k));
        failAt(k);
        if (HasFailure()) break;
    }
}

} // namespace

} // namespace quillmere::test

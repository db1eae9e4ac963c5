#include "TwoClerksBench.h"

#include "../support/FailureNumber.h"
#include "adapters/sqlite/SqliteConnection.h"

// No lock is taken anywhere: what a save does that meets the renumbering of another, and why the key of a
// numbered set is checked at the end of a statement.

namespace quillmere::postgresql {
namespace {

class Renumbering : public TwoClerksBench {
protected:
    /// The first study on show, with another school.
    [[nodiscard]] ClerksWork changedStudy(const std::string& school) const {
        return {4, person, [=](frmPersonWh& window) {
                    open(window, "主要学习经历");
                    type(window, "A02_A0203_v", school);
                    press(window, "Save");
                }};
    }
};

TEST_F(Renumbering, ASaveRemovesTheRecordThatHasTakenItsNumberMeanwhile) {
    Clerk first(owner(), changedStudy("甲新"));
    first.workUntil("delete from A02");
    Clerk second(owner(), newStudy("199009", "丙"));
    second.finish();
    EXPECT_EQ(studies(), (Lines{"1|丙", "2|甲", "3|乙"}));
    first.finish();
    // The new study has become number 1, under which the other clerk had opened another: that one now
    // stands there twice, and the new one is gone. Nobody is told, and no key can tell.
    EXPECT_EQ(first.boxes(), noBox);
    EXPECT_EQ(linesOf("select A0203 from A02 order by A0203"), (Lines{"甲", "甲新", "乙"}));
}

TEST_F(Renumbering, ARecordThatIsOpenedWhileNumbersAreRaisedIsStoredTwice) {
    Clerk first(owner(), changedStudy("甲新"));
    first.workUntil("update A02 set A0299 = 1");
    Clerk second(owner(), changedStudy("甲又"));
    second.workUntil("delete from A02");
    first.finish();
    second.finish();
    EXPECT_EQ(second.boxes(), noBox);
    EXPECT_EQ(linesOf("select A0203 from A02 order by A0203"), (Lines{"甲新", "甲又", "乙"}));
}

TEST_F(Renumbering, TwoRenumberingsAtOnceEndInOneOrder) {
    Clerk first(owner(), newStudy("200609", "丙"));
    first.workUntil("update A02 set A0299 = 2");
    Clerk second(owner(), newStudy("200709", "丁"));
    second.finish();
    first.finish();
    EXPECT_EQ(first.boxes(), noBox);
    EXPECT_EQ(second.boxes(), noBox);
    EXPECT_EQ(studies(), (Lines{"1|甲", "2|乙", "3|丙", "4|丁"}));
}

/// What a renumbering leaves that broke off behind its first record, and the statement that begins the next.
constexpr const char* halfDone[] = {"delete from A02", "insert into A02 (A00,A0299) values ('x',1)",
                                    "insert into A02 (A00,A0299) values ('x',201)"};
constexpr auto raising = "update A02 set A0299 = A0299 +200 where a00='x'";

void renumberHalfDone(data::Connection& connection) {
    for (const char* statement : halfDone)
        connection.execute(statement);
    connection.execute(raising);
}

TEST_F(Renumbering, TheKeyLetsABrokenRenumberingBeMadeGood) {
    renumberHalfDone(*connection);
    EXPECT_EQ(linesOf("select A0299 from A02 order by A0299"), (Lines{"201", "401"}));
}

TEST_F(Renumbering, AKeyThatIsCheckedRowByRowWouldNot) {
    connection->execute("alter table A02 drop constraint UX_A02_A00");
    connection->execute("create unique index UX_A02 on A02 (A00,A0299)");
    EXPECT_EQ(failureOf([&] { renumberHalfDone(*connection); }), number(Failure::ConstraintFailed));

    const auto sqlite = sqlite::openInMemory();
    sample::build(*sqlite, {.people = false});
    renumberHalfDone(*sqlite);
    sqlite->execute("delete from A02");
    sqlite->execute("create unique index UX_A02 on A02 (A00,A0299)");
    EXPECT_EQ(failureOf([&] { renumberHalfDone(*sqlite); }), number(Failure::ConstraintFailed));
}

} // namespace
} // namespace quillmere::postgresql

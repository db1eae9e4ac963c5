#include "platform/data/ObservedConnections.h"
#include "../support/FailureNumber.h"
#include "FakeConnection.h"
#include "platform/data/UnopenedConnection.h"

#include <gtest/gtest.h>

namespace quillmere::data {
namespace {

using Texts = std::vector<std::string>;

RowSet oneCell() {
    RowSet rows({"n"});
    rows.addRow({7});
    return rows;
}

class ObservedConnections : public testing::Test {
protected:
    std::shared_ptr<FakeConnection> target = std::make_shared<FakeConnection>(oneCell());
};

using Recording = ObservedConnections;
using Failing = ObservedConnections;

TEST_F(Recording, PassesStatementsAndRowsOn) {
    RecordingConnection recording(target);
    EXPECT_EQ(recording.query("select 7").at(0, 0), Value(7));
    recording.execute("delete from t");
    EXPECT_EQ(target->queries, Texts{"select 7"});
    EXPECT_EQ(target->executed, Texts{"delete from t"});
}

TEST_F(Recording, KeepsTheTextsInTheirOrder) {
    RecordingConnection recording(target);
    (void)recording.query("a");
    recording.execute("b");
    (void)recording.query("c");
    EXPECT_EQ(recording.statements(), (Texts{"a", "b", "c"}));
    recording.clear();
    EXPECT_TRUE(recording.statements().empty());
}

TEST_F(Recording, TheListenerHearsAStatementBeforeItRuns) {
    std::vector<std::size_t> ranBefore;
    RecordingConnection recording(target,
                                  [&](std::string_view) { ranBefore.push_back(target->queries.size()); });
    (void)recording.query("a");
    (void)recording.query("b");
    EXPECT_EQ(ranBefore, (std::vector<std::size_t>{0, 1}));
}

TEST_F(Recording, TheListenerHearsWhatIsNotKept) {
    Texts heard;
    RecordingConnection recording(target, [&](std::string_view sql) { heard.emplace_back(sql); });
    recording.keepStatements(false);
    recording.execute("a");
    recording.keepStatements(true);
    recording.execute("b");
    EXPECT_EQ(recording.statements(), Texts{"b"});
    EXPECT_EQ(heard, (Texts{"a", "b"}));
}

TEST_F(Recording, AFailingStatementIsRecordedToo) {
    RecordingConnection recording(std::make_shared<UnopenedConnection>());
    EXPECT_EQ(failureOf([&] { recording.execute("a"); }), number(Failure::InvalidConnection));
    EXPECT_EQ(recording.statements(), Texts{"a"});
}

TEST_F(Recording, IsOpenAndCloseAreTheTargets) {
    RecordingConnection recording(target);
    EXPECT_TRUE(recording.isOpen());
    recording.close();
    EXPECT_FALSE(recording.isOpen());
    EXPECT_FALSE(target->isOpen());
}

TEST_F(Failing, PassesEverythingOnAtFirst) {
    FailingConnection failing(target);
    EXPECT_EQ(failing.query("a").at(0, 0), Value(7));
    failing.execute("b");
    EXPECT_EQ(target->queries, Texts{"a"});
    EXPECT_EQ(target->executed, Texts{"b"});
}

TEST_F(Failing, TheCountedStatementFailsOnceWithoutRunning) {
    FailingConnection failing(target);
    failing.failAfter(2, "盘满");
    failing.execute("a");
    EXPECT_EQ(failureOf([&] { (void)failing.query("b"); }), number(Failure::StatementFailed));
    failing.execute("c");
    EXPECT_EQ(target->executed, (Texts{"a", "c"}));
    EXPECT_TRUE(target->queries.empty());
}

TEST_F(Failing, OneMeansTheVeryNext) {
    FailingConnection failing(target);
    failing.failAfter(1, "x");
    EXPECT_EQ(failureOf([&] { failing.execute("a"); }), number(Failure::StatementFailed));
}

TEST_F(Failing, ZeroMeansNone) {
    FailingConnection failing(target);
    failing.failAfter(0, "x");
    failing.execute("a");
    EXPECT_EQ(target->executed, Texts{"a"});
}

TEST_F(Failing, TheFailureBearsTheGivenDescription) {
    FailingConnection failing(target);
    failing.failAfter(1, "盘满");
    try {
        failing.execute("a");
        FAIL() << "nothing was raised";
    } catch (const Error& error) {
        EXPECT_EQ(error.description(), "盘满");
    }
}

TEST_F(Failing, AStatementIsChosenByAPartOfItsText) {
    FailingConnection failing(target);
    failing.failOn("P01 (A00", "x");
    failing.execute("insert into p01 (a00) values('')"); // another case: not chosen
    EXPECT_EQ(failureOf([&] { failing.execute("insert into P01 (A00) values('')"); }),
              number(Failure::StatementFailed));
    failing.execute("insert into P01 (A00) values('')");
    EXPECT_EQ(target->executed.size(), 2U);
}

TEST_F(Failing, ANewChoiceReplacesTheOldOne) {
    FailingConnection failing(target);
    failing.failAfter(1, "x");
    failing.failOn("b", "y");
    failing.execute("a");
    failing.failOn("c", "x");
    failing.failAfter(2, "y");
    failing.execute("c");
    EXPECT_EQ(target->executed, (Texts{"a", "c"}));
}

TEST_F(Failing, CanBeTurnedOff) {
    FailingConnection failing(target);
    failing.failAfter(1, "x");
    failing.failOff();
    failing.execute("a");
    failing.failOn("b", "x");
    failing.failOff();
    failing.execute("b");
    EXPECT_EQ(target->executed, (Texts{"a", "b"}));
}

TEST_F(Failing, IsOpenAndCloseAreTheTargets) {
    FailingConnection failing(target);
    EXPECT_TRUE(failing.isOpen());
    failing.close();
    EXPECT_FALSE(failing.isOpen());
    EXPECT_FALSE(target->isOpen());
}

TEST(UnopenedConnection, RaisesInvalidConnectionOnEveryStatement) {
    UnopenedConnection connection;
    EXPECT_FALSE(connection.isOpen());
    EXPECT_EQ(failureOf([&] { (void)connection.query("select 1"); }), number(Failure::InvalidConnection));
    EXPECT_EQ(failureOf([&] { connection.execute("select 1"); }), number(Failure::InvalidConnection));
}

TEST(UnopenedConnection, ClosingItIsHarmless) {
    UnopenedConnection connection;
    EXPECT_NO_THROW(connection.close());
    EXPECT_FALSE(connection.isOpen());
}

} // namespace
} // namespace quillmere::data

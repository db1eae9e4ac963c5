#include "RecordsetBench.h"

#include "platform/data/UnopenedConnection.h"

#include "../support/FailureNumber.h"

namespace quillmere::data {
namespace {

using RecordsetTest = RecordsetBench;

// ---- opening and closing

TEST_F(RecordsetTest, OpensOnTheFirstRow) {
    EXPECT_EQ(records->State(), 1);
    EXPECT_EQ(records->RecordCount(), 3);
    EXPECT_EQ(records->AbsolutePosition(), 1);
    EXPECT_FALSE(records->BOF());
    EXPECT_FALSE(records->EOF_());
    EXPECT_EQ(item(), "f1");
}

TEST_F(RecordsetTest, HandsTheStatementToTheConnection) {
    FakeConnection connection;
    records->open("select * from ZZStyle", connection);
    EXPECT_EQ(connection.queries, Texts{"select * from ZZStyle"});
}

TEST_F(RecordsetTest, OpeningRaisesNoMoveEventAndTellsTheView) {
    Recordset fresh;
    fresh.onWillMove([this](MoveStatus&) { log.emplace_back("will"); });
    fresh.onMoveComplete([this] { log.emplace_back("complete"); });
    fresh.onViewChange([this] { log.emplace_back("view"); });
    FakeConnection connection(rowsOf({"a"}));
    fresh.open("select", connection);
    EXPECT_EQ(log, Texts{"view"});
}

TEST_F(RecordsetTest, WithoutRowsItStandsOnBothEnds) {
    open({});
    EXPECT_TRUE(records->BOF());
    EXPECT_TRUE(records->EOF_());
    EXPECT_EQ(records->RecordCount(), 0);
    EXPECT_EQ(records->AbsolutePosition(), -1);
}

TEST_F(RecordsetTest, AFailingStatementLeavesItClosed) {
    UnopenedConnection connection;
    EXPECT_EQ(failureOf([&] { records->open("select", connection); }), number(Failure::InvalidConnection));
    EXPECT_EQ(records->State(), 0);
}

TEST_F(RecordsetTest, OpeningAgainShowsTheNewRows) {
    records->MoveLast();
    open({"x"});
    EXPECT_EQ(records->RecordCount(), 1);
    EXPECT_EQ(records->AbsolutePosition(), 1);
}

TEST_F(RecordsetTest, ClosingTellsTheView) {
    logEvents();
    records->close();
    EXPECT_EQ(records->State(), 0);
    EXPECT_EQ(log, Texts{"view"});
}

TEST_F(RecordsetTest, EveryOperationOnAClosedOneRaisesObjectClosed) {
    records->close();
    const std::vector<std::function<void()>> operations{
        [&] { records->close(); },
        [&] { (void)records->BOF(); },
        [&] { (void)records->EOF_(); },
        [&] { (void)records->RecordCount(); },
        [&] { (void)records->AbsolutePosition(); },
        [&] { records->MoveFirst(); },
        [&] { records->MoveLast(); },
        [&] { records->MoveNext(); },
        [&] { records->MovePrevious(); },
        [&] { records->setAbsolutePosition(1); },
        [&] { records->setFilter(""); },
        [&] { (void)records->Fields("ItemName"); },
        [&] { (void)records->Fields(0); },
        [&] { (void)records->rows(); },
        [&] { (void)records->visibleRows(); },
    };
    for (std::size_t i = 0; i < operations.size(); ++i)
        EXPECT_EQ(failureOf(operations[i]), number(Failure::ObjectClosed)) << "operation " << i;
}

// ---- moves

TEST_F(RecordsetTest, MovesToEveryRow) {
    records->MoveNext();
    EXPECT_EQ(item(), "f2");
    records->MoveLast();
    EXPECT_EQ(item(), "f3");
    records->MovePrevious();
    EXPECT_EQ(item(), "f2");
    records->MoveFirst();
    EXPECT_EQ(item(), "f1");
    records->setAbsolutePosition(3);
    EXPECT_EQ(item(), "f3");
}

TEST_F(RecordsetTest, MovingPastTheLastRowStandsOnEof) {
    records->MoveLast();
    records->MoveNext();
    EXPECT_TRUE(records->EOF_());
    EXPECT_FALSE(records->BOF());
    EXPECT_EQ(records->AbsolutePosition(), -3);
    EXPECT_EQ(failureOf([&] { records->MoveNext(); }), number(Failure::NoCurrentRecord));
    records->MovePrevious();
    EXPECT_EQ(item(), "f3");
}

TEST_F(RecordsetTest, MovingBeforeTheFirstRowStandsOnBof) {
    records->MovePrevious();
    EXPECT_TRUE(records->BOF());
    EXPECT_FALSE(records->EOF_());
    EXPECT_EQ(records->AbsolutePosition(), -2);
    EXPECT_EQ(failureOf([&] { records->MovePrevious(); }), number(Failure::NoCurrentRecord));
    records->MoveNext();
    EXPECT_EQ(item(), "f1");
}

TEST_F(RecordsetTest, NoMoveIsPossibleWithoutRows) {
    open({});
    logEvents();
    EXPECT_EQ(failureOf([&] { records->MoveFirst(); }), number(Failure::NoCurrentRecord));
    EXPECT_EQ(failureOf([&] { records->MoveLast(); }), number(Failure::NoCurrentRecord));
    EXPECT_EQ(failureOf([&] { records->MoveNext(); }), number(Failure::NoCurrentRecord));
    EXPECT_EQ(failureOf([&] { records->MovePrevious(); }), number(Failure::NoCurrentRecord));
    EXPECT_TRUE(log.empty());
}

TEST_F(RecordsetTest, APositionOutsideTheRowsRaisesBadArguments) {
    logEvents();
    for (const int position : {-1, 0, 4})
        EXPECT_EQ(failureOf([&] { records->setAbsolutePosition(position); }), number(Failure::BadArguments));
    EXPECT_EQ(position(), "1");
    EXPECT_TRUE(log.empty());
}

TEST_F(RecordsetTest, AMoveRaisesItsEventsAroundTheChange) {
    logEvents();
    records->MoveNext();
    EXPECT_EQ(log, (Texts{"will from 1", "complete at 2", "view"}));
}

TEST_F(RecordsetTest, AMoveToTheSameRowRaisesTheEventsToo) {
    logEvents();
    records->MoveFirst();
    EXPECT_EQ(log, (Texts{"will from 1", "complete at 1", "view"}));
}

TEST_F(RecordsetTest, ACancelledMoveChangesNothing) {
    logEvents();
    cancelMoves();
    records->MoveLast();
    records->MoveNext();
    records->setFilter("codetable<>''");
    EXPECT_EQ(position(), "1");
    EXPECT_EQ(records->RecordCount(), 3);
    EXPECT_TRUE(log.empty());
}

// ---- fields

TEST_F(RecordsetTest, FieldsAreReadByNameWithoutRegardToCaseAndByPosition) {
    records->MoveLast();
    EXPECT_EQ(records->Fields("CODETABLE"), Value("GB2"));
    EXPECT_EQ(records->Fields(0), Value("f3"));
}

TEST_F(RecordsetTest, AnUnknownFieldRaisesItemNotFound) {
    EXPECT_EQ(failureOf([&] { (void)records->Fields("nothing"); }), number(Failure::ItemNotFound));
    EXPECT_EQ(failureOf([&] { (void)records->Fields(3); }), number(Failure::ItemNotFound));
}

TEST_F(RecordsetTest, AFieldAtAnEndRaisesNoCurrentRecord) {
    records->MovePrevious();
    EXPECT_EQ(failureOf([&] { (void)records->Fields("ItemName"); }), number(Failure::NoCurrentRecord));
    records->MoveLast();
    records->MoveNext();
    EXPECT_EQ(failureOf([&] { (void)records->Fields(0); }), number(Failure::NoCurrentRecord));
    open({});
    EXPECT_EQ(failureOf([&] { (void)records->Fields("ItemName"); }), number(Failure::NoCurrentRecord));
}

} // namespace
} // namespace quillmere::data

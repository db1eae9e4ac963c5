#include "platform/data/Recordset.h"
#include "../support/FailureNumber.h"
#include "FakeConnection.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace quillmere::data {
namespace {

using Texts = std::vector<std::string>;

RowSet rowsOf(const Texts& codeTables) {
    RowSet rows({"ItemName", "codetable", "width"});
    for (std::size_t i = 0; i < codeTables.size(); ++i)
        rows.addRow({"f" + std::to_string(i + 1), codeTables[i], static_cast<int>(i)});
    return rows;
}

/// A recordset of three rows, the second one without a code table, and a log of its events.
class RecordsetTest : public testing::Test {
protected:
    RecordsetTest() { open({"GB1", "", "GB2"}); }

    void open(const Texts& codeTables) {
        FakeConnection connection(rowsOf(codeTables));
        records->open("select", connection);
    }

    void logEvents() {
        records->onWillMove([this](MoveStatus&) { log.push_back("will from " + position()); });
        records->onMoveComplete([this] { log.push_back("complete at " + position()); });
        records->onViewChange([this] { log.emplace_back("view"); });
    }

    void cancelMoves() {
        records->onWillMove([](MoveStatus& status) { status = MoveStatus::Cancel; });
    }

    [[nodiscard]] std::string position() const {
        return records->State() == 0 ? "closed" : std::to_string(records->AbsolutePosition());
    }

    [[nodiscard]] std::string item() const { return records->Fields("ItemName").toText(); }

    std::unique_ptr<Recordset> records = std::make_unique<Recordset>();
    Texts log;
};

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

// ---- the filter

TEST_F(RecordsetTest, AFilterShowsTheRowsWithAValue) {
    records->MoveLast();
    records->setFilter("codetable<>''");
    EXPECT_EQ(records->RecordCount(), 2);
    EXPECT_EQ(item(), "f1");
    records->MoveNext();
    EXPECT_EQ(item(), "f3");
    EXPECT_EQ(records->AbsolutePosition(), 2);
    records->MoveNext();
    EXPECT_TRUE(records->EOF_());
}

TEST_F(RecordsetTest, AFilterShowsTheRowsWithoutAValue) {
    records->setFilter("CodeTable =''");
    EXPECT_EQ(records->visibleRows(), std::vector<std::size_t>{1});
    EXPECT_EQ(item(), "f2");
}

TEST_F(RecordsetTest, TheEmptyTextRemovesTheFilter) {
    records->setFilter("codetable=''");
    records->setFilter("");
    EXPECT_EQ(records->RecordCount(), 3);
    EXPECT_EQ(item(), "f1");
}

TEST_F(RecordsetTest, AFilterIsAppliedToAllRowsAndNotToThoseShown) {
    records->setFilter("codetable=''");
    records->setFilter("codetable<>''");
    EXPECT_EQ(records->visibleRows(), (std::vector<std::size_t>{0, 2}));
}

TEST_F(RecordsetTest, AFilterThatNoRowPassesStandsOnBothEnds) {
    open({"a", "b"});
    records->setFilter("codetable=''");
    EXPECT_EQ(records->AbsolutePosition(), -1);
    EXPECT_TRUE(records->BOF());
    EXPECT_TRUE(records->EOF_());
    EXPECT_EQ(records->rows().rowCount(), 2U);
}

TEST_F(RecordsetTest, ANullPassesNeitherFilter) {
    RowSet rows({"codetable"});
    rows.addRow({Null{}});
    FakeConnection connection(rows);
    records->open("select", connection);
    records->setFilter("codetable=''");
    EXPECT_EQ(records->RecordCount(), 0);
    records->setFilter("codetable<>''");
    EXPECT_EQ(records->RecordCount(), 0);
}

TEST_F(RecordsetTest, ANumberIsAValue) {
    records->setFilter("width<>''");
    EXPECT_EQ(records->RecordCount(), 3);
}

TEST_F(RecordsetTest, AnyOtherFilterRaisesBadArgumentsAndChangesNothing) {
    logEvents();
    for (const char* filter : {"codetable", "codetable>''", "codetable='a'", "nothing=''", "=''", "''", " "})
        EXPECT_EQ(failureOf([&] { records->setFilter(filter); }), number(Failure::BadArguments)) << filter;
    EXPECT_EQ(records->RecordCount(), 3);
    EXPECT_TRUE(log.empty());
}

TEST_F(RecordsetTest, AFilterRaisesTheMoveEvents) {
    logEvents();
    records->setFilter("codetable=''");
    EXPECT_EQ(log, (Texts{"will from 1", "complete at 1", "view"}));
}

// ---- handlers that act on the recordset

TEST_F(RecordsetTest, AHandlerMayCloseItBeforeTheMove) {
    logEvents();
    records->onWillMove([this](MoveStatus&) { records->close(); });
    records->MoveNext();
    EXPECT_EQ(records->State(), 0);
    EXPECT_EQ(log, Texts{"view"});
}

TEST_F(RecordsetTest, AHandlerMayCloseItAfterTheMove) {
    logEvents();
    records->onMoveComplete([this] { records->close(); });
    records->MoveNext();
    EXPECT_EQ(records->State(), 0);
    EXPECT_EQ(log, (Texts{"will from 1", "view"}));
}

TEST_F(RecordsetTest, AMoveFromWillMoveReplacesTheMove) {
    logEvents();
    bool nested = false;
    records->onWillMove([this, &nested](MoveStatus&) {
        if (nested) return;
        nested = true;
        records->MoveLast();
    });
    records->MoveNext();
    EXPECT_EQ(position(), "3");
    EXPECT_EQ(log, (Texts{"complete at 3", "view"}));
}

TEST_F(RecordsetTest, ACancelledMoveFromWillMoveLetsTheMoveGoOn) {
    bool nested = false;
    records->onWillMove([this, &nested](MoveStatus& status) {
        if (nested) {
            status = MoveStatus::Cancel;
            return;
        }
        nested = true;
        records->MoveLast();
    });
    records->MoveNext();
    EXPECT_EQ(position(), "2");
}

TEST_F(RecordsetTest, AMoveFromMoveCompleteFollowsTheMove) {
    logEvents();
    records->onMoveComplete([this] {
        log.push_back("complete at " + position());
        if (position() != "3") records->MoveNext();
    });
    records->MoveFirst();
    EXPECT_EQ(position(), "3");
    // The view is told once, of the row where the moves ended.
    EXPECT_EQ(log, (Texts{"will from 1", "complete at 1", "will from 1", "complete at 2", "will from 2",
                          "complete at 3", "view"}));
}

TEST_F(RecordsetTest, AFilterFromWillMoveReplacesTheMove) {
    bool nested = false;
    records->onWillMove([this, &nested](MoveStatus&) {
        if (nested) return;
        nested = true;
        records->setFilter("codetable=''");
    });
    records->MoveLast();
    EXPECT_EQ(records->RecordCount(), 1);
    EXPECT_EQ(item(), "f2");
}

TEST_F(RecordsetTest, OpeningFromAHandlerReplacesTheMove) {
    records->onWillMove([this](MoveStatus&) { open({"only"}); });
    records->MoveLast();
    EXPECT_EQ(records->RecordCount(), 1);
    EXPECT_EQ(position(), "1");
}

TEST_F(RecordsetTest, WillMoveMayDestroyIt) {
    records->onWillMove([this](MoveStatus&) { records.reset(); });
    records->MoveNext();
    EXPECT_EQ(records, nullptr);
}

TEST_F(RecordsetTest, MoveCompleteMayDestroyIt) {
    logEvents();
    records->onMoveComplete([this] {
        records.reset();
        log.emplace_back("destroyed");
    });
    records->MoveNext();
    EXPECT_EQ(log, (Texts{"will from 1", "destroyed"}));
}

TEST_F(RecordsetTest, TheViewMayDestroyIt) {
    records->onViewChange([this] {
        records.reset();
        log.emplace_back("destroyed");
    });
    records->MoveNext();
    EXPECT_EQ(log, Texts{"destroyed"});
}

TEST_F(RecordsetTest, AHandlerMayReplaceItself) {
    records->onMoveComplete([this] {
        log.emplace_back("first");
        records->onMoveComplete([this] { log.emplace_back("second"); });
    });
    records->MoveNext();
    records->MoveNext();
    EXPECT_EQ(log, (Texts{"first", "second"}));
}

TEST_F(RecordsetTest, AFailureInWillMoveStopsTheMove) {
    records->onWillMove([](MoveStatus&) { throw std::runtime_error("x"); });
    EXPECT_THROW(records->MoveNext(), std::runtime_error);
    EXPECT_EQ(position(), "1");
}

TEST_F(RecordsetTest, AFailureInMoveCompleteLeavesTheViewOnTheNewRow) {
    logEvents();
    records->onMoveComplete([] { throw std::runtime_error("x"); });
    EXPECT_THROW(records->MoveNext(), std::runtime_error);
    EXPECT_EQ(position(), "2");
    EXPECT_EQ(log, (Texts{"will from 1", "view"}));
}

} // namespace
} // namespace quillmere::data

#include "RecordsetBench.h"

#include <stdexcept>

namespace quillmere::data {
namespace {

using RecordsetHandlerTest = RecordsetBench;

TEST_F(RecordsetHandlerTest, AHandlerMayCloseItBeforeTheMove) {
    logEvents();
    records->onWillMove([this](MoveStatus&) { records->close(); });
    records->MoveNext();
    EXPECT_EQ(records->State(), 0);
    EXPECT_EQ(log, Texts{"view"});
}

TEST_F(RecordsetHandlerTest, AHandlerMayCloseItAfterTheMove) {
    logEvents();
    records->onMoveComplete([this] { records->close(); });
    records->MoveNext();
    EXPECT_EQ(records->State(), 0);
    EXPECT_EQ(log, (Texts{"will from 1", "view"}));
}

TEST_F(RecordsetHandlerTest, AMoveFromWillMoveReplacesTheMove) {
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

TEST_F(RecordsetHandlerTest, ACancelledMoveFromWillMoveLetsTheMoveGoOn) {
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

TEST_F(RecordsetHandlerTest, AMoveFromMoveCompleteFollowsTheMove) {
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

TEST_F(RecordsetHandlerTest, AFilterFromWillMoveReplacesTheMove) {
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

TEST_F(RecordsetHandlerTest, OpeningFromAHandlerReplacesTheMove) {
    records->onWillMove([this](MoveStatus&) { open({"only"}); });
    records->MoveLast();
    EXPECT_EQ(records->RecordCount(), 1);
    EXPECT_EQ(position(), "1");
}

TEST_F(RecordsetHandlerTest, WillMoveMayDestroyIt) {
    records->onWillMove([this](MoveStatus&) { records.reset(); });
    records->MoveNext();
    EXPECT_EQ(records, nullptr);
}

TEST_F(RecordsetHandlerTest, MoveCompleteMayDestroyIt) {
    logEvents();
    records->onMoveComplete([this] {
        records.reset();
        log.emplace_back("destroyed");
    });
    records->MoveNext();
    EXPECT_EQ(log, (Texts{"will from 1", "destroyed"}));
}

TEST_F(RecordsetHandlerTest, TheViewMayDestroyIt) {
    records->onViewChange([this] {
        records.reset();
        log.emplace_back("destroyed");
    });
    records->MoveNext();
    EXPECT_EQ(log, Texts{"destroyed"});
}

TEST_F(RecordsetHandlerTest, AHandlerMayReplaceItself) {
    records->onMoveComplete([this] {
        log.emplace_back("first");
        records->onMoveComplete([this] { log.emplace_back("second"); });
    });
    records->MoveNext();
    records->MoveNext();
    EXPECT_EQ(log, (Texts{"first", "second"}));
}

TEST_F(RecordsetHandlerTest, AFailureInWillMoveStopsTheMove) {
    records->onWillMove([](MoveStatus&) { throw std::runtime_error("x"); });
    EXPECT_THROW(records->MoveNext(), std::runtime_error);
    EXPECT_EQ(position(), "1");
}

TEST_F(RecordsetHandlerTest, AFailureInMoveCompleteLeavesTheViewOnTheNewRow) {
    logEvents();
    records->onMoveComplete([] { throw std::runtime_error("x"); });
    EXPECT_THROW(records->MoveNext(), std::runtime_error);
    EXPECT_EQ(position(), "2");
    EXPECT_EQ(log, (Texts{"will from 1", "view"}));
}

} // namespace
} // namespace quillmere::data

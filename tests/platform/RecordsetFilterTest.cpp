#include "RecordsetBench.h"

#include "../support/FailureNumber.h"

namespace quillmere::data {
namespace {

using RecordsetFilterTest = RecordsetBench;

TEST_F(RecordsetFilterTest, AFilterShowsTheRowsWithAValue) {
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

TEST_F(RecordsetFilterTest, AFilterShowsTheRowsWithoutAValue) {
    records->setFilter("CodeTable =''");
    EXPECT_EQ(records->visibleRows(), std::vector<std::size_t>{1});
    EXPECT_EQ(item(), "f2");
}

TEST_F(RecordsetFilterTest, TheEmptyTextRemovesTheFilter) {
    records->setFilter("codetable=''");
    records->setFilter("");
    EXPECT_EQ(records->RecordCount(), 3);
    EXPECT_EQ(item(), "f1");
}

TEST_F(RecordsetFilterTest, AFilterIsAppliedToAllRowsAndNotToThoseShown) {
    records->setFilter("codetable=''");
    records->setFilter("codetable<>''");
    EXPECT_EQ(records->visibleRows(), (std::vector<std::size_t>{0, 2}));
}

TEST_F(RecordsetFilterTest, AFilterThatNoRowPassesStandsOnBothEnds) {
    open({"a", "b"});
    records->setFilter("codetable=''");
    EXPECT_EQ(records->AbsolutePosition(), -1);
    EXPECT_TRUE(records->BOF());
    EXPECT_TRUE(records->EOF_());
    EXPECT_EQ(records->rows().rowCount(), 2U);
}

TEST_F(RecordsetFilterTest, ANullPassesNeitherFilter) {
    RowSet rows({"codetable"});
    rows.addRow({Null{}});
    FakeConnection connection(rows);
    records->open("select", connection);
    records->setFilter("codetable=''");
    EXPECT_EQ(records->RecordCount(), 0);
    records->setFilter("codetable<>''");
    EXPECT_EQ(records->RecordCount(), 0);
}

TEST_F(RecordsetFilterTest, ANumberIsAValue) {
    records->setFilter("width<>''");
    EXPECT_EQ(records->RecordCount(), 3);
}

TEST_F(RecordsetFilterTest, AnyOtherFilterRaisesBadArgumentsAndChangesNothing) {
    logEvents();
    for (const char* filter : {"codetable", "codetable>''", "codetable='a'", "nothing=''", "=''", "''", " "})
        EXPECT_EQ(failureOf([&] { records->setFilter(filter); }), number(Failure::BadArguments)) << filter;
    EXPECT_EQ(records->RecordCount(), 3);
    EXPECT_TRUE(log.empty());
}

TEST_F(RecordsetFilterTest, AFilterRaisesTheMoveEvents) {
    logEvents();
    records->setFilter("codetable=''");
    EXPECT_EQ(log, (Texts{"will from 1", "complete at 1", "view"}));
}

} // namespace
} // namespace quillmere::data

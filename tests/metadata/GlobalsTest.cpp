#include "metadata/Globals.h"

#include "metadata/Catalogue.h"
#include "platform/data/Connection.h"
#include "support/FailureNumber.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

TEST(GlobalsTest, WithoutAPublishedConnectionAnUnopenedOneIsMadeAndKept) {
    publishConnection(nullptr);
    data::Connection& connection = gConn();
    EXPECT_FALSE(connection.isOpen());
    EXPECT_EQ(&gConn(), &connection);
    EXPECT_EQ(failureOf([] { (void)GetIsMult("A01"); }), number(Failure::InvalidConnection));
}

TEST(GlobalsTest, ThePublishedConnectionIsTheOneInUse) {
    test::TestDatabase db;
    EXPECT_EQ(&gConn(), db.connection().get());
    EXPECT_TRUE(gConn().isOpen());
}

TEST(GlobalsTest, PublishingAnotherConnectionReplacesTheFirst) {
    test::TestDatabase first;
    test::TestDatabase second;
    EXPECT_EQ(&gConn(), second.connection().get());
    publishConnection(first.connection());
    EXPECT_EQ(&gConn(), first.connection().get());
}

TEST(GlobalsTest, TheHostKeepsItsConnectionOpen) {
    test::TestDatabase db;
    publishConnection(nullptr);
    EXPECT_TRUE(db.connection()->isOpen());
}

} // namespace
} // namespace quillmere

#include "TestServer.h"

namespace quillmere::postgresql {
namespace {

using Server = PostgreSqlBench;

// Without a server the tests of the contract are not even made; this one tells why.
TEST_F(Server, Answers) { EXPECT_EQ(connection->query("select 1").at(0, 0), data::Value(1)); }

} // namespace
} // namespace quillmere::postgresql

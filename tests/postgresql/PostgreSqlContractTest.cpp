#include "../engine/EngineContract.h"
#include "TestServer.h"

namespace quillmere::postgresql {
namespace {

class PostgreSqlServer final : public data::EngineUnderTest {
public:
    std::shared_ptr<data::Connection> openFresh() override { return schema_.connect(); }
    [[nodiscard]] data::ColumnTypes types() const override {
        return {
            .text = "text collate jet_ci",
            .longText = "text collate jet_ci",
            .integer = "integer",
            .real = "float8",
            .boolean = "boolean",
            .identity = "text not null default new_guid()",
        };
    }

private:
    FreshSchema schema_;
};

/// None without a server; `TestServerTest` then tells why.
std::vector<data::Engine> engines() {
    if (!TestServer::isThere()) return {};
    return {data::Engine{"PostgreSql", [] { return std::make_unique<PostgreSqlServer>(); }}};
}

} // namespace
} // namespace quillmere::postgresql

namespace quillmere::data {

INSTANTIATE_TEST_SUITE_P(PostgreSql, EngineContract, testing::ValuesIn(postgresql::engines()));
INSTANTIATE_TEST_SUITE_P(PostgreSql, EngineDialect, testing::ValuesIn(postgresql::engines()));

} // namespace quillmere::data

#include "EngineContract.h"
#include "SqliteTypes.h"
#include "adapters/sqlite/SqliteConnection.h"

namespace quillmere::sqlite {
namespace {

class SqliteInMemory final : public data::EngineUnderTest {
public:
    std::shared_ptr<data::Connection> openFresh() override { return openInMemory(); }
    [[nodiscard]] data::ColumnTypes types() const override { return columnTypes(); }
};

const data::Engine inMemory{"Sqlite", [] { return std::make_unique<SqliteInMemory>(); }};

} // namespace
} // namespace quillmere::sqlite

namespace quillmere::data {

INSTANTIATE_TEST_SUITE_P(Sqlite, EngineContract, testing::Values(sqlite::inMemory));
INSTANTIATE_TEST_SUITE_P(Sqlite, EngineDialect, testing::Values(sqlite::inMemory));

} // namespace quillmere::data

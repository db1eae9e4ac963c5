#include "scenario/Engine.h"

#include "address/RegisterAddress.h"
#include "scenario/Stop.h"
#ifdef QUILLMERE_WITH_POSTGRESQL
#include "scenario/postgresql/PostgreSqlEngine.h"
#endif

#include "adapters/sqlite/SqliteConnection.h"

namespace quillmere::scenario {

namespace {

class SqliteEngine final : public Engine {
public:
    std::shared_ptr<data::Connection> openFresh() override { return sqlite::openInMemory(); }
    [[nodiscard]] sample::Engine dialect() const override { return sample::Engine::Sqlite; }
};

std::unique_ptr<Engine> makePostgreSqlEngine(std::string_view address) {
#ifdef QUILLMERE_WITH_POSTGRESQL
    return std::make_unique<PostgreSqlEngine>(address);
#else
    throw Stop{"PostgreSQL is not built in"};
#endif
}

} // namespace

std::unique_ptr<Engine> makeEngine(const std::string& database) {
    if (database == "sqlite") return std::make_unique<SqliteEngine>();
    const RegisterAddress address = readAddress(database);
    if (!address.onServer) {
        // What stands behind a scheme may hold a password.
        throw Stop{"there is no database " + database.substr(0, database.find(':'))};
    }
    return makePostgreSqlEngine(address.way);
}

} // namespace quillmere::scenario

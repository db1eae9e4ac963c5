#include "postgresql/BareServer.h"

#include "adapters/postgresql/ConnectionString.h"

#include <benchmark/benchmark.h>
#include <libpq-fe.h>

#include <stdexcept>
#include <vector>

namespace quillmere::bench {

void BareServer::Close::operator()(pg_conn* connection) const { PQfinish(connection); }

BareServer::BareServer(const std::string& address) {
    const auto options = postgresql::connectionOptions(address, "data");
    std::vector<const char*> names;
    std::vector<const char*> values;
    for (const auto& [name, value] : options) {
        names.push_back(name.c_str());
        values.push_back(value.c_str());
    }
    names.push_back(nullptr);
    values.push_back(nullptr);
    connection_.reset(PQconnectdbParams(names.data(), values.data(), 0));
    if (PQstatus(connection_.get()) != CONNECTION_OK)
        throw std::runtime_error(PQerrorMessage(connection_.get()));
}

void BareServer::run(std::span<const std::string> statements) {
    for (const std::string& sql : statements) {
        const std::unique_ptr<PGresult, decltype(&PQclear)> result(
            PQexecParams(connection_.get(), sql.c_str(), 0, nullptr, nullptr, nullptr, nullptr, 0), PQclear);
        const ExecStatusType status = PQresultStatus(result.get());
        if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK)
            throw std::runtime_error(PQerrorMessage(connection_.get()));
        for (int row = 0; row < PQntuples(result.get()); ++row) {
            for (int column = 0; column < PQnfields(result.get()); ++column)
                benchmark::DoNotOptimize(*PQgetvalue(result.get(), row, column));
        }
    }
}

} // namespace quillmere::bench

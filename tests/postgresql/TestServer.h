#pragma once

#include "adapters/postgresql/PostgreSqlConnection.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace quillmere::postgresql {

/// The server that the tests are run against: the folder that scripts/postgresql-server has written is in
/// the environment, as QUILLMERE_POSTGRESQL.
class TestServer {
public:
    /// Whether there is one.
    [[nodiscard]] static bool isThere();
    /// Why there is none.
    [[nodiscard]] static std::string reason();
    /// The superuser's way to a database in which the schema jet is installed.
    [[nodiscard]] static const std::string& address();
    /// The same with another role, password or database; empty for what `address` has.
    [[nodiscard]] static std::string addressWith(const std::string& role, const std::string& password,
                                                 const std::string& database = {});
};

/// A schema of its own, dropped with this object.
class FreshSchema {
public:
    FreshSchema();
    ~FreshSchema();
    FreshSchema(const FreshSchema&) = delete;
    FreshSchema& operator=(const FreshSchema&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] std::shared_ptr<PostgreSqlConnection> connect() const;

private:
    std::string name_;
};

/// A connection to a schema without tables. Skips its tests, and says why, when there is no server.
class PostgreSqlBench : public testing::Test {
protected:
    void SetUp() override;

    std::unique_ptr<FreshSchema> schema;
    std::shared_ptr<PostgreSqlConnection> connection;
};

} // namespace quillmere::postgresql

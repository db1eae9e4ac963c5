#include "TestServer.h"

#include "adapters/postgresql/JetSchema.h"

#include <atomic>
#include <cstdlib>
#include <fstream>
#include <unistd.h>

namespace quillmere::postgresql {

namespace {

/// The first line of a file of the server's folder; empty when there is none.
std::string lineOf(const std::string& file) {
    const char* folder = std::getenv("QUILLMERE_POSTGRESQL");
    std::string line;
    if (folder != nullptr) {
        std::ifstream stream(std::string(folder) + "/" + file);
        std::getline(stream, line);
    }
    return line;
}

/// The connection that makes and drops schemas.
PostgreSqlConnection& administrator() {
    static const auto connection = open({.address = TestServer::address()});
    return *connection;
}

std::string installed(const std::string& address) {
    if (!address.empty()) installJetSchema(*open({.address = address}));
    return address;
}

} // namespace

bool TestServer::isThere() { return !lineOf("uri").empty(); }

std::string TestServer::reason() {
    const std::string reason = lineOf("reason");
    return "No PostgreSQL server: " + (reason.empty() ? "none has been started" : reason);
}

const std::string& TestServer::address() {
    static const std::string address = installed(lineOf("uri"));
    return address;
}

std::string TestServer::addressWith(const std::string& role, const std::string& password,
                                    const std::string& database) {
    const std::string& whole = address();
    const std::size_t at = whole.find('@');
    const std::size_t slash = whole.find('/', at);
    const std::string user = role.empty() ? whole.substr(0, at) : "postgresql://" + role + ":" + password;
    return user + whole.substr(at, slash - at) + (database.empty() ? whole.substr(slash) : "/" + database);
}

FreshSchema::FreshSchema() {
    static std::atomic<int> count = 0;
    name_ = "test_" + std::to_string(getpid()) + "_" + std::to_string(++count);
    administrator().execute("create schema " + name_);
}

FreshSchema::~FreshSchema() {
    try {
        administrator().execute("drop schema " + name_ + " cascade");
    } catch (const std::exception& failure) {
        ADD_FAILURE() << failure.what();
    }
}

std::shared_ptr<PostgreSqlConnection> FreshSchema::connect() const {
    return open({.address = TestServer::address(), .schema = name_});
}

void PostgreSqlBench::SetUp() {
    if (!TestServer::isThere()) GTEST_SKIP() << TestServer::reason();
    schema = std::make_unique<FreshSchema>();
    connection = schema->connect();
}

} // namespace quillmere::postgresql

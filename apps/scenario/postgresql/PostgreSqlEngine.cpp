#include "scenario/postgresql/PostgreSqlEngine.h"

#include "adapters/postgresql/JetSchema.h"
#include "adapters/postgresql/PostgreSqlConnection.h"

#include <cstdint>
#include <exception>
#include <iostream>
#include <random>

namespace quillmere::scenario {

namespace {

/// A name that no other run has, on whatever machine it is.
std::string newSchemaName() {
    std::random_device chance;
    const std::uint64_t number = (std::uint64_t{chance()} << 32U) | chance();
    return "scenario_" + std::to_string(number);
}

} // namespace

PostgreSqlEngine::~PostgreSqlEngine() {
    try {
        drop();
    } catch (const std::exception& failure) {
        std::cerr << "the schema " << schema_ << " is left behind: " << failure.what() << '\n';
    }
}

std::shared_ptr<data::Connection> PostgreSqlEngine::openFresh() {
    drop();
    const std::string name = newSchemaName();
    auto connection = postgresql::open({.address = address_, .schema = name});
    postgresql::installJetSchema(*connection);
    connection->execute("create schema " + name);
    schema_ = name;
    return connection;
}

void PostgreSqlEngine::drop() {
    if (schema_.empty()) return;
    // The system may have closed the script's connection.
    postgresql::open({.address = address_})->execute("drop schema " + schema_ + " cascade");
    schema_.clear();
}

} // namespace quillmere::scenario

#pragma once

#include "platform/data/Connection.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::data {

/// How an engine declares the columns of a database that keeps the contract.
struct ColumnTypes {
    std::string text;     // compared without regard to case
    std::string longText; // of any length
    std::string integer;
    std::string real;
    std::string boolean;
    std::string identity; // type and default: a fresh identity of 38 characters in braces
};

/// An engine that is held to the contract of Connection.
class EngineUnderTest {
public:
    EngineUnderTest() = default;
    EngineUnderTest(const EngineUnderTest&) = delete;
    EngineUnderTest& operator=(const EngineUnderTest&) = delete;
    virtual ~EngineUnderTest() = default;

    /// A connection to a database without tables.
    [[nodiscard]] virtual std::shared_ptr<Connection> openFresh() = 0;
    [[nodiscard]] virtual ColumnTypes types() const = 0;
};

struct Engine {
    std::string name;
    std::function<std::unique_ptr<EngineUnderTest>()> make;

    friend void PrintTo(const Engine& engine, std::ostream* out) { *out << engine.name; }
};

/// The tests of the contract. An engine joins by
/// `INSTANTIATE_TEST_SUITE_P(Name, EngineContract, testing::Values(Engine{...}))`.
class EngineContract : public testing::TestWithParam<Engine> {
protected:
    EngineContract() : engine(GetParam().make()), connection(engine->openFresh()) {}

    void execute(std::string_view sql) { connection->execute(sql); }
    [[nodiscard]] RowSet query(std::string_view sql) { return connection->query(sql); }

    /// The first cell of the first row.
    [[nodiscard]] Value cell(std::string_view sql);
    [[nodiscard]] std::int32_t countOf(const std::string& table);
    /// The first column, nulls as "null".
    [[nodiscard]] std::vector<std::string> column(std::string_view sql);

    /// A code table of three levels: two headings, three choices and a row whose attribute is null.
    void makeCodeTable(const std::string& name);
    /// `s_infotable` with the sets A01, A02, M01 and n02.
    void makeInfoTable();

    std::unique_ptr<EngineUnderTest> engine;
    std::shared_ptr<Connection> connection;
};

/// The tests of the dialect, in the shapes in which the system's statements use it.
class EngineDialect : public EngineContract {};

} // namespace quillmere::data

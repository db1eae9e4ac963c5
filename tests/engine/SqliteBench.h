#pragma once

#include "SqliteTypes.h"
#include "adapters/sqlite/SqliteConnection.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

namespace quillmere::sqlite {

/// A table `t` of one row in a database in memory.
class SqliteBench : public testing::Test {
protected:
    std::shared_ptr<data::Connection> connection = openInMemory();

    void SetUp() override {
        connection->execute("create table t (a text collate nocase, b boolean)");
        connection->execute("insert into t values('x',1)");
    }
};

} // namespace quillmere::sqlite

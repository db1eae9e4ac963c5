#include "sample/InsertBatch.h"

#include "sample/CopyTarget.h"

#include <gtest/gtest.h>

namespace quillmere::sample {
namespace {

/// Keeps what it is told.
class Listening : public data::Connection {
public:
    data::RowSet query(std::string_view /*sql*/) override { return {}; }
    void execute(std::string_view sql) override { statements.emplace_back(sql); }
    [[nodiscard]] bool isOpen() const override { return true; }
    void close() override {}

    std::vector<std::string> statements;
};

class Copying final : public Listening, public CopyTarget {
public:
    void copyRows(std::string_view table, std::string_view columns, std::string_view lines) override {
        copies.push_back(std::string(table) + "(" + std::string(columns) + ")\n" + std::string(lines));
    }

    std::vector<std::string> copies;
};

TEST(InsertBatch, RowsGoInOneStatement) {
    Listening connection;
    InsertBatch batch(connection, "A02", "A00,A0299");
    batch.add({quoted("O'Hara"), "1"});
    batch.add({quotedOrNull(""), bareOrNull("")});
    EXPECT_TRUE(connection.statements.empty());
    batch.flush();
    batch.flush();
    EXPECT_EQ(connection.statements,
              std::vector<std::string>{"insert into A02 (A00,A0299) values ('O''Hara',1),(null,null)"});
}

TEST(InsertBatch, ManyRowsGoInSeveralStatements) {
    Listening connection;
    InsertBatch batch(connection, "t", "n");
    for (int i = 0; i < 450; ++i)
        batch.add({std::to_string(i)});
    batch.flush();
    EXPECT_EQ(connection.statements.size(), 3U);
}

TEST(InsertBatch, RowsAreCopiedWhereTheConnectionTakesThem) {
    Copying connection;
    InsertBatch batch(connection, "A02", "A00,A0299,flag");
    batch.add({quoted("O'Hara\\ \t\r\n''"), "1", "true"});
    batch.add({quoted("null"), bareOrNull(""), quotedOrNull("")});
    batch.add({quoted(""), "-2", "false"});
    batch.flush();
    batch.flush();
    EXPECT_TRUE(connection.statements.empty());
    EXPECT_EQ(connection.copies, std::vector<std::string>{"A02(A00,A0299,flag)\n"
                                                          "O'Hara\\\\ \\t\\r\\n''\t1\ttrue\n"
                                                          "null\t\\N\t\\N\n"
                                                          "\t-2\tfalse\n"});
}

TEST(InsertBatch, ALargeCopyGoesInPieces) {
    Copying connection;
    InsertBatch batch(connection, "t", "a");
    const std::string literal = quoted(std::string_view(std::string(1000, 'x')));
    for (int i = 0; i < 2500; ++i)
        batch.add({literal});
    batch.flush();
    EXPECT_EQ(connection.copies.size(), 3U);
}

} // namespace
} // namespace quillmere::sample

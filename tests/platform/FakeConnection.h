#pragma once

#include "platform/data/Connection.h"

#include <string>
#include <utility>
#include <vector>

namespace quillmere::data {

/// Answers every query with the same rows and keeps the statements that it was given.
class FakeConnection final : public Connection {
public:
    explicit FakeConnection(RowSet answer = {}) : answer_(std::move(answer)) {}

    RowSet query(std::string_view sql) override {
        queries.emplace_back(sql);
        return answer_;
    }
    void execute(std::string_view sql) override { executed.emplace_back(sql); }
    [[nodiscard]] bool isOpen() const override { return open_; }
    void close() override { open_ = false; }

    std::vector<std::string> queries;
    std::vector<std::string> executed;

private:
    RowSet answer_;
    bool open_ = true;
};

} // namespace quillmere::data

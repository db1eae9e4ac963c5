#pragma once

#include "scenario/Engine.h"

#include "adapters/sqlite/SqliteConnection.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace quillmere::copy::test {

/// Makes the register anew somewhere else, and connects to it.
using Move = std::function<std::shared_ptr<data::Connection>()>;

/// A connection whose register moves as soon as it has been made; statements follow it.
class MovingConnection final : public data::Connection {
public:
    MovingConnection(std::shared_ptr<data::Connection> first, Move move)
        : current_(std::move(first)), move_(std::move(move)) {}

    data::RowSet query(std::string_view sql) override { return current_->query(sql); }
    void execute(std::string_view sql) override {
        current_->execute(sql);
        if (sql == "commit") current_ = move_();
    }
    [[nodiscard]] bool isOpen() const override { return current_->isOpen(); }
    void close() override { current_->close(); }

private:
    std::shared_ptr<data::Connection> current_;
    Move move_;
};

/// Scripts that ask for a register play on a copy of it: it is built in a file, and `moveFrom` copies that.
class MovedEngine final : public scenario::Engine {
public:
    using MoveFrom = std::function<std::shared_ptr<data::Connection>(const std::string& file)>;

    MovedEngine(std::string file, MoveFrom moveFrom)
        : file_(std::move(file)), moveFrom_(std::move(moveFrom)) {}

    std::shared_ptr<data::Connection> openFresh() override {
        return std::make_shared<MovingConnection>(sqlite::open({.path = file_, .create = true}), [this] {
            ++moves_;
            return moveFrom_(file_);
        });
    }
    [[nodiscard]] sample::Engine dialect() const override { return sample::Engine::Sqlite; }

    [[nodiscard]] int moves() const { return moves_; }

private:
    std::string file_;
    MoveFrom moveFrom_;
    int moves_ = 0;
};

} // namespace quillmere::copy::test

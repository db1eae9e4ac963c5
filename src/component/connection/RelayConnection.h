#pragma once

#include "platform/data/Connection.h"

#include <memory>
#include <utility>

namespace quillmere::component {

/// A connection whose engine is chosen later, and can change: what stays is the connection itself. Without an
/// engine every statement raises InvalidConnection.
class RelayConnection final : public data::Connection {
public:
    void use(std::shared_ptr<data::Connection> engine) { engine_ = std::move(engine); }

    data::RowSet query(std::string_view sql) override { return engine().query(sql); }
    void execute(std::string_view sql) override { engine().execute(sql); }
    [[nodiscard]] bool isOpen() const override { return engine_ && engine_->isOpen(); }
    void close() override {
        if (engine_) engine_->close();
        engine_.reset();
    }

private:
    [[nodiscard]] data::Connection& engine();

    std::shared_ptr<data::Connection> engine_;
};

} // namespace quillmere::component

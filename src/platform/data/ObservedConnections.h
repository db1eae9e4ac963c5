#pragma once

#include "platform/data/Connection.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillmere::data {

/// Passes every statement on to another connection and tells a listener of its text first.
/// Tests read `statements()`; a tracer sets a listener.
class RecordingConnection final : public Connection {
public:
    using Listener = std::function<void(std::string_view sql)>;

    explicit RecordingConnection(std::shared_ptr<Connection> target, Listener listener = {});

    RowSet query(std::string_view sql) override;
    void execute(std::string_view sql) override;
    [[nodiscard]] bool isOpen() const override { return target_->isOpen(); }
    void close() override { target_->close(); }

    [[nodiscard]] const std::vector<std::string>& statements() const { return statements_; }
    void clear() { statements_.clear(); }

    /// Whether statements are kept in `statements()`; on at first. The listener hears them anyway.
    void keepStatements(bool keep) { keep_ = keep; }

private:
    void record(std::string_view sql);

    std::shared_ptr<Connection> target_;
    Listener listener_;
    std::vector<std::string> statements_;
    bool keep_ = true;
};

/// Passes statements on, and lets a chosen one fail, once, without running it.
class FailingConnection final : public Connection {
public:
    explicit FailingConnection(std::shared_ptr<Connection> target);

    RowSet query(std::string_view sql) override;
    void execute(std::string_view sql) override;
    [[nodiscard]] bool isOpen() const override { return target_->isOpen(); }
    void close() override { target_->close(); }

    /// The `count`th next statement fails (1 is the very next one).
    void failAfter(int count, std::string description);
    /// The next statement whose text contains `part` (compared exactly) fails.
    void failOn(std::string part, std::string description);
    void failOff();

private:
    void check(std::string_view sql);

    std::shared_ptr<Connection> target_;
    int countdown_ = 0;
    std::optional<std::string> part_;
    std::string description_;
};

} // namespace quillmere::data

#pragma once

#include "adapters/journal/Entry.h"
#include "adapters/journal/JournalFile.h"
#include "platform/data/Connection.h"

#include <quillmere/Journal.h>

#include <exception>
#include <memory>
#include <optional>
#include <string_view>

namespace quillmere::journal {

/// What `journaled` puts around a connection.
class JournalConnection final : public data::Connection {
public:
    JournalConnection(std::shared_ptr<data::Connection> target, JournalOptions options);

    data::RowSet query(std::string_view sql) override;
    void execute(std::string_view sql) override;
    [[nodiscard]] bool isOpen() const override { return target_->isOpen(); }
    void close() override { target_->close(); }

private:
    /// Runs the statement by `run`, with an entry before it and its outcome behind it.
    template <class Run>
    auto keepAround(std::string_view sql, const Run& run);

    /// Keeps an entry. Its number; none when there is nothing to keep, or when it could not be kept.
    [[nodiscard]] std::optional<std::uint64_t> keep(std::string_view sql) noexcept;
    void keepOutcome(std::optional<std::uint64_t> entry, std::optional<std::string> failure) noexcept;
    [[nodiscard]] bool isLeftOut(std::string_view table) const;
    [[nodiscard]] Entry entryOf(const WritingStatement& statement, std::string_view sql);
    void readRows(Entry& entry, const WritingStatement& statement);
    /// Keeps as many of the rows as an entry may hold.
    void keepRows(Entry& entry, data::RowSet rows) const;
    [[nodiscard]] std::size_t roomOfEntry() const;
    void complain(std::string_view what, const std::exception* why) const noexcept;

    std::shared_ptr<data::Connection> target_;
    JournalOptions options_;
    JournalFile file_;
};

} // namespace quillmere::journal

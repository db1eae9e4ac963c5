#include "adapters/journal/JournalConnection.h"

#include "platform/Error.h"
#include "platform/convert/Clock.h"
#include "platform/convert/Format.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <cstddef>
#include <type_traits>
#include <utility>

namespace quillmere::journal {

namespace {

/// An entry holds no more rows than that.
constexpr std::size_t mostRows = 1000;

/// At most `size` bytes, and no half character at the end.
std::string_view cutTo(std::string_view text, std::size_t size) {
    if (text.size() <= size) return text;
    const auto isWithin = [&](std::size_t at) {
        return (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
    };
    while (size > 0 && isWithin(size))
        --size;
    return text.substr(0, size);
}

} // namespace

JournalConnection::JournalConnection(std::shared_ptr<data::Connection> target, JournalOptions options)
    : target_(std::move(target)), options_(std::move(options)), file_(options_.file, options_.limit) {}

template <class Run>
auto JournalConnection::keepAround(std::string_view sql, const Run& run) {
    const auto entry = keep(sql);
    try {
        if constexpr (std::is_void_v<decltype(run())>) {
            run();
            keepOutcome(entry, std::nullopt);
        } else {
            auto rows = run();
            keepOutcome(entry, std::nullopt);
            return rows;
        }
    } catch (const std::exception& failure) {
        keepOutcome(entry, failure.what());
        throw;
    }
}

data::RowSet JournalConnection::query(std::string_view sql) {
    return keepAround(sql, [&] { return target_->query(sql); });
}

void JournalConnection::execute(std::string_view sql) {
    keepAround(sql, [&] { target_->execute(sql); });
}

std::optional<std::uint64_t> JournalConnection::keep(std::string_view sql) noexcept {
    try {
        const auto statement = readWriting(sql);
        // What a connection that is not open says of the statement it says without help.
        if (!statement || isLeftOut(statement->table) || !target_->isOpen()) return std::nullopt;
        const Entry entry = entryOf(*statement, sql);
        // Where no row goes there is nothing that a power failure could lose.
        const Sync sync = entry.rows.empty() ? Sync::LeaveToSystem : Sync::Wait;
        return file_.addEntry(textOf(entry), sync);
    } catch (const std::exception& failure) {
        complain("没有记入恢复日志", &failure);
    } catch (...) {
        complain("没有记入恢复日志", nullptr);
    }
    return std::nullopt;
}

void JournalConnection::keepOutcome(std::optional<std::uint64_t> entry,
                                    std::optional<std::string> failure) noexcept {
    if (!entry) return;
    try {
        file_.addOutcome(textOf(Outcome{*entry, std::move(failure)}));
    } catch (const std::exception& trouble) {
        complain("恢复日志里没有记下语句的结果", &trouble);
    } catch (...) {
        complain("恢复日志里没有记下语句的结果", nullptr);
    }
}

bool JournalConnection::isLeftOut(std::string_view table) const {
    const std::string name = plainName(table);
    return std::ranges::any_of(options_.leftOut,
                               [&](const std::string& each) { return text::equalsNoCase(each, name); });
}

std::size_t JournalConnection::roomOfEntry() const { return static_cast<std::size_t>(options_.limit / 2); }

Entry JournalConnection::entryOf(const WritingStatement& statement, std::string_view sql) {
    Entry entry;
    entry.time = convert::format(clock::now(), "yyyy-mm-dd hh:nn:ss");
    entry.who = options_.who;
    entry.kind = statement.kind;
    entry.table = statement.table;
    entry.statement = cutTo(sql, roomOfEntry());
    entry.statementBytesLeftOut = sql.size() - entry.statement.size();
    if (statement.kind == Kind::Delete || statement.kind == Kind::Update) readRows(entry, statement);
    return entry;
}

void JournalConnection::readRows(Entry& entry, const WritingStatement& statement) {
    if (!statement.tellsRows) {
        entry.trouble = "看不出语句涉及哪些行";
        return complain("改动前的行没有记入恢复日志：" + entry.trouble, nullptr);
    }
    try {
        keepRows(entry,
                 target_->query(selectionOf(statement, "*") + " limit " + std::to_string(mostRows + 1)));
        // The one beyond the limit only tells that there are more.
        if (entry.rows.rowCount() + entry.rowsLeftOut <= mostRows) return;
        const data::RowSet count = target_->query(selectionOf(statement, "count(*)"));
        const auto all = static_cast<std::uint64_t>(count.at(0, std::size_t{0}).toLong());
        entry.rowsLeftOut =
            std::max(entry.rowsLeftOut, all - std::min<std::uint64_t>(all, entry.rows.rowCount()));
    } catch (const std::exception& failure) {
        entry.trouble = failure.what();
        complain("改动前的行没有记入恢复日志", &failure);
    }
}

void JournalConnection::keepRows(Entry& entry, data::RowSet rows) const {
    std::size_t room = roomOfEntry() - entry.statement.size();
    std::size_t fitting = 0;
    for (; fitting < std::min(rows.rowCount(), mostRows); ++fitting) {
        const std::size_t size = sizeOf(rows.row(fitting));
        if (size > room) break;
        room -= size;
    }
    entry.rowsLeftOut = rows.rowCount() - fitting;
    if (entry.rowsLeftOut == 0) {
        entry.rows = std::move(rows);
        return;
    }
    entry.rows = data::RowSet(rows.columns());
    for (std::size_t row = 0; row < fitting; ++row)
        entry.rows.addRow(rows.row(row));
}

void JournalConnection::complain(std::string_view what, const std::exception* why) const noexcept {
    if (!options_.complain) return;
    try {
        std::string words(what);
        if (why != nullptr) words.append("：").append(why->what());
        options_.complain(words);
    } catch (...) { // NOLINT(bugprone-empty-catch): what the host does with it is no matter of the statement
    }
}

} // namespace quillmere::journal

namespace quillmere {

std::shared_ptr<data::Connection> journaled(std::shared_ptr<data::Connection> connection,
                                            JournalOptions options) {
    return std::make_shared<journal::JournalConnection>(std::move(connection), std::move(options));
}

} // namespace quillmere

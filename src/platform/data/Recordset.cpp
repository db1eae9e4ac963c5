#include "platform/data/Recordset.h"

#include "platform/Error.h"
#include "platform/data/Connection.h"
#include "platform/text/Text.h"

#include <numeric>
#include <optional>
#include <utility>

namespace quillmere::data {

namespace {

struct Condition {
    std::string column;
    bool wantsEmpty = false;
};

/// Reads "<column><>''" and "<column>=''".
std::optional<Condition> parseFilter(std::string_view filter) {
    constexpr std::string_view emptyText = "''";
    const std::string trimmed = text::trim(filter);
    std::string_view rest = trimmed;
    const auto dropEnd = [&rest](std::string_view ending) {
        if (!rest.ends_with(ending)) return false;
        rest.remove_suffix(ending.size());
        while (rest.ends_with(' '))
            rest.remove_suffix(1);
        return true;
    };
    if (!dropEnd(emptyText)) return std::nullopt;
    if (dropEnd("<>")) return Condition{std::string(rest), false};
    if (dropEnd("=")) return Condition{std::string(rest), true};
    return std::nullopt;
}

} // namespace

void Recordset::open(std::string_view sql, Connection& connection) {
    if (open_) close();
    rows_ = connection.query(sql);
    visible_.resize(rows_.rowCount());
    std::iota(visible_.begin(), visible_.end(), std::size_t{0});
    position_ = visible_.empty() ? 0 : 1;
    open_ = true;
    ++*generation_;
    tellView();
}

void Recordset::close() {
    requireOpen();
    open_ = false;
    rows_ = RowSet();
    visible_.clear();
    position_ = 0;
    ++*generation_;
    tellView();
}

void Recordset::requireOpen() const {
    if (!open_) throw Error(Failure::ObjectClosed);
}

void Recordset::requireRow() const {
    requireOpen();
    if (visible_.empty()) throw Error(Failure::NoCurrentRecord);
}

bool Recordset::BOF() const {
    requireOpen();
    return position_ == 0;
}

bool Recordset::EOF_() const {
    requireOpen();
    return visible_.empty() || position_ > count();
}

std::int32_t Recordset::RecordCount() const {
    requireOpen();
    return count();
}

std::int32_t Recordset::AbsolutePosition() const {
    constexpr std::int32_t unknown = -1;
    constexpr std::int32_t atBof = -2;
    constexpr std::int32_t atEof = -3;
    requireOpen();
    if (visible_.empty()) return unknown;
    if (BOF()) return atBof;
    return EOF_() ? atEof : position_;
}

void Recordset::MoveFirst() {
    requireRow();
    moveTo(1);
}

void Recordset::MoveLast() {
    requireRow();
    moveTo(count());
}

void Recordset::MoveNext() {
    if (EOF_()) throw Error(Failure::NoCurrentRecord);
    moveTo(position_ + 1);
}

void Recordset::MovePrevious() {
    if (BOF()) throw Error(Failure::NoCurrentRecord);
    moveTo(position_ - 1);
}

void Recordset::setAbsolutePosition(std::int32_t position) {
    requireOpen();
    if (position < 1 || position > count()) throw Error(Failure::BadArguments);
    moveTo(position);
}

void Recordset::setFilter(std::string_view filter) {
    requireOpen();
    auto rows = passing(filter);
    if (!announceMove()) return;
    visible_ = std::move(rows);
    position_ = visible_.empty() ? 0 : 1;
    arrive();
}

std::vector<std::size_t> Recordset::passing(std::string_view filter) const {
    std::vector<std::size_t> rows(rows_.rowCount());
    std::iota(rows.begin(), rows.end(), std::size_t{0});
    if (filter.empty()) return rows;

    const auto condition = parseFilter(filter);
    if (!condition) throw Error(Failure::BadArguments);
    const auto column = rows_.findColumn(condition->column);
    if (!column) throw Error(Failure::BadArguments);
    std::erase_if(rows, [&](std::size_t row) {
        const Value& value = rows_.at(row, *column);
        return value.isNull() || value.toText().empty() != condition->wantsEmpty;
    });
    return rows;
}

std::size_t Recordset::currentRow() const {
    if (BOF() || EOF_()) throw Error(Failure::NoCurrentRecord);
    return visible_[static_cast<std::size_t>(position_ - 1)];
}

const Value& Recordset::Fields(std::string_view name) const {
    requireOpen();
    const auto column = rows_.findColumn(name);
    if (!column) throw Error(Failure::ItemNotFound);
    return rows_.at(currentRow(), *column);
}

const Value& Recordset::Fields(std::size_t position) const {
    requireOpen();
    if (position >= rows_.columns().size()) throw Error(Failure::ItemNotFound);
    return rows_.at(currentRow(), position);
}

const RowSet& Recordset::rows() const {
    requireOpen();
    return rows_;
}

const std::vector<std::size_t>& Recordset::visibleRows() const {
    requireOpen();
    return visible_;
}

void Recordset::moveTo(std::int32_t target) {
    if (!announceMove()) return;
    position_ = target;
    arrive();
}

// The events run on copies of the handlers and of the counter: a handler may replace itself or
// destroy the recordset, and nothing of it may be touched once the counter has moved on.

bool Recordset::announceMove() {
    const auto generation = generation_;
    const auto before = *generation;
    auto status = MoveStatus::Ok;
    if (const auto handler = willMove_) handler(status);
    return *generation == before && status != MoveStatus::Cancel;
}

void Recordset::arrive() {
    const auto generation = generation_;
    const auto here = ++*generation;
    try {
        if (const auto handler = moveComplete_) handler();
    } catch (...) {
        // The move has happened; the grid must not stay on the row before.
        if (*generation == here) tellView();
        throw;
    }
    if (*generation == here) tellView();
}

void Recordset::tellView() {
    if (const auto handler = viewChange_) handler();
}

} // namespace quillmere::data

#pragma once

#include "platform/data/RowSet.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::data {

class Connection;

/// What a WillMove handler answers: let the move go on, or cancel it.
enum class MoveStatus { Ok = 1, Cancel = 4 };

/// A cursor over the rows of one query: static, client-side, read-only.
///
/// Opening stands on the first row and raises no event. Every later change of position raises
/// `WillMove` before and, unless a handler cancelled it, `MoveComplete` after it, also a move that
/// ends on the row it started from. A cancelled move changes nothing and is no failure.
/// Every operation on a closed recordset but `open`, `State` and `close` raises ObjectClosed.
///
/// A handler may move, filter, close, open or destroy the recordset from inside an event: what it
/// did stands, and the move that raised the event ends there without a further event of its own.
class Recordset {
public:
    using WillMoveHandler = std::function<void(MoveStatus& status)>;
    using MoveCompleteHandler = std::function<void()>;

    Recordset() = default;
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;
    ~Recordset() { ++*generation_; }

    /// Runs `sql` and stands on the first row. Raises what the connection raises; the recordset
    /// then stays closed. An open recordset is closed first.
    void open(std::string_view sql, Connection& connection);

    /// Closes; closing a closed one is ObjectClosed.
    void close();

    /// 1 when open, 0 when closed.
    [[nodiscard]] int State() const { return open_ ? 1 : 0; }

    [[nodiscard]] bool BOF() const;
    [[nodiscard]] bool EOF_() const;
    /// Rows that pass the filter.
    [[nodiscard]] std::int32_t RecordCount() const;
    /// From 1; -2 at BOF, -3 at EOF, -1 when there is no row.
    [[nodiscard]] std::int32_t AbsolutePosition() const;

    /// The first and the last row; raise NoCurrentRecord when there is no row.
    void MoveFirst();
    void MoveLast();
    /// Past the last row stands on EOF; moving on from there raises NoCurrentRecord.
    void MoveNext();
    /// Before the first row stands on BOF; moving on from there raises NoCurrentRecord.
    void MovePrevious();
    /// Goes to a row, from 1. Raises BadArguments outside 1 to RecordCount.
    void setAbsolutePosition(std::int32_t position);

    /// Shows only the rows that pass: "<column><>''" or "<column>=''" (column without regard to
    /// case); the empty text removes the filter. Any other text raises BadArguments. A null passes
    /// neither. Stands on the first passing row; raises the move events.
    void setFilter(std::string_view filter);

    /// A field of the current row, by name without regard to case or by position from 0. Raises
    /// ItemNotFound, or NoCurrentRecord at BOF or EOF.
    [[nodiscard]] const Value& Fields(std::string_view name) const;
    [[nodiscard]] const Value& Fields(std::size_t position) const;

    /// The fetched rows behind the cursor, and which of them pass the filter, for a grid to show.
    [[nodiscard]] const RowSet& rows() const;
    [[nodiscard]] const std::vector<std::size_t>& visibleRows() const;

    void onWillMove(WillMoveHandler handler) { willMove_ = std::move(handler); }
    void onMoveComplete(MoveCompleteHandler handler) { moveComplete_ = std::move(handler); }
    /// A grid bound to the recordset follows it through this; called after `MoveComplete`'s handler,
    /// and after open and close.
    void onViewChange(std::function<void()> handler) { viewChange_ = std::move(handler); }

private:
    void requireOpen() const;
    void requireRow() const;
    void moveTo(std::int32_t target);
    /// Raises WillMove; false when the move must not go on.
    [[nodiscard]] bool announceMove();
    /// Raises MoveComplete and tells the view.
    void arrive();
    void tellView();
    [[nodiscard]] std::vector<std::size_t> passing(std::string_view filter) const;
    /// Index in `rows_` of the row that the cursor stands on; raises NoCurrentRecord.
    [[nodiscard]] std::size_t currentRow() const;
    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(visible_.size()); }

    RowSet rows_;
    std::vector<std::size_t> visible_;
    /// From 1; 0 is BOF and count()+1 is EOF. With no rows it is 0 and both hold.
    std::int32_t position_ = 0;
    bool open_ = false;
    /// Counts the changes of state. Shared with a running event, which outlives the recordset when a
    /// handler destroys it.
    std::shared_ptr<std::uint64_t> generation_ = std::make_shared<std::uint64_t>(0);
    WillMoveHandler willMove_;
    MoveCompleteHandler moveComplete_;
    std::function<void()> viewChange_;
};

} // namespace quillmere::data

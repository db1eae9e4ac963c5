#pragma once

#include "register/RegisterList.h"

#include <QAbstractTableModel>

#include <optional>
#include <string_view>

namespace quillmere::host {

/// The list as a table: all records of a kind, or what a search has found so far. Rows come a page at a
/// time, as a view asks for them, so that a register of any size opens at once.
class RegisterModel final : public QAbstractTableModel {
public:
    static constexpr int pageSize = 100;

    explicit RegisterModel(RegisterList list) : list_(std::move(list)) {}

    /// Shows all records of a kind. Raises quillmere::Error and keeps what was shown.
    void showAll(Kind kind);
    /// Shows what a search has found; more may be added. Raises quillmere::Error and keeps what was shown.
    /// For either: what is shown already is read again, as many rows as were there before.
    void showFound(const Query& query, std::vector<RecordKey> keys);
    /// Raises quillmere::Error when more rows are needed to fill a page and cannot be read.
    void addFound(const std::vector<RecordKey>& keys);

    [[nodiscard]] Kind kind() const { return query_.kind; }
    [[nodiscard]] const Query& query() const { return query_; }
    /// All records there are to show, those not read yet included.
    [[nodiscard]] int total() const { return total_; }
    [[nodiscard]] const Entry& entry(int row) const { return entries_[static_cast<std::size_t>(row)]; }
    /// Among the rows that have been read.
    [[nodiscard]] std::optional<int> rowOf(std::string_view id) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] bool canFetchMore(const QModelIndex& parent) const override;
    /// A failing database ends the list where it stands.
    void fetchMore(const QModelIndex& parent) override;

private:
    /// How many rows are read at first.
    [[nodiscard]] int wantedRows(const Query& query) const;
    void reset(const Query& query, std::vector<RecordKey> keys, std::vector<Entry> entries, int total);
    /// The next rows of the list, at most so many. Moves on past records that are gone.
    [[nodiscard]] std::vector<Entry> next(int limit);
    void append(std::vector<Entry> entries);

    RegisterList list_;
    Query query_;
    std::vector<Entry> entries_;
    int total_ = 0;
    /// Of a search: everything found, and how much of it has been read.
    std::vector<RecordKey> keys_;
    std::size_t read_ = 0;
};

} // namespace quillmere::host

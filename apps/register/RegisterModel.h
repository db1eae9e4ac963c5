#pragma once

#include "register/RegisterList.h"

#include <QAbstractTableModel>

#include <optional>
#include <string_view>

namespace quillmere::host {

/// The list as a table. Rows come a page at a time, as a view asks for them, so that a register of any
/// size opens at once.
class RegisterModel final : public QAbstractTableModel {
public:
    static constexpr int pageSize = 200;

    explicit RegisterModel(RegisterList list) : list_(std::move(list)) {}

    /// Reads the records of a kind that a search finds. When kind and search stay, as many rows as were
    /// there before are read again. Raises quillmere::Error and keeps what was shown.
    void show(Kind kind, const QString& search);

    [[nodiscard]] Kind kind() const { return kind_; }
    [[nodiscard]] const QString& search() const { return search_; }
    /// All records that the search finds, those not read yet included.
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
    RegisterList list_;
    Kind kind_ = Kind::Persons;
    QString search_;
    int total_ = 0;
    std::vector<Entry> entries_;
};

} // namespace quillmere::host

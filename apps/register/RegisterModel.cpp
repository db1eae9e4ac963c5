#include "register/RegisterModel.h"

#include "platform/Error.h"

#include <algorithm>
#include <iterator>

namespace quillmere::host {

void RegisterModel::show(Kind kind, const QString& search) {
    const bool again = kind == kind_ && search == search_;
    const int wanted = again ? std::max(pageSize, rowCount()) : pageSize;
    const int total = list_.count(kind, search);
    std::vector<Entry> entries = list_.page(kind, search, 0, wanted);

    beginResetModel();
    kind_ = kind;
    search_ = search;
    total_ = total;
    entries_ = std::move(entries);
    endResetModel();
}

std::optional<int> RegisterModel::rowOf(std::string_view id) const {
    const auto found = std::ranges::find(entries_, id, &Entry::id);
    if (found == entries_.end()) return std::nullopt;
    return static_cast<int>(std::distance(entries_.begin(), found));
}

int RegisterModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

int RegisterModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columnsOf(kind_).size());
}

QVariant RegisterModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const QString& cell = entry(index.row()).cells[index.column()];
    // The tool tip tells what the column is too narrow for.
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return cell;
    return {};
}

QVariant RegisterModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole) return {};
    return QString::fromUtf8(columnsOf(kind_)[static_cast<std::size_t>(section)].title);
}

bool RegisterModel::canFetchMore(const QModelIndex& parent) const {
    return !parent.isValid() && rowCount() < total_;
}

void RegisterModel::fetchMore(const QModelIndex& parent) {
    if (!canFetchMore(parent)) return;
    std::vector<Entry> next;
    try {
        next = list_.page(kind_, search_, rowCount(), pageSize);
    } catch (const Error& error) {
        // A view calls this in the middle of its painting, where no exception may leave.
        qWarning("quillmere-register: %s", error.what());
    }
    if (next.empty()) {
        // Fewer records than were counted: someone else has deleted some.
        total_ = rowCount();
        return;
    }
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(next.size()) - 1);
    std::ranges::move(next, std::back_inserter(entries_));
    endInsertRows();
}

} // namespace quillmere::host

#include "register/RegisterModel.h"

#include "platform/Error.h"
#include "register/RegisterSource.h"

#include <algorithm>
#include <iterator>

namespace quillmere::host {

namespace {

std::span<const RecordKey> firstOf(const std::vector<RecordKey>& keys, int count) {
    return std::span(keys).first(std::min(keys.size(), static_cast<std::size_t>(count)));
}

} // namespace

int RegisterModel::wantedRows(const Query& query) const {
    return query == query_ ? std::max(pageSize, rowCount()) : pageSize;
}

void RegisterModel::showAll(Kind kind) {
    Query query;
    query.kind = kind;
    const int total = list_.count(kind);
    reset(query, {}, list_.page(kind, 0, wantedRows(query)), total);
}

void RegisterModel::showFound(const Query& query, std::vector<RecordKey> keys) {
    const std::span<const RecordKey> first = firstOf(keys, wantedRows(query));
    std::vector<Entry> entries = list_.entries(query.kind, first);
    const std::size_t gone = first.size() - entries.size();
    const std::size_t read = first.size();
    const int total = static_cast<int>(keys.size() - gone);
    reset(query, std::move(keys), std::move(entries), total);
    read_ = read;
}

void RegisterModel::reset(const Query& query, std::vector<RecordKey> keys, std::vector<Entry> entries,
                          int total) {
    beginResetModel();
    query_ = query;
    keys_ = std::move(keys);
    read_ = 0;
    total_ = total;
    entries_ = std::move(entries);
    endResetModel();
}

void RegisterModel::addFound(const std::vector<RecordKey>& keys) {
    keys_.insert(keys_.end(), keys.begin(), keys.end());
    total_ += static_cast<int>(keys.size());
    // A view asks for more when it is scrolled; the first page it takes as it is.
    if (rowCount() < pageSize) append(next(pageSize - rowCount()));
}

std::vector<Entry> RegisterModel::next(int limit) {
    if (query_.isEverything()) return list_.page(kind(), rowCount(), limit);
    const std::span<const RecordKey> part = std::span(keys_).subspan(read_);
    const std::span<const RecordKey> keys =
        part.first(std::min(part.size(), static_cast<std::size_t>(limit)));
    std::vector<Entry> entries = list_.entries(kind(), keys);
    read_ += keys.size();
    total_ -= static_cast<int>(keys.size() - entries.size());
    return entries;
}

void RegisterModel::append(std::vector<Entry> entries) {
    if (entries.empty()) return;
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(entries.size()) - 1);
    std::ranges::move(entries, std::back_inserter(entries_));
    endInsertRows();
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
    return parent.isValid() ? 0 : static_cast<int>(sourceOf(kind()).columns.size());
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
    return QString::fromUtf8(sourceOf(kind()).columns[static_cast<std::size_t>(section)].title);
}

bool RegisterModel::canFetchMore(const QModelIndex& parent) const {
    return !parent.isValid() && rowCount() < total_;
}

void RegisterModel::fetchMore(const QModelIndex& parent) {
    if (!canFetchMore(parent)) return;
    const int before = rowCount();
    try {
        append(next(pageSize));
    } catch (const Error& error) {
        // A view calls this in the middle of its painting, where no exception may leave.
        qWarning("quillmere-register: %s", error.what());
    }
    // Fewer records than were counted: someone else has deleted some.
    if (rowCount() == before) total_ = rowCount();
}

} // namespace quillmere::host

#include "platform/data/RowSet.h"

#include "platform/Error.h"

#include <algorithm>
#include <utility>

namespace quillmere::data {

namespace {

constexpr char lowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool sameName(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return x == y || lowerAscii(x) == lowerAscii(y);
           });
}

} // namespace

struct RowSet::Table {
    std::vector<std::string> columns;
    std::vector<std::vector<Value>> rows;

    /// What the set holds, which may be nothing.
    static const Table& of(const RowSet& set) noexcept {
        static const Table nothing;
        return set.table_ ? *set.table_ : nothing;
    }
};

RowSet::RowSet() noexcept = default;

RowSet::RowSet(std::vector<std::string> columns)
    : table_(std::make_unique<Table>(Table{std::move(columns), {}})) {}

RowSet::RowSet(const RowSet& other) : table_(std::make_unique<Table>(Table::of(other))) {}

RowSet::RowSet(RowSet&& other) noexcept = default;

RowSet& RowSet::operator=(const RowSet& other) { return *this = RowSet(other); }

RowSet& RowSet::operator=(RowSet&& other) noexcept = default;

RowSet::~RowSet() = default;

void RowSet::addRow(std::vector<Value> row) {
    if (!table_) table_ = std::make_unique<Table>();
    table_->rows.push_back(std::move(row));
}

const std::vector<std::string>& RowSet::columns() const noexcept { return Table::of(*this).columns; }

std::size_t RowSet::rowCount() const noexcept { return Table::of(*this).rows.size(); }

bool RowSet::empty() const noexcept { return Table::of(*this).rows.empty(); }

const std::vector<Value>& RowSet::row(std::size_t index) const { return Table::of(*this).rows[index]; }

std::optional<std::size_t> RowSet::findColumn(std::string_view name) const {
    const std::vector<std::string>& names = columns();
    // A straight walk: a query has a dozen columns, and most differ from the name in their length.
    for (std::size_t i = 0; i < names.size(); ++i)
        if (sameName(names[i], name)) return i;
    return std::nullopt;
}

const Value& RowSet::at(std::size_t row, std::size_t column) const {
    const auto& rows = Table::of(*this).rows;
    if (row >= rows.size()) throw Error(Failure::NoCurrentRecord);
    if (column >= rows[row].size()) throw Error(Failure::ItemNotFound);
    return rows[row][column];
}

const Value& RowSet::at(std::size_t row, std::string_view column) const {
    const auto index = findColumn(column);
    if (!index) throw Error(Failure::ItemNotFound);
    return at(row, *index);
}

} // namespace quillmere::data

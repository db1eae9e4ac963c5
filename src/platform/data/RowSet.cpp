#include "platform/data/RowSet.h"

#include "platform/Error.h"

#include <algorithm>

namespace quillmere::data {

namespace {

constexpr char lowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool sameName(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return x == y || lowerAscii(x) == lowerAscii(y);
           });
}

} // namespace

std::optional<std::size_t> RowSet::findColumn(std::string_view name) const {
    // A straight walk: a query has a dozen columns, and most differ from the name in their length.
    for (std::size_t i = 0; i < columns_.size(); ++i)
        if (sameName(columns_[i], name)) return i;
    return std::nullopt;
}

const Value& RowSet::at(std::size_t row, std::size_t column) const {
    if (row >= rows_.size()) throw Error(Failure::NoCurrentRecord);
    if (column >= rows_[row].size()) throw Error(Failure::ItemNotFound);
    return rows_[row][column];
}

const Value& RowSet::at(std::size_t row, std::string_view column) const {
    const auto index = findColumn(column);
    if (!index) throw Error(Failure::ItemNotFound);
    return at(row, *index);
}

} // namespace quillmere::data

#include "journal/RowComparison.h"

#include "journal/RegisterTable.h"

namespace quillmere::recovery {

RowComparison::RowComparison(const data::RowSet& kept, const std::vector<std::string>& columns,
                             std::string_view number)
    : kept_(kept), number_(kept.findColumn(number)) {
    const data::RowSet ofRegister(columns);
    for (const std::string& column : kept.columns())
        places_.push_back(ofRegister.findColumn(column).value());
}

bool RowComparison::isSame(const data::RowSet& rows, std::size_t row, std::size_t index,
                           Number number) const {
    for (std::size_t i = 0; i < places_.size(); ++i) {
        if (number == Number::IsPassedOver && number_ == i) continue;
        if (!isSameValue(rows.at(row, places_[i]), kept_.at(index, i))) return false;
    }
    return true;
}

bool RowComparison::hasSame(const data::RowSet& rows, std::size_t index) const {
    std::size_t there = 0;
    for (std::size_t row = 0; row < rows.rowCount(); ++row)
        if (isSame(rows, row, index, Number::Counts)) ++there;
    for (std::size_t earlier = 0; there > 0 && earlier < index; ++earlier)
        if (kept_.row(earlier) == kept_.row(index)) --there;
    return there > 0;
}

bool RowComparison::standsInEntry(const data::RowSet& rows, std::size_t row) const {
    for (std::size_t index = 0; index < kept_.rowCount(); ++index)
        if (isSame(rows, row, index, Number::Counts)) return true;
    return false;
}

std::optional<std::size_t> RowComparison::findUnderOtherNumber(const data::RowSet& rows,
                                                               std::size_t index) const {
    for (std::size_t row = 0; row < rows.rowCount(); ++row)
        if (isSame(rows, row, index, Number::IsPassedOver) && !standsInEntry(rows, row)) return row;
    return std::nullopt;
}

} // namespace quillmere::recovery

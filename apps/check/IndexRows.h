#pragma once

#include "check/EngineIndexes.h"
#include "platform/data/RowSet.h"

#include <map>
#include <utility>

namespace quillmere::check {

/// The indexes from rows of an index's name and a column of it, in the column's order.
[[nodiscard]] inline std::vector<EngineIndexes::Index> indexesFrom(const data::RowSet& rows) {
    std::map<std::string, EngineIndexes::Index> byName;
    for (std::size_t row = 0; row < rows.rowCount(); ++row)
        byName[rows.at(row, 0).toText()].push_back(rows.at(row, 1).toTextOrEmpty());
    std::vector<EngineIndexes::Index> indexes;
    indexes.reserve(byName.size());
    for (auto& [name, columns] : byName)
        indexes.push_back(std::move(columns));
    return indexes;
}

} // namespace quillmere::check

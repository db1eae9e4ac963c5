#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quillmere {

struct cWhInfo;

/// The generated statement behind a panel's grid, and for each of its columns the field and the width in
/// twips.
struct GridStatement {
    /// Empty when the catalogue lists no field of the table.
    std::string sql;
    std::vector<std::string> fields;
    std::vector<std::int16_t> widths;
};

/// Forms the statement from the catalogue rows of `info.TabId`: coded fields by the name of their
/// code, through a left join each; fields with a picture formatted; the rest as they are. Raises
/// Overflow for a column width beyond 16 bits.
[[nodiscard]] GridStatement makeGridStatement(const cWhInfo& info, bool aliasedCatalogue);

} // namespace quillmere

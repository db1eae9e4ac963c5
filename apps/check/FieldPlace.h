#pragma once

#include "check/RegisterView.h"
#include "check/Report.h"

/// Where a finding about a field stands.
namespace quillmere::check {

inline constexpr const char* fieldCatalogue = "s_infoitem";

[[nodiscard]] inline std::vector<Key> keyOf(const FieldEntry& field) {
    return {{"TblName", field.table}, {"ItemName", field.name}};
}

} // namespace quillmere::check

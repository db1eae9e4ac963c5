#pragma once

#include "platform/data/RowSet.h"

#include <string_view>

struct pg_result;

namespace quillmere::postgresql {

/// The rows of a result as values. The server's booleans, whole numbers and numbers are such; anything else
/// is the text that the server shows for it. Columns bear their names as the statement `sql` spells them,
/// where the server has made them lower case or has cut them at 63 bytes.
[[nodiscard]] data::RowSet rowsOf(const pg_result* result, std::string_view sql);

} // namespace quillmere::postgresql

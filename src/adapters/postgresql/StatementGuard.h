#pragma once

#include <string_view>

namespace quillmere::postgresql {

/// Refuses what the catalogue's dialect does not have before the server sees it: no statement at all, a zero
/// byte, a comment, an empty list, and any quotes but '...' and "..." with backslashes and dollars that mean
/// themselves. Raises StatementFailed.
void requireDialect(std::string_view sql);

} // namespace quillmere::postgresql

#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace quillmere::fuzz {

/// A statement as a PostgreSQL server cuts it into pieces, told by its manual ("Lexical Structure") and
/// written without a look at how the adapter does it.
struct ServerPieces {
    /// Without blanks and comments.
    std::vector<std::string_view> pieces;
    bool hasComment = false;
};

/// None for a text that the server refuses, since a quote or a comment does not end.
[[nodiscard]] std::optional<ServerPieces> cutByServer(std::string_view sql);

} // namespace quillmere::fuzz

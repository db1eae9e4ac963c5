#pragma once

#include "platform/data/Tokens.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::journal {

enum class Kind {
    Delete,
    Update,
    Insert,
    Other, ///< changes tables, rights, or rows in a way that is not looked into
};

/// The word for a kind in the file; the kind of a word.
[[nodiscard]] std::string_view wordOf(Kind kind);
[[nodiscard]] std::optional<Kind> kindOf(std::string_view word);

/// A column and what an update sets it to, as the statement spells both.
struct Assignment {
    std::string_view column;
    std::string_view expression;
};

/// What a statement that writes is about. The pieces refer to its text.
struct WritingStatement {
    Kind kind = Kind::Other;
    /// The table's name without its schema, quotes included; empty for Kind::Other.
    std::string_view table;
    /// What stands for the table in a query: the name with its schema and its other name, if it has any.
    std::string_view source;
    /// The condition; empty when there is none.
    std::string_view condition;
    /// The list behind `set` of an update; empty when some of it is more than a column and its value.
    std::vector<Assignment> assignments;
    /// Whether a query with source and condition tells the rows that a delete or an update is about.
    bool tellsRows = false;
};

/// Reads a statement. Nothing for one that does not write, and for one that a connection refuses: with a
/// comment, or more than one. For a query it costs a look at the first word.
[[nodiscard]] std::optional<WritingStatement> readWriting(std::string_view sql);

/// The query of these items of the rows that the statement is about; for one that tells its rows.
[[nodiscard]] std::string selectionOf(const WritingStatement& statement, std::string_view items);

/// A table's or a column's name without its quotes.
[[nodiscard]] std::string plainName(std::string_view name);

} // namespace quillmere::journal

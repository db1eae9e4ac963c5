#pragma once

#include "adapters/sqlite/Statement.h"

#include <cstddef>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace quillmere::sqlite {

/// Compiled queries by their text; the one used longest ago makes room. Opening a record runs the
/// same lookups over and over, and compiling one takes longer than running it. Statements that
/// change something bear the user's texts and hardly ever come twice, so they are not kept.
class StatementCache {
public:
    explicit StatementCache(std::size_t capacity) : capacity_(capacity) {}

    /// The compiled statement of that text. Raises what compiling it raises.
    [[nodiscard]] std::shared_ptr<Statement> statementFor(sqlite3* database, CompilationNote& note,
                                                          std::string_view sql);

    void clear();

private:
    struct Query {
        std::string sql;
        std::shared_ptr<Statement> statement;
    };

    void keep(std::string_view sql, std::shared_ptr<Statement> statement);

    std::size_t capacity_;
    /// The one used last comes first.
    std::list<Query> queries_;
    std::unordered_map<std::string_view, std::list<Query>::iterator> byText_;
};

} // namespace quillmere::sqlite

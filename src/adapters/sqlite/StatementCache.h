#pragma once

#include "adapters/sqlite/Statement.h"

#include <cstddef>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace quillmere::sqlite {

struct QueryShape;

/// Compiled queries by their shape; the one used longest ago makes room. Opening a record runs the
/// same lookups over and over, with the codes of one person or another, and compiling one takes longer
/// than running it. Statements that change something hardly ever come twice, so they are not kept.
class StatementCache {
public:
    explicit StatementCache(std::size_t capacity) : capacity_(capacity) {}

    /// The compiled statement of that text, ready to run once. Raises what compiling it raises.
    [[nodiscard]] std::shared_ptr<Statement> statementFor(sqlite3* database, CompilationNote& note,
                                                          std::string_view sql);

    void clear();

private:
    struct Query {
        std::string shape;
        /// How many it takes.
        std::size_t texts;
        std::shared_ptr<Statement> statement;
    };

    /// Nothing when a shape with texts cannot be compiled.
    [[nodiscard]] static std::shared_ptr<Statement> compileShape(sqlite3* database, CompilationNote& note,
                                                                 const QueryShape& shape);
    void keep(const QueryShape& shape, std::shared_ptr<Statement> statement);

    std::size_t capacity_;
    /// The one used last comes first.
    std::list<Query> queries_;
    std::unordered_map<std::string_view, std::list<Query>::iterator> byShape_;
};

} // namespace quillmere::sqlite

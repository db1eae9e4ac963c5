#include "adapters/sqlite/StatementCache.h"

#include "adapters/sqlite/QueryShape.h"
#include "platform/Error.h"

#include <utility>

namespace quillmere::sqlite {

std::shared_ptr<Statement> StatementCache::statementFor(sqlite3* database, CompilationNote& note,
                                                        std::string_view sql) {
    if (capacity_ == 0) return std::make_shared<Statement>(database, note, sql);
    const QueryShape shape = shapeOf(sql);
    // A statement that has a parameter itself may read like a shape: it has to be refused, not answered.
    const auto found = byShape_.find(shape.sql);
    if (found != byShape_.end() && found->second->texts == shape.texts.size()) {
        queries_.splice(queries_.begin(), queries_, found->second);
        found->second->statement->bind(shape.texts);
        return found->second->statement;
    }
    auto statement = compileShape(database, note, shape);
    // A statement as it stands fails, if it does, with its own words.
    if (statement == nullptr) return std::make_shared<Statement>(database, note, sql);
    if (statement->isQuery()) keep(shape, statement);
    return statement;
}

std::shared_ptr<Statement> StatementCache::compileShape(sqlite3* database, CompilationNote& note,
                                                        const QueryShape& shape) {
    try {
        auto statement = std::make_shared<Statement>(database, note, shape.sql, shape.texts.size());
        statement->bind(shape.texts);
        return statement;
    } catch (const Error&) {
        if (shape.texts.empty()) throw;
        return nullptr;
    }
}

void StatementCache::keep(const QueryShape& shape, std::shared_ptr<Statement> statement) {
    if (queries_.size() >= capacity_) {
        byShape_.erase(queries_.back().shape);
        queries_.pop_back();
    }
    queries_.push_front({shape.sql, shape.texts.size(), std::move(statement)});
    byShape_.emplace(queries_.front().shape, queries_.begin());
}

void StatementCache::clear() {
    byShape_.clear();
    queries_.clear();
}

} // namespace quillmere::sqlite

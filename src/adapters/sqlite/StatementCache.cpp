#include "adapters/sqlite/StatementCache.h"

#include <utility>

namespace quillmere::sqlite {

std::shared_ptr<Statement> StatementCache::statementFor(sqlite3* database, CompilationNote& note,
                                                        std::string_view sql) {
    if (const auto found = byText_.find(sql); found != byText_.end()) {
        queries_.splice(queries_.begin(), queries_, found->second);
        return found->second->statement;
    }
    auto statement = std::make_shared<Statement>(database, note, sql);
    if (capacity_ > 0 && statement->isQuery()) keep(sql, statement);
    return statement;
}

void StatementCache::keep(std::string_view sql, std::shared_ptr<Statement> statement) {
    if (queries_.size() >= capacity_) {
        byText_.erase(queries_.back().sql);
        queries_.pop_back();
    }
    queries_.push_front({std::string(sql), std::move(statement)});
    byText_.emplace(queries_.front().sql, queries_.begin());
}

void StatementCache::clear() {
    byText_.clear();
    queries_.clear();
}

} // namespace quillmere::sqlite

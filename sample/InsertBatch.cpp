#include "sample/InsertBatch.h"

namespace quillmere::sample {

std::string quoted(std::string_view text) {
    std::string literal = "'";
    for (const char c : text) {
        if (c == '\'') literal += '\'';
        literal += c;
    }
    literal += '\'';
    return literal;
}

std::string quotedOrNull(std::string_view text) { return text.empty() ? "null" : quoted(text); }

std::string bareOrNull(std::string_view text) { return text.empty() ? "null" : std::string(text); }

InsertBatch::InsertBatch(data::Connection& connection, std::string_view table, std::string_view columns)
    : connection_(connection)
    , head_("insert into " + std::string(table) + " (" + std::string(columns) + ") values ") {}

void InsertBatch::add(const std::vector<std::string>& literals) {
    rows_ += rows_.empty() ? "(" : ",(";
    for (std::size_t i = 0; i < literals.size(); ++i) {
        if (i != 0) rows_ += ',';
        rows_ += literals[i];
    }
    rows_ += ')';
    if (++count_ == rowsPerStatement) flush();
}

void InsertBatch::flush() {
    if (count_ == 0) return;
    connection_.execute(head_ + rows_);
    rows_.clear();
    count_ = 0;
}

} // namespace quillmere::sample

#include "sample/InsertBatch.h"

#include "sample/CopyTarget.h"

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

namespace {

/// Appends a literal as a field of a line for a CopyTarget.
void appendField(std::string& line, std::string_view literal) {
    if (literal == "null") {
        line += "\\N";
        return;
    }
    if (!literal.starts_with('\'')) {
        line += literal;
        return;
    }
    const std::string_view text = literal.substr(1, literal.size() - 2);
    for (std::size_t i = 0; i < text.size(); ++i) {
        switch (text[i]) {
        case '\\':
            line += "\\\\";
            break;
        case '\t':
            line += "\\t";
            break;
        case '\n':
            line += "\\n";
            break;
        case '\r':
            line += "\\r";
            break;
        case '\'':
            ++i; // the second of two
            [[fallthrough]];
        default:
            line += text[i];
        }
    }
}

} // namespace

InsertBatch::InsertBatch(data::Connection& connection, std::string_view table, std::string_view columns)
    : connection_(connection)
    , copy_(dynamic_cast<CopyTarget*>(&connection))
    , table_(table)
    , columns_(columns) {}

void InsertBatch::add(const std::vector<std::string>& literals) {
    ++count_;
    if (copy_ != nullptr) {
        addLine(literals);
        if (rows_.size() >= bytesPerCopy) flush();
    } else {
        addValues(literals);
        if (count_ == rowsPerStatement) flush();
    }
}

void InsertBatch::addValues(const std::vector<std::string>& literals) {
    rows_ += rows_.empty() ? "(" : ",(";
    for (std::size_t i = 0; i < literals.size(); ++i) {
        if (i != 0) rows_ += ',';
        rows_ += literals[i];
    }
    rows_ += ')';
}

void InsertBatch::addLine(const std::vector<std::string>& literals) {
    for (std::size_t i = 0; i < literals.size(); ++i) {
        if (i != 0) rows_ += '\t';
        appendField(rows_, literals[i]);
    }
    rows_ += '\n';
}

void InsertBatch::flush() {
    if (count_ == 0) return;
    if (copy_ != nullptr) {
        copy_->copyRows(table_, columns_, rows_);
    } else {
        connection_.execute("insert into " + table_ + " (" + columns_ + ") values " + rows_);
    }
    rows_.clear();
    count_ = 0;
}

} // namespace quillmere::sample

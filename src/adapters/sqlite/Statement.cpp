#include "adapters/sqlite/Statement.h"

#include "adapters/sqlite/BooleanItems.h"
#include "adapters/sqlite/SqliteError.h"
#include "platform/data/EmptyList.h"

#include <sqlite3.h>

#include <algorithm>
#include <limits>

namespace quillmere::sqlite {

namespace {

constexpr std::string_view emptyStatement = "语句为空";

bool isBooleanType(const char* type) { return type != nullptr && sqlite3_stricmp(type, "BOOLEAN") == 0; }

const char* orEmpty(const char* text) { return text == nullptr ? "" : text; }

/// Leaves no cursor open, and so no lock held, whichever way a run ends.
class ResetAtEnd {
public:
    explicit ResetAtEnd(sqlite3_stmt* statement) : statement_(statement) {}
    ResetAtEnd(const ResetAtEnd&) = delete;
    ResetAtEnd& operator=(const ResetAtEnd&) = delete;
    ~ResetAtEnd() { sqlite3_reset(statement_); }

private:
    sqlite3_stmt* statement_;
};

} // namespace

void CompilationNote::attachTo(sqlite3* database) {
    // Once for all: each call of this makes SQLite compile every statement again.
    sqlite3_set_authorizer(database, hear, this);
}

void CompilationNote::clear() {
    columnsRead_.clear();
    sawPragma_ = false;
}

int CompilationNote::hear(void* self, int action, const char* first, const char* second, const char* schema,
                          const char*) {
    auto& note = *static_cast<CompilationNote*>(self);
    if (action == SQLITE_PRAGMA) {
        note.sawPragma_ = true;
        return note.ignorePragmas_ ? SQLITE_IGNORE : SQLITE_OK;
    }
    try {
        if (action == SQLITE_READ)
            note.columnsRead_.push_back({orEmpty(schema), orEmpty(first), orEmpty(second)});
    } catch (...) {
        return SQLITE_DENY; // out of memory; SQLite could not carry the exception
    }
    return SQLITE_OK;
}

bool CompilationNote::readsBoolean(sqlite3* database, const std::string& name) const {
    bool found = false;
    for (const auto& column : columnsRead_) {
        if (sqlite3_stricmp(column.name.c_str(), name.c_str()) != 0) continue;
        const char* type = nullptr;
        const int code =
            sqlite3_table_column_metadata(database, column.schema.c_str(), column.table.c_str(),
                                          column.name.c_str(), &type, nullptr, nullptr, nullptr, nullptr);
        // A view's column has no declaration; the table's column behind it is in the note as well.
        if (code != SQLITE_OK) continue;
        if (!isBooleanType(type)) return false;
        found = true;
    }
    return found;
}

void Statement::Finalize::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

Statement::Statement(sqlite3* database, CompilationNote& note, std::string_view sql, std::size_t parameters)
    : database_(database), note_(note) {
    if (sql.empty()) raiseStatementFailed(emptyStatement);
    // SQLite would stop reading there and run what stands before it.
    if (sql.find('\0') != std::string_view::npos) raiseStatementFailed("语句中含有无效字符");
    if (data::hasComment(sql)) raiseStatementFailed("语句中含有注释");

    const auto tokens = data::tokensOf(sql);
    if (data::hasEmptyList(tokens)) raiseStatementFailed("in 后面的列表是空的");
    booleanItems_ = booleanItems(tokens);

    note_.clear();
    note_.ignorePragmas(true);
    std::string_view tail;
    handle_ = compile(sql, tail);
    if (!handle_) raiseStatementFailed(emptyStatement);
    // The name of one may hold a quote, as $a(') does, and so hide the rest of a statement.
    if (static_cast<std::size_t>(sqlite3_bind_parameter_count(handle_.get())) != parameters)
        raiseStatementFailed("语句中含有参数");
    isPragma_ = note_.sawPragma();
    if (!isPragma_) describeColumns();

    while (!tail.empty())
        if (compile(tail, tail)) raiseStatementFailed("一次只能执行一条语句");

    if (isPragma_) {
        note_.ignorePragmas(false);
        handle_ = compile(sql, tail);
        describeColumns();
    }
}

Statement::Handle Statement::compile(std::string_view sql, std::string_view& tail) const {
    if (sql.size() > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        raiseStatementFailed("语句过长");
    sqlite3_stmt* compiled = nullptr;
    const char* end = nullptr;
    const int code = sqlite3_prepare_v2(database_, sql.data(), static_cast<int>(sql.size()), &compiled, &end);
    Handle handle(compiled);
    if (code != SQLITE_OK) raiseLatest(database_, code);
    tail = sql.substr(static_cast<std::size_t>(end - sql.data()));
    return handle;
}

bool Statement::isQuery() const {
    return !isPragma_ && !columns_.empty() && sqlite3_stmt_readonly(handle_.get()) != 0;
}

void Statement::describeColumns() {
    const int count = sqlite3_column_count(handle_.get());
    columns_.clear();
    booleans_.clear();
    // An item like "t.*" is several columns; the items then say nothing about the columns behind it.
    const bool itemsAreColumns = booleanItems_.size() == static_cast<std::size_t>(count);
    for (int i = 0; i < count; ++i) {
        const char* type = sqlite3_column_decltype(handle_.get(), i);
        columns_.emplace_back(orEmpty(sqlite3_column_name(handle_.get(), i)));
        // An expression has no declared type. One that bears the name of a boolean column it was made
        // from, as in "iif(x is null,false,x) as x", is a boolean again.
        const bool byItsText = itemsAreColumns && booleanItems_[static_cast<std::size_t>(i)];
        booleans_.push_back(type == nullptr ? byItsText || note_.readsBoolean(database_, columns_.back())
                                            : isBooleanType(type));
    }
    recompilations_ = sqlite3_stmt_status(handle_.get(), SQLITE_STMTSTATUS_REPREPARE, 0);
}

void Statement::bind(const std::vector<std::string>& texts) {
    int position = 0;
    for (const std::string& text : texts) {
        const int code = sqlite3_bind_text(handle_.get(), ++position, text.data(),
                                           static_cast<int>(text.size()), SQLITE_TRANSIENT);
        if (code != SQLITE_OK) raiseLatest(database_, code);
    }
}

bool Statement::step() {
    const int code = sqlite3_step(handle_.get());
    if (code == SQLITE_ROW) return true;
    if (code == SQLITE_DONE) return false;
    raiseLatest(database_, code);
}

bool Statement::firstStep() {
    note_.clear();
    note_.ignorePragmas(false);
    const bool hasRow = step();
    if (sqlite3_stmt_status(handle_.get(), SQLITE_STMTSTATUS_REPREPARE, 0) != recompilations_)
        describeColumns();
    return hasRow;
}

data::RowSet Statement::query() {
    const ResetAtEnd reset(handle_.get());
    bool more = firstStep();
    data::RowSet rows(columns_);
    for (; more; more = step())
        rows.addRow(currentRow());
    return rows;
}

void Statement::execute() {
    const ResetAtEnd reset(handle_.get());
    for (bool more = firstStep(); more; more = step()) {
    }
}

std::vector<data::Value> Statement::currentRow() const {
    std::vector<data::Value> row;
    row.reserve(columns_.size());
    for (int i = 0; i < static_cast<int>(columns_.size()); ++i)
        row.push_back(cell(i));
    return row;
}

data::Value Statement::cell(int column) const {
    sqlite3_stmt* const statement = handle_.get();
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
        return data::Null{};
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement, column);
    case SQLITE_INTEGER: {
        const std::int64_t number = sqlite3_column_int64(statement, column);
        if (booleans_[static_cast<std::size_t>(column)]) return number != 0;
        return number;
    }
    default: {
        const auto* text = static_cast<const char*>(sqlite3_column_blob(statement, column));
        const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
        return text == nullptr ? std::string_view() : std::string_view(text, size);
    }
    }
}

} // namespace quillmere::sqlite

#pragma once

#include "platform/data/RowSet.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace quillmere::sqlite {

/// What SQLite tells while it compiles a statement. It compiles one again by itself, at the first
/// step, when the schema has changed; the note then holds what that compilation told.
class CompilationNote {
public:
    /// Listens to every compilation of the database from now on. The note must outlive it.
    void attachTo(sqlite3* database);

    /// Begins a new note.
    void clear();

    /// Pragmas act while they are compiled; as long as this is set they compile to nothing.
    void ignorePragmas(bool ignore) { ignorePragmas_ = ignore; }
    [[nodiscard]] bool sawPragma() const { return sawPragma_; }

    /// Whether the statement read a column of that name and every such column is a boolean one.
    [[nodiscard]] bool readsBoolean(sqlite3* database, const std::string& name) const;

private:
    struct Column {
        std::string schema;
        std::string table;
        std::string name;
    };

    static int hear(void* self, int action, const char* first, const char* second, const char* schema,
                    const char* trigger);

    std::vector<Column> columnsRead_;
    bool sawPragma_ = false;
    bool ignorePragmas_ = false;
};

/// One compiled statement.
class Statement {
public:
    /// Compiles the one statement of `sql`. Raises StatementFailed for none, for more than one and
    /// for a faulty one, and for one with another number of parameters than it is said to have; nothing
    /// has run then.
    Statement(sqlite3* database, CompilationNote& note, std::string_view sql, std::size_t parameters = 0);

    /// Puts the texts in the place of the parameters, in their order, for the next run.
    void bind(const std::vector<std::string>& texts);

    /// Runs it to its end, from the start. Raises what the statement raises.
    [[nodiscard]] data::RowSet query();
    void execute();

    /// A query can run again from its compiled form.
    [[nodiscard]] bool isQuery() const;

private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };
    using Handle = std::unique_ptr<sqlite3_stmt, Finalize>;

    [[nodiscard]] Handle compile(std::string_view sql, std::string_view& tail) const;
    /// Takes note of a compilation that the step brought about.
    [[nodiscard]] bool firstStep();
    [[nodiscard]] bool step();
    void describeColumns();
    [[nodiscard]] std::vector<data::Value> currentRow() const;
    [[nodiscard]] data::Value cell(int column) const;

    sqlite3* database_;
    CompilationNote& note_;
    Handle handle_;
    bool isPragma_ = false;
    std::vector<bool> booleanItems_;
    std::vector<std::string> columns_;
    std::vector<bool> booleans_;
    int recompilations_ = 0;
};

} // namespace quillmere::sqlite

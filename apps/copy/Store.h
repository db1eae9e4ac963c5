#pragma once

#include "platform/data/Connection.h"
#include "sample/Dialect.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Copies a register to another database, on the same engine or on the other one.
namespace quillmere::copy {

/// What both engines can store in a column.
enum class Kind { Text, Boolean, Whole, Number };

struct Column {
    std::string name;
    /// As the engine calls it.
    std::string type;
    /// None for a type that the other engine has nothing like.
    std::optional<Kind> kind;
};

struct Table {
    std::string name;
    std::vector<Column> columns;
};

/// The column of that name, without regard to case; none when there is no such.
[[nodiscard]] const Column* findColumn(const Table& table, std::string_view name);
[[nodiscard]] const Table* findTable(const std::vector<Table>& tables, std::string_view name);

/// A name as it stands in a statement, whatever it consists of.
[[nodiscard]] std::string quotedName(std::string_view name);

/// The tables of a register behind an engine.
class Store {
public:
    using Row = std::span<const data::Value>;
    using Visit = std::function<void(Row)>;

    explicit Store(data::Connection& connection) : connection_(connection) {}
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;
    virtual ~Store() = default;

    [[nodiscard]] data::Connection& connection() const { return connection_; }
    [[nodiscard]] virtual sample::Engine engine() const = 0;

    /// From here to `endReading` all that is read is of one moment, whatever clerks save meanwhile.
    virtual void beginReading() = 0;
    void endReading() { connection_.execute("rollback"); }

    /// Sorted by name.
    [[nodiscard]] virtual std::vector<Table> tables() const = 0;
    /// What else is there beside tables, each with its kind: "视图 v".
    [[nodiscard]] virtual std::vector<std::string> others() const = 0;
    /// The name by which statements of the system find a new table or column.
    [[nodiscard]] virtual std::string nameFor(const std::string& name) const = 0;

    /// Shows every row of a table with these columns, in the order in which the engine keeps them. Never
    /// more than some hundred rows are in memory. A transaction is open.
    virtual void read(const Table& table, const std::vector<std::string>& columns, const Visit& visit) = 0;

private:
    data::Connection& connection_;
};

/// A reading that ends with the object.
class Reading {
public:
    explicit Reading(Store& store) : store_(store) { store_.beginReading(); }
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;
    ~Reading();

private:
    Store& store_;
};

} // namespace quillmere::copy

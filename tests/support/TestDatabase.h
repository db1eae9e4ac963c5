#pragma once

#include "platform/data/ObservedConnections.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::test {

/// One row of s_infoitem; an empty optional is a null.
struct FieldRow {
    using OptionalText = std::optional<std::string>;

    OptionalText tblName = "";
    OptionalText itemName = "";
    OptionalText itemDesc = "";
    OptionalText fieldType = "varchar";
    OptionalText fieldLength = "50";
    OptionalText codeTable = "";
    OptionalText style = "";
    OptionalText check = "";
    OptionalText fldOrder = "0";
    std::optional<std::int64_t> fldWidth = 1000;
    OptionalText fldExplain = "";
    std::optional<bool> isNull = true;
};

/// One row of s_infotable; an empty optional is a null.
struct SetRow {
    std::string tblName;
    std::optional<std::string> tblDesc = "";
    std::string otherProp = "0";
    std::optional<std::string> orderField = {};
    std::optional<int> maxNumber = {};
    /// True for a single-record set.
    std::optional<bool> property = true;
};

/// One row of a code table; an empty optional is a null.
struct CodeRow {
    std::string dmcod;
    std::string dmcpt;
    std::optional<std::string> dmhnd = "";
    std::optional<bool> dmattr = true;
};

/// An empty database in memory, published as the shared connection for as long as this object lives.
/// What the system says to it is recorded, and can be made to fail; what the test itself says through
/// `run`, `rows` and the `add` functions is neither.
class TestDatabase {
public:
    TestDatabase();
    ~TestDatabase();
    TestDatabase(const TestDatabase&) = delete;
    TestDatabase& operator=(const TestDatabase&) = delete;

    /// The statements that the system has run or tried, in order, to the letter.
    [[nodiscard]] const std::vector<std::string>& statements() const { return recorder_->statements(); }
    void clearStatements() { recorder_->clear(); }
    /// Makes a coming statement of the system fail (`failAfter`, `failOn`).
    [[nodiscard]] data::FailingConnection& failing() { return *failing_; }
    /// The connection as it is published.
    [[nodiscard]] std::shared_ptr<data::Connection> connection() const { return recorder_; }

    /// The database behind it all, neither recorded nor failing, for what fills it at a stroke.
    [[nodiscard]] data::Connection& engine() { return *engine_; }

    /// Statements of the test itself.
    void run(std::string_view sql);
    [[nodiscard]] data::RowSet rows(std::string_view sql);
    /// First column of the first row as text, a null as "(null)"; fails the test when there is no row.
    [[nodiscard]] std::string cell(std::string_view sql);
    /// The first column of all rows, each as `cell` has it.
    [[nodiscard]] std::vector<std::string> column(std::string_view sql);

    /// Creates the catalogue tables s_infotable, s_infoitem, TS_SetCustomize, s_CodeTableDefine,
    /// s_CodeLevDefine, ZZStyle and S_GUID, empty. Text compares without regard to case.
    void createCatalogue();
    void addSet(const SetRow& row);
    void addField(const FieldRow& row);
    /// Creates a data table: `A00` first, then the columns given, each a name with an optional type
    /// ("A0101", "A0199 integer"); text when there is none.
    void createDataTable(std::string_view name, const std::vector<std::string>& columns);
    /// Adds a row; the values are text, in the order of the table's columns; an empty optional is null.
    void addRow(std::string_view table, const std::vector<std::optional<std::string>>& values);
    /// Creates a code table with its rows, in this order, and its catalogue rows: a description, when
    /// there is one, and a level for each code length.
    void createCodeTable(std::string_view name, std::string_view description, const std::vector<int>& lengths,
                         const std::vector<CodeRow>& rows);

private:
    std::shared_ptr<data::Connection> engine_;
    std::shared_ptr<data::FailingConnection> failing_;
    std::shared_ptr<data::RecordingConnection> recorder_;
};

/// A text, number, boolean or null as a literal of a statement.
[[nodiscard]] std::string literal(const std::optional<std::string>& text);
[[nodiscard]] std::string literal(const std::optional<bool>& value);
[[nodiscard]] std::string literal(const std::optional<std::int64_t>& value);

} // namespace quillmere::test

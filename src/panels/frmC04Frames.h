#pragma once

#include "panels/FailureBox.h"

#include <span>
#include <string>
#include <string_view>

/// The frames of the row editor: one for each kind of row, each with its inputs, its checks and the
/// statements that it writes.
namespace quillmere {

class frmC04;

enum class RowInput {
    Text,
    LongText,
    Amount, ///< a text box for digits and points, in 万元
    Month,  ///< masked "####年##月"
    Year,   ///< masked "####"
};

struct RowInputRow {
    std::string_view name;
    std::string_view caption;
    RowInput kind = RowInput::Text;
};

/// What a check refuses.
enum class RowFault {
    NoDate,           ///< the text is no date
    NoYear,           ///< the text and "-01" is no date
    Empty,            ///< the text is empty or blank
    TooLarge,         ///< the amount is greater than 99999999
    TooLargeIfFilled, ///< the same, unless the text is empty or blank
};

struct RowCheckRow {
    std::string_view input;
    RowFault fault = RowFault::Empty;
    std::string_view message;
    ui::Icon icon = ui::Icon::Warning;
    /// Where the focus goes.
    std::string_view focus = input;
};

/// How a text goes into a statement.
enum class StoredForm {
    AsItStands,
    Trimmed,
    Month, ///< "yyyy-MM"
};

struct RowColumnRow {
    std::string_view column;
    std::string_view input;
    StoredForm inserted = StoredForm::AsItStands;
    StoredForm updated = StoredForm::AsItStands;
};

struct RowFrameRow {
    /// As the caller names it.
    std::string_view number;
    std::string_view frame;
    std::string_view saveButton;
    std::string_view cancelButton;
    std::span<const RowInputRow> inputs;
    /// In their order: the first that refuses ends the saving.
    std::span<const RowCheckRow> checks;
    /// The statements: the insert up to the key, the update up to its first column, the sequence
    /// field, and the greatest number of it that there is.
    std::string_view insertHead;
    std::string_view updateHead;
    std::string_view sequence;
    std::string_view greatest;
    /// Number of the row under change, as the caller has set it.
    std::string frmC04::*changed = nullptr;
    std::span<const RowColumnRow> columns;
    FailureBox failure;
};

[[nodiscard]] std::span<const RowFrameRow> rowFrames();

} // namespace quillmere

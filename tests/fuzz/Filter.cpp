// The Recordset's Filter, with the cursor moved about on what it leaves.

#include "support/Fuzzing.h"

#include "platform/data/Connection.h"
#include "platform/data/Recordset.h"

#include <algorithm>

namespace {

using namespace quillmere;
using fuzz::hold;

/// A few rows, in columns whose names are hard to read.
class Rows final : public data::Connection {
public:
    data::RowSet query(std::string_view) override {
        data::RowSet rows({"A0203", "名称", "x<>", "a ='' "});
        rows.addRow({"甲", data::Null{}, "", 1});
        rows.addRow({"", "乙", data::Null{}, 0.5});
        rows.addRow({data::Null{}, "", "x", ""});
        rows.addRow({true, "丁", "", data::Null{}});
        return rows;
    }
    void execute(std::string_view) override {}
    [[nodiscard]] bool isOpen() const override { return true; }
    void close() override {}
};

void standsSomewhere(const data::Recordset& rows) {
    const std::int32_t position = rows.AbsolutePosition();
    const bool onRow = position >= 1 && position <= rows.RecordCount();
    hold(onRow == (!rows.BOF() && !rows.EOF_()), "the cursor stands on a row, or at an end");
    hold(!fuzz::failureOf([&] { (void)rows.Fields("A0203"); }).has_value() == onRow, "only a row has fields");
}

void move(data::Recordset& rows, char letter) {
    const auto failure = fuzz::failureOf([&] {
        if (letter == 'n') rows.MoveNext();
        if (letter == 'p') rows.MovePrevious();
        if (letter == 'f') rows.MoveFirst();
        if (letter == 'l') rows.MoveLast();
        if (letter >= '0' && letter <= '9') rows.setAbsolutePosition(letter - '0');
    });
    hold(!failure || failure == Failure::NoCurrentRecord || failure == Failure::BadArguments,
         "a move fails where there is no row");
    standsSomewhere(rows);
}

/// Whether exactly one column's rows pass: those with a text of its own, or those with an empty one.
bool isOneColumn(const data::Recordset& rows) {
    const auto& all = rows.rows();
    for (std::size_t column = 0; column < all.columns().size(); ++column) {
        for (const bool wantsEmpty : {true, false}) {
            std::vector<std::size_t> passing;
            for (std::size_t row = 0; row < all.rowCount(); ++row) {
                const data::Value& value = all.at(row, column);
                if (!value.isNull() && value.toText().empty() == wantsEmpty) passing.push_back(row);
            }
            if (passing == rows.visibleRows()) return true;
        }
    }
    return false;
}

} // namespace

/// Lines of filters; a line that begins with ">" is a row of moves.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Rows connection;
    data::Recordset rows;
    rows.open("select", connection);
    for (fuzz::Input input(data, size); !input.atEnd();) {
        const std::string line = input.line();
        if (line.starts_with(">")) {
            for (const char letter : line)
                move(rows, letter);
            continue;
        }
        const auto before = rows.visibleRows();
        const auto position = rows.AbsolutePosition();
        if (const auto failure = fuzz::failureOf([&] { rows.setFilter(line); })) {
            hold(failure == Failure::BadArguments, "a text that is no filter is a bad argument");
            hold(rows.visibleRows() == before && rows.AbsolutePosition() == position, "and changes nothing");
        } else {
            hold(line.empty() ? rows.visibleRows().size() == 4 : isOneColumn(rows),
                 "a filter shows the rows of its one condition");
        }
        standsSomewhere(rows);
    }
    return 0;
}

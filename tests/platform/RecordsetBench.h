#pragma once

#include "FakeConnection.h"
#include "platform/data/Recordset.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace quillmere::data {

using Texts = std::vector<std::string>;

[[nodiscard]] inline RowSet rowsOf(const Texts& codeTables) {
    RowSet rows({"ItemName", "codetable", "width"});
    for (std::size_t i = 0; i < codeTables.size(); ++i)
        rows.addRow({"f" + std::to_string(i + 1), codeTables[i], static_cast<int>(i)});
    return rows;
}

/// A recordset of three rows, the second one without a code table, and a log of its events.
class RecordsetBench : public testing::Test {
protected:
    RecordsetBench() { open({"GB1", "", "GB2"}); }

    void open(const Texts& codeTables) {
        FakeConnection connection(rowsOf(codeTables));
        records->open("select", connection);
    }

    void logEvents() {
        records->onWillMove([this](MoveStatus&) { log.push_back("will from " + position()); });
        records->onMoveComplete([this] { log.push_back("complete at " + position()); });
        records->onViewChange([this] { log.emplace_back("view"); });
    }

    void cancelMoves() {
        records->onWillMove([](MoveStatus& status) { status = MoveStatus::Cancel; });
    }

    [[nodiscard]] std::string position() const {
        return records->State() == 0 ? "closed" : std::to_string(records->AbsolutePosition());
    }

    [[nodiscard]] std::string item() const { return records->Fields("ItemName").toText(); }

    std::unique_ptr<Recordset> records = std::make_unique<Recordset>();
    Texts log;
};

} // namespace quillmere::data

#pragma once

#include "adapters/journal/JournalReader.h"
#include "adapters/sqlite/SqliteConnection.h"
#include "engine/SqliteFolder.h"
#include "platform/convert/Clock.h"
#include "platform/data/ObservedConnections.h"

#include <quillmere/Journal.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace quillmere::journal {

using Lines = std::vector<std::string>;

inline std::string contents(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void write(const std::string& path, std::string_view bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

/// The values of a row, each with its kind: "2:7|4:x".
inline std::string lineOf(const data::RowSet& rows, std::size_t row) {
    std::string line;
    for (const data::Value& value : rows.row(row))
        line += (line.empty() ? "" : "|") + std::to_string(value.raw().index()) + ":" + value.toTextOrEmpty();
    return line;
}

inline Lines linesOf(const data::RowSet& rows) {
    Lines lines;
    for (std::size_t row = 0; row < rows.rowCount(); ++row)
        lines.push_back(lineOf(rows, row));
    return lines;
}

/// A database in memory with a table of records, and a journal in a folder of its own around it. What goes
/// to the database is recorded, and can be made to fail.
class JournalBench : public sqlite::SqliteFolder {
protected:
    JournalBench() {
        clock::fix(convert::DateTime{2026, 11, 21, 9, 30, 0});
        engine->execute(
            "create table A02 (A00 text collate nocase, A0299 integer, A0203 text, A0204 boolean, "
            "A0205 double)");
        engine->execute("insert into A02 values ('p',1,'甲',true,1.5), ('p',2,'乙',false,null), "
                        "('q',1,'it''s',null,0.1)");
    }
    ~JournalBench() override { clock::fix(std::nullopt); }

    [[nodiscard]] std::string file() const { return path("register.journal"); }

    [[nodiscard]] JournalOptions options() {
        return {.file = file(), .who = "clerk", .complain = [this](const std::string& words) {
                    complaints.push_back(words);
                }};
    }

    /// The journal around the database, made with the first call.
    data::Connection& kept() {
        if (!journal_) journal_ = journaled(inner, options());
        return *journal_;
    }
    void useJournal(std::shared_ptr<data::Connection> journal) { journal_ = std::move(journal); }

    [[nodiscard]] Journal read() const { return readJournal(file()); }
    [[nodiscard]] KeptEntry only() const {
        const Journal journal = read();
        EXPECT_EQ(journal.entries.size(), 1U);
        EXPECT_EQ(journal.notes, Lines());
        return journal.entries.empty() ? KeptEntry() : journal.entries.front();
    }

    std::shared_ptr<data::Connection> engine = sqlite::openInMemory();
    std::shared_ptr<data::FailingConnection> failing = std::make_shared<data::FailingConnection>(engine);
    std::shared_ptr<data::RecordingConnection> inner = std::make_shared<data::RecordingConnection>(failing);
    Lines complaints;

private:
    std::shared_ptr<data::Connection> journal_;
};

} // namespace quillmere::journal

#pragma once

#include "adapters/sqlite/SqliteConnection.h"
#include "copy/Program.h"
#include "platform/text/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace quillmere::copy::test {

struct Outcome {
    Status status;
    std::string out;
    std::string complaints;
};

inline Outcome run(const std::vector<std::string>& words) {
    std::ostringstream out;
    std::ostringstream complaints;
    const Status status = runProgram(words, {out, complaints});
    return {status, out.str(), complaints.str()};
}

/// The lines that tell rows and digest, in small letters and sorted: the engines spell and sort names
/// differently.
[[nodiscard]] inline std::vector<std::string> tableLines(const std::string& out) {
    std::vector<std::string> lines;
    std::istringstream stream(out);
    for (std::string line; std::getline(stream, line);)
        if (line.ends_with("一致")) lines.push_back(text::lower(line));
    std::ranges::sort(lines);
    return lines;
}

/// A folder for the files of one test.
class Folder {
public:
    Folder()
        : path_(std::filesystem::temp_directory_path() /
                ("quillmere-copy-" +
                 text::replaceAll(testing::UnitTest::GetInstance()->current_test_info()->name(), "/", "-"))) {
        std::filesystem::remove_all(path_);
        std::filesystem::create_directories(path_);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() { std::filesystem::remove_all(path_); }

    [[nodiscard]] std::string file(const std::string& name) const { return (path_ / name).string(); }

    /// The names of the files there, sorted.
    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path_))
            names.push_back(entry.path().filename().string());
        std::ranges::sort(names);
        return names;
    }

private:
    std::filesystem::path path_;
};

/// Every row of every table of a register in a file, in the order in which they are kept, each with the kinds
/// of its values.
[[nodiscard]] inline std::vector<std::string> rowsOf(const std::string& file) {
    const auto connection = sqlite::open({.path = file});
    const data::RowSet tables =
        connection->query("select name from sqlite_master where type='table' order by name collate nocase");
    std::vector<std::string> lines;
    for (std::size_t table = 0; table < tables.rowCount(); ++table) {
        const std::string name = tables.at(table, 0).toText();
        const data::RowSet rows = connection->query("select * from \"" + name + "\" order by _rowid_");
        for (std::size_t row = 0; row < rows.rowCount(); ++row) {
            std::string line = name;
            for (std::size_t column = 0; column < rows.columns().size(); ++column) {
                const data::Value& value = rows.at(row, column);
                line.append("|")
                    .append(rows.columns()[column])
                    .append("=")
                    .append(std::to_string(value.raw().index()))
                    .append(":")
                    .append(value.toTextOrEmpty());
            }
            lines.push_back(std::move(line));
        }
    }
    return lines;
}

} // namespace quillmere::copy::test

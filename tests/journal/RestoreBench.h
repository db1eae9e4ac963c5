#pragma once

#include "JournalBench.h"

#include "faults/RegisterFile.h"
#include "faults/RunTest.h"
#include "journal/Program.h"

#include <algorithm>
#include <sstream>

namespace quillmere::recovery {

using journal::Lines;

struct Outcome {
    Status status;
    std::string out;
    std::string complaints;
};

inline Outcome runTool(const std::vector<std::string>& words) {
    std::ostringstream out;
    std::ostringstream complaints;
    const Status status = runProgram(words, out, complaints);
    return {status, out.str(), complaints.str()};
}

/// The small register in a file, with three studies of the person, and a journal beside it.
class RestoreBench : public test::RunTest {
protected:
    RestoreBench() { journal::write(database(), freshRegister()); }

    [[nodiscard]] std::string database() const { return folder.path(); }
    [[nodiscard]] std::string journalFile() const { return folder.path("register.journal"); }
    [[nodiscard]] std::shared_ptr<data::Connection> connect() const {
        return sqlite::open({.path = database()});
    }
    [[nodiscard]] std::shared_ptr<data::Connection> connectWithJournal() const {
        return journaled(connect(), {.file = journalFile(),
                                     .who = "clerk",
                                     .complain = [](const std::string& words) { ADD_FAILURE() << words; }});
    }
    /// By a clerk whose connection has the journal.
    void execute(std::string_view sql) const { connectWithJournal()->execute(sql); }
    /// Past the journal.
    void executeUnseen(std::string_view sql) const { connect()->execute(sql); }
    [[nodiscard]] Lines rows() const { return test::allRows(*connect()); }
    /// Without regard to their order: a row that comes back stands elsewhere.
    [[nodiscard]] Lines sortedRows() const {
        Lines sorted = rows();
        std::ranges::sort(sorted);
        return sorted;
    }
    [[nodiscard]] Lines linesOf(std::string_view sql) const {
        return journal::linesOf(connect()->query(sql));
    }
    [[nodiscard]] Lines studies() const { return linesOf("select A0299,A0203 from A02 order by A0299"); }

    [[nodiscard]] Outcome list(std::vector<std::string> words = {}) const {
        words.insert(words.begin(), {"list", journalFile()});
        return runTool(words);
    }
    [[nodiscard]] Outcome show(int entry) const {
        return runTool({"show", journalFile(), std::to_string(entry)});
    }
    [[nodiscard]] Outcome restore(const std::vector<int>& entries, const Lines& options = {}) const {
        std::vector<std::string> words{"restore", journalFile()};
        for (const int entry : entries)
            words.push_back(std::to_string(entry));
        words.push_back(database());
        words.insert(words.end(), options.begin(), options.end());
        return runTool(words);
    }
    /// The number of the youngest entry that deletes from the table, with rows.
    [[nodiscard]] int entryThatDeleted(const std::string& table) const {
        const journal::Journal journal = journal::readJournal(journalFile());
        for (auto kept = journal.entries.rbegin(); kept != journal.entries.rend(); ++kept)
            if (kept->entry.kind == journal::Kind::Delete && kept->entry.table == table &&
                !kept->entry.rows.empty())
                return static_cast<int>(kept->number);
        ADD_FAILURE() << "nothing was deleted from " << table;
        return 0;
    }

    const std::string id{test::thePerson};
    test::RegisterFile folder;

private:
    /// The bytes of the register, which is made once.
    static const std::string& freshRegister() {
        static const std::string bytes = [] {
            const test::RegisterFile folder;
            const auto made = sqlite::open({.path = folder.path(), .create = true});
            test::makeSmallRegister(*made);
            for (const char* study : test::studies)
                made->execute(study);
            made->close();
            return journal::contents(folder.path());
        }();
        return bytes;
    }
};

inline bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

} // namespace quillmere::recovery

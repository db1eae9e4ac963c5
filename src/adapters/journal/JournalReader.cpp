#include "adapters/journal/JournalReader.h"

#include "adapters/journal/JournalFile.h"
#include "adapters/journal/Record.h"
#include "platform/Error.h"
#include "platform/files/Files.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace quillmere::journal {

namespace {

class Reader {
public:
    void readFile(const std::string& path) {
        const std::string bytes = files::read(path);
        const Records read = readRecords(bytes);
        for (const Record& record : read.records)
            take(path, record);
        for (const Damage& damage : read.damages)
            note(path, damage, read.tornEnd && damage.end == bytes.size());
    }

    [[nodiscard]] Journal finish() {
        // In their order unless somebody has put files together.
        std::ranges::stable_sort(journal_.entries, {}, &KeptEntry::number);
        for (Outcome& outcome : outcomes_) {
            const auto found =
                std::ranges::lower_bound(journal_.entries, outcome.entry, {}, &KeptEntry::number);
            if (found != journal_.entries.end() && found->number == outcome.entry)
                found->outcome = std::move(outcome);
        }
        return std::move(journal_);
    }

private:
    void take(const std::string& path, const Record& record) {
        if (record.kind == Record::Kind::Outcome) {
            if (auto outcome = readOutcome(record.text)) outcomes_.push_back(*std::move(outcome));
        } else if (auto entry = readEntry(record.text)) {
            journal_.entries.push_back({record.number, *std::move(entry), std::nullopt});
        } else {
            journal_.notes.push_back(path + "：第 " + std::to_string(record.number) +
                                     " 条记录的内容本程序看不懂，已跳过");
        }
    }

    void note(const std::string& path, const Damage& damage, bool isEnd) {
        const std::string size = std::to_string(damage.end - damage.begin);
        journal_.notes.push_back(isEnd ? path + "：末尾 " + size + " 字节不是完整的记录（写入时中断），已跳过"
                                       : path + "：从第 " + std::to_string(damage.begin) + " 字节起有 " +
                                             size + " 字节已损坏，已跳过");
    }

    Journal journal_;
    std::vector<Outcome> outcomes_;
};

} // namespace

const KeptEntry* Journal::find(std::uint64_t number) const {
    const auto found = std::ranges::lower_bound(entries, number, {}, &KeptEntry::number);
    return found != entries.end() && found->number == number ? &*found : nullptr;
}

Journal readJournal(const std::string& path) {
    const std::string older = olderFile(path);
    const bool hasOlder = files::exists(older);
    if (!hasOlder && !files::exists(path)) throw Error(Failure::FileNotFound);
    Reader reader;
    if (hasOlder) reader.readFile(older);
    if (files::exists(path)) reader.readFile(path);
    return reader.finish();
}

} // namespace quillmere::journal

// The file of a journal, whole, damaged or torn: every record that stands in it whole is read, and no byte is
// read twice.

#include "support/Fuzzing.h"

#include "adapters/journal/Entry.h"
#include "adapters/journal/Record.h"

namespace {

using namespace quillmere::journal;
using quillmere::fuzz::hold;

constexpr std::uint64_t number = 17;

void readAll(std::string_view bytes) {
    const Records read = readRecords(bytes);
    std::size_t end = 0;
    for (const Record& record : read.records) {
        const auto begin = static_cast<std::size_t>(record.text.data() - bytes.data());
        hold(begin >= end && record.text.size() <= bytes.size() - begin, "records stand in their order");
        end = begin + record.text.size();
    }
    end = 0;
    for (const Damage& damage : read.damages) {
        hold(damage.begin >= end && damage.begin < damage.end && damage.end <= bytes.size(),
             "damaged pieces stand in their order");
        end = damage.end;
    }
}

bool holds(std::string_view bytes, std::string_view text) {
    for (const Record& record : readRecords(bytes).records)
        if (record.kind == Record::Kind::Entry && record.number == number && record.text == text) return true;
    return false;
}

} // namespace

/// A line of what stands before a record, and the record's text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    quillmere::fuzz::Input input(data, size);
    const std::string before = input.line();
    const std::string text = input.rest();
    readAll(before + text);

    const std::string record = bytesOf(Record::Kind::Entry, number, text);
    hold(holds(before + record, text), "a record is found behind a damage");
    hold(holds(record + before, text), "a record is found before a damage");
    hold(!holds(record.substr(0, record.size() - 1), text), "a record that breaks off is none");

    if (const auto entry = readEntry(text)) {
        const std::string written = textOf(*entry);
        const auto again = readEntry(written);
        hold(again && textOf(*again) == written, "an entry is read as it was written");
    }
    if (const auto outcome = readOutcome(text)) {
        const auto again = readOutcome(textOf(*outcome));
        hold(again && again->entry == outcome->entry && again->failure == outcome->failure,
             "an outcome is read as it was written");
    }
    return 0;
}

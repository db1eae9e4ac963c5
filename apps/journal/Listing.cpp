#include "journal/Listing.h"

#include "journal/AlignedLines.h"
#include "journal/EntryFacts.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <ostream>

namespace quillmere::recovery {

namespace {

bool isWanted(const journal::Entry& entry, const Arguments& limits) {
    if (!limits.table.empty() && !text::equalsNoCase(journal::plainName(entry.table), limits.table))
        return false;
    if (entry.time < limits.since) return false;
    if (limits.identity.empty()) return true;
    return std::ranges::any_of(identitiesOf(entry), [&](const std::string& identity) {
        return text::equalsNoCase(identity, limits.identity);
    });
}

std::string identityText(const journal::Entry& entry) {
    const std::vector<std::string> identities = identitiesOf(entry);
    if (identities.empty()) return "-";
    std::string words = shownText(identities.front());
    if (identities.size() > 1) words += " 等 " + std::to_string(identities.size()) + " 个";
    return words;
}

bool keepsRows(const journal::Entry& entry) {
    return entry.kind == journal::Kind::Delete || entry.kind == journal::Kind::Update;
}

std::string rowsText(const journal::Entry& entry) {
    if (!keepsRows(entry)) return "-";
    if (!entry.trouble.empty()) return "没有记下";
    std::string words = std::to_string(entry.rows.rowCount());
    if (entry.rowsLeftOut != 0) words += "（另有 " + std::to_string(entry.rowsLeftOut) + " 行没有记下）";
    return words;
}

void writeHead(std::ostream& out, const journal::KeptEntry& kept) {
    const journal::Entry& entry = kept.entry;
    std::string outcome(outcomeOf(kept));
    if (!kept.outcome) outcome += "（语句还没有结束，程序就中断了）";
    if (kept.outcome && kept.outcome->failure) outcome += "：" + shownText(*kept.outcome->failure);
    std::string statement = shownText(entry.statement);
    if (entry.statementBytesLeftOut != 0)
        statement += "……（还有 " + std::to_string(entry.statementBytesLeftOut) + " 字节没有记下）";
    AlignedLines lines;
    lines.add({"序号", std::to_string(kept.number)});
    lines.add({"时间", entry.time});
    lines.add({"操作人", shownText(entry.who)});
    lines.add({"操作", std::string(deedOf(entry)) + " " + shownText(entry.table)});
    lines.add({"结果", outcome});
    lines.add({"语句", statement});
    if (keepsRows(entry)) lines.add({"行数", rowsText(entry)});
    if (!entry.trouble.empty()) lines.add({"原因", shownText(entry.trouble)});
    lines.write(out);
}

} // namespace

void writeList(std::ostream& out, const journal::Journal& journal, const Arguments& limits) {
    AlignedLines lines;
    lines.add({"序号", "时间", "操作人", "操作", "表", "身份", "结果", "行数"});
    for (const journal::KeptEntry& kept : journal.entries) {
        const journal::Entry& entry = kept.entry;
        if (!isWanted(entry, limits)) continue;
        lines.add({std::to_string(kept.number), entry.time, shownText(entry.who), std::string(deedOf(entry)),
                   shownText(entry.table), identityText(entry), std::string(outcomeOf(kept)),
                   rowsText(entry)});
    }
    lines.write(out);
}

void writeEntry(std::ostream& out, const journal::KeptEntry& kept) {
    writeHead(out, kept);
    const data::RowSet& rows = kept.entry.rows;
    for (std::size_t row = 0; row < rows.rowCount(); ++row) {
        out << "\n第 " << row + 1 << " 行\n";
        AlignedLines lines;
        for (std::size_t column = 0; column < rows.columns().size(); ++column) {
            const std::string& name = rows.columns()[column];
            std::string words = shown(rows.at(row, column));
            if (const auto after = newValue(kept.entry, name)) words += " → " + shownText(*after);
            lines.add({"  " + name, words});
        }
        lines.write(out);
    }
}

} // namespace quillmere::recovery

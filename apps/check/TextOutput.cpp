#include "check/CheckGroup.h"
#include "check/Output.h"

#include <array>
#include <ostream>
#include <string>

namespace quillmere::check {

namespace {

constexpr std::array levels{Level::Error, Level::Warning, Level::Note};

std::string placeOf(const Finding& finding) {
    std::string place = finding.table;
    for (const Key& key : finding.row)
        place += (&key == finding.row.data() ? "：" : "，") + key.column + "=" + key.value;
    return place;
}

void writeFinding(std::ostream& out, const Finding& finding) {
    const FindingKind& kind = *finding.kind;
    out << captionOf(kind.level) << ' ' << kind.id << ' ' << kind.title << '\n'
        << "  位置  " << placeOf(finding) << '\n';
    if (!finding.detail.empty()) out << "  情况  " << finding.detail << '\n';
    out << "  后果  " << effectOf(kind) << '\n'
        << "  办法  " << kind.remedy << '\n'
        << "  详见  " << pageOf(kind) << "\n\n";
}

} // namespace

void writeText(std::ostream& out, const Report& report) {
    for (const Finding& finding : report.sorted())
        writeFinding(out, finding);
    if (report.empty()) out << "没有发现问题。\n";
    for (const Level level : levels)
        out << captionOf(level) << ' ' << report.count(level) << (level == Level::Note ? "\n" : "，");
}

void writeKinds(std::ostream& out) {
    out << "| 标识 | 级别 | 问题 |\n| --- | --- | --- |\n";
    for (const FindingKind* kind : findingKinds()) {
        out << "| [" << kind->id << "](check/" << kind->id << ".md) | " << captionOf(kind->level) << " | "
            << kind->title << " |\n";
    }
}

} // namespace quillmere::check

#include "check/CheckGroup.h"
#include "check/Json.h"
#include "check/Output.h"

#include <ostream>

namespace quillmere::check {

namespace {

using json::Member;

std::string rowOf(const Finding& finding) {
    std::vector<Member> members;
    for (const Key& key : finding.row)
        members.push_back({key.column, json::text(key.value)});
    return json::object(members);
}

std::string findingOf(const Finding& finding) {
    const FindingKind& kind = *finding.kind;
    return json::object({{"id", json::text(kind.id)},
                         {"level", json::text(nameOf(kind.level))},
                         {"title", json::text(kind.title)},
                         {"table", json::text(finding.table)},
                         {"row", rowOf(finding)},
                         {"detail", json::text(finding.detail)},
                         {"effect", json::text(effectOf(kind))},
                         {"remedy", json::text(kind.remedy)},
                         {"page", json::text(pageOf(kind))}});
}

std::string countOf(const Report& report, Level level) { return std::to_string(report.count(level)); }

} // namespace

void writeJson(std::ostream& out, std::string_view database, const Report& report) {
    std::vector<std::string> findings;
    for (const Finding& finding : report.sorted())
        findings.push_back(findingOf(finding));
    const std::string summary = json::object({{"errors", countOf(report, Level::Error)},
                                              {"warnings", countOf(report, Level::Warning)},
                                              {"notes", countOf(report, Level::Note)}});
    out << json::object({{"database", json::text(database)},
                         {"summary", summary},
                         {"findings", json::array(findings)}})
        << '\n';
}

void writeKindsAsJson(std::ostream& out) {
    std::vector<std::string> kinds;
    for (const FindingKind* kind : findingKinds()) {
        kinds.push_back(json::object({{"id", json::text(kind->id)},
                                      {"level", json::text(nameOf(kind->level))},
                                      {"title", json::text(kind->title)},
                                      {"effect", json::text(effectOf(*kind))},
                                      {"remedy", json::text(kind->remedy)},
                                      {"page", json::text(pageOf(*kind))}}));
    }
    out << json::array(kinds) << '\n';
}

} // namespace quillmere::check

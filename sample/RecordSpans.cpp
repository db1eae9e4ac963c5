#include "sample/RecordSpans.h"

#include <algorithm>

namespace quillmere::sample {
namespace {

/// The register has been kept to the end of this year.
constexpr int lastYear = 2025;
constexpr int recentYears = 7;

Span yearsOf(int first, int last) { return {monthOf(first, 1), monthOf(last, 12)}; }

Span wholeSpan(Scope scope, const Subject& subject) {
    const int now = monthOf(lastYear, 12);
    switch (scope) {
    case Scope::Career:
    case Scope::Trade:
        return {subject.workSince, now};
    case Scope::Recent:
        return {std::max(subject.workSince, monthOf(lastYear - recentYears + 1, 1)), now};
    case Scope::After: {
        const int closed = yearOf(monthFrom(subject.project->to));
        return yearsOf(closed + 1, closed + 2);
    }
    default:
        return {monthFrom(subject.project->from), monthFrom(subject.project->to)};
    }
}

/// A stretch somewhere inside.
Span within(Span part, Random& random) {
    const int from = random.between(part.from, part.from + (part.to - part.from) / 2);
    return {from, random.between(from, part.to)};
}

void addParts(std::vector<RecordSpan>& spans, Span whole, int count, int reportYear) {
    for (int i = 0; i < count; ++i)
        spans.push_back({whole.part(i, count), reportYear});
}

} // namespace

std::vector<RecordSpan> recordSpans(const SetRecipe& recipe, const Subject& subject, Random& random) {
    std::vector<RecordSpan> spans;
    if (recipe.scope == Scope::Reports || recipe.scope == Scope::Next) {
        const int last = std::min(lastYear, yearOf(monthFrom(subject.project->to)));
        const int ahead = recipe.scope == Scope::Next ? 1 : 0;
        for (int year = subject.project->year; year <= last; ++year) {
            addParts(spans, yearsOf(year + ahead, year + ahead), random.between(recipe.least, recipe.most),
                     year);
        }
        return spans;
    }
    addParts(spans, wholeSpan(recipe.scope, subject), random.between(recipe.least, recipe.most), 0);
    if (recipe.scope == Scope::Career || recipe.scope == Scope::Recent) {
        for (RecordSpan& record : spans)
            record.span = within(record.span, random);
    }
    return spans;
}

} // namespace quillmere::sample

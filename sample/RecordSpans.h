#pragma once

#include "sample/Months.h"
#include "sample/Random.h"
#include "sample/Recipes.h"
#include "sample/Subject.h"

#include <vector>

namespace quillmere::sample {

/// What time one record speaks of, and the year that it reports on; 0 for a record that reports on none.
struct RecordSpan {
    Span span;
    int reportYear = 0;
};

/// The stretches of the records that the subject has in the set, in the order of time. The numbers of
/// records lie between the recipe's bounds.
[[nodiscard]] std::vector<RecordSpan> recordSpans(const SetRecipe& recipe, const Subject& subject,
                                                  Random& random);

} // namespace quillmere::sample

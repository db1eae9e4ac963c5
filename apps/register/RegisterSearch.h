#pragma once

#include "register/RegisterQuery.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace quillmere::data {
class Connection;
}

namespace quillmere::host {

/// Where a record stands in its table, by which it is read fast.
using RecordKey = std::int64_t;

/// What a search has found since it was last heard of.
struct SearchStep {
    std::vector<RecordKey> keys;
    /// How much of the register has been looked through.
    int permille = 0;
};

/// Hears each step of a search; false ends it.
using HearStep = std::function<bool(SearchStep step)>;

/// Looks for the records of a query. Those whose name begins with the text come first, from the index of
/// names; then the register is looked through in slices, from the newest record to the oldest, for those
/// that hold the text elsewhere. Without a text the records of a stage come at once, from the index of
/// stages. True when it came to its end. Raises quillmere::Error.
[[nodiscard]] bool search(data::Connection& connection, const Query& query, const HearStep& hear);

} // namespace quillmere::host

#pragma once

#include "platform/text/Text.h"

#include <string>
#include <string_view>

namespace quillmere::fuzz {

/// Whether a condition may mean something else from one run to the next, by chance, clock or counters.
inline bool mayDiffer(std::string_view condition) {
    const std::string small = text::lower(condition);
    for (const char* word :
         {"random", "changes", "total", "rowid", "current", "date", "time", "day", "epoch"})
        if (small.find(word) != std::string::npos) return true;
    return false;
}

} // namespace quillmere::fuzz

#pragma once

#include "register/RegisterQuery.h"

#include <vector>

namespace quillmere::host {

/// A column of the list, as the screen shows it.
struct Column {
    const char* title;
    /// Pixels.
    int width;
};

/// What is asked of the database for a kind.
struct Source {
    const char* table;
    /// The running number; a higher one is newer.
    const char* number;
    const char* name;
    /// Every column whose text a search looks into, the name among them.
    std::vector<const char*> searched;
    /// The same, for the person who searched in vain.
    const char* searchedNames;
    /// Identity and type, then the columns of the list in their order but for those of the project.
    const char* selected;
    const char* joined;
    std::vector<Column> columns;
};

[[nodiscard]] const Source& sourceOf(Kind kind);

} // namespace quillmere::host

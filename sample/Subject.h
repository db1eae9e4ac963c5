#pragma once

#include "sample/Project.h"

#include <string>

namespace quillmere::sample {

/// Whose records are made: a person or a unit, with the project.
struct Subject {
    std::string key;
    /// Sponsorship type, 1 to 7.
    int type = 1;
    /// The unit itself, or the person's employer.
    std::string unit;
    /// The person's trade or subject of study; the unit's line of work.
    std::string field;
    /// The month in which the person's work began.
    int workSince = 0;
    const Project* project = nullptr;
};

} // namespace quillmere::sample

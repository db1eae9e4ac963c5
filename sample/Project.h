#pragma once

#include "sample/Pools.h"
#include "sample/Random.h"

#include <string>

namespace quillmere::sample {

/// A made-up project of a person or a unit. Months as "2026-03", amounts in 万元 as text.
struct Project {
    std::string key;
    std::string title;
    /// "01" applied for, "02" under way, "03" closed.
    std::string stage;
    std::string number;
    std::string group;
    /// The code of the department that recommends a unit's project; empty for a person's.
    std::string department;
    std::string total;
    std::string sponsored;
    std::string matching;
    std::string from;
    std::string to;
    std::string goingAbroad;
    std::string closed;
    std::string closingForm;
    std::string acceptedBy;
    int year = 0;
    /// The amounts `sponsored` and `matching` again, to reckon with.
    int sponsoredHundredths = 0;
    int matchingHundredths = 0;
};

/// An amount in hundredths as a person types it: "12", "12.50".
[[nodiscard]] std::string amountText(int hundredths);

/// Makes the project of the identity `key`, applied for in `year` under sponsorship type `type`.
/// The stage follows from the year. `serial` numbers the projects of a year, from 1.
[[nodiscard]] Project makeProject(const Pools& pools, Random& random, const std::string& key, int year,
                                  int type, int serial);

} // namespace quillmere::sample

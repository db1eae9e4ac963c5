#pragma once

#include "sample/Pools.h"
#include "sample/RowMaker.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillmere::sample {

/// What time the records of a set speak of.
enum class Scope {
    Career,  ///< since the person's work began
    Recent,  ///< the last years of that
    Trade,   ///< like a career, one stretch following the other
    Project, ///< the project's run
    Reports, ///< a year of the project, one lot of records for each year reported on
    Next,    ///< likewise, the year behind the one reported on
    After,   ///< the two years behind the project
};

/// How one field of a record is filled.
struct FieldRecipe {
    std::string name;
    /// The digits of the sponsorship types that it is filled under; empty for all.
    std::string types;
    Filling filling;
    FieldLiteral literal = FieldLiteral::Text;
};

/// How the records of an information set are made.
struct SetRecipe {
    std::string name;
    bool single = false;
    Scope scope = Scope::Project;
    /// How many records, for each report where the scope is one of reports.
    int least = 1;
    int most = 1;
    /// Who has any: those whose chance, from 1 to 100, lies between these two.
    int from = 1;
    int to = 100;
    std::vector<FieldRecipe> fields;
};

/// The embedded recipes, in the order of `record_sets.csv`. They refer to the pools. Raises BadArguments for
/// a scope or a filling that nobody knows, a set or field that the catalogue does not have, and ItemNotFound
/// for a pool or code table that is not there.
[[nodiscard]] std::vector<SetRecipe> recordRecipes(const Pools& pools);

/// Which sets the menu of a sponsorship type offers, as "A01".
struct MenuSets {
    std::vector<std::string> person;
    std::vector<std::string> project;
    std::vector<std::string> plan;
};
[[nodiscard]] MenuSets menuSets(int type);

} // namespace quillmere::sample

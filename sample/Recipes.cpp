#include "sample/Recipes.h"

#include "platform/Error.h"
#include "platform/text/Text.h"
#include "sample/Catalogue.h"
#include "sample/Csv.h"
#include "sample/EmbeddedFiles.h"
#include "sample/Person.h"

#include <algorithm>
#include <iterator>

namespace quillmere::sample {
namespace {

struct ScopeName {
    std::string_view name;
    Scope scope;
};

constexpr ScopeName scopeNames[] = {
    {"career", Scope::Career},   {"recent", Scope::Recent},   {"trade", Scope::Trade},
    {"project", Scope::Project}, {"reports", Scope::Reports}, {"next", Scope::Next},
    {"after", Scope::After},
};

Scope scopeFrom(const std::string& name) {
    const auto found = std::ranges::find(scopeNames, name, &ScopeName::name);
    if (found == std::end(scopeNames)) throw Error(Failure::BadArguments, "没有时段 " + name, "Recipes");
    return found->scope;
}

FieldLiteral literalOf(const std::string& type) {
    const std::string kind = text::lower(type);
    if (kind == "datetime") return FieldLiteral::Date;
    return kind == "int" || kind == "bit" ? FieldLiteral::Bare : FieldLiteral::Text;
}

template <typename Row>
const Row& named(const std::vector<Row>& rows, const std::string& name) {
    const auto found = std::ranges::find(rows, name, &Row::name);
    if (found == rows.end()) throw Error(Failure::BadArguments, "没有 " + name, "Recipes");
    return *found;
}

} // namespace

std::vector<SetRecipe> recordRecipes(const Pools& pools) {
    const std::vector<SetRow> catalogue = informationSets();
    std::vector<SetRecipe> recipes;
    const CsvTable sets = parseCsv(embeddedFile("record_sets.csv"), "record_sets.csv");
    for (const auto& row : sets.rows()) {
        recipes.push_back({row[0],
                           named(catalogue, row[0]).single,
                           scopeFrom(row[1]),
                           std::stoi(row[2]),
                           std::stoi(row[3]),
                           std::stoi(row[4]),
                           std::stoi(row[5]),
                           {}});
    }
    const CsvTable fields = parseCsv(embeddedFile("record_fields.csv"), "record_fields.csv");
    for (const auto& row : fields.rows()) {
        const FieldRow& field = named(named(catalogue, row[0]).fields, row[1]);
        const auto recipe = std::ranges::find(recipes, row[0], &SetRecipe::name);
        if (recipe == recipes.end()) throw Error(Failure::BadArguments, "没有 " + row[0], "Recipes");
        recipe->fields.push_back({row[1], row[2], parseFilling(row[3], pools), literalOf(field.type)});
    }
    return recipes;
}

MenuSets menuSets(int type) {
    const CsvTable menus = parseCsv(embeddedFile("TS_SetCustomize.csv"), "TS_SetCustomize.csv");
    const auto list = [&](int row, std::string_view column) {
        const std::string code = padded(row, 2);
        const auto found = std::ranges::find(menus.rows(), code, [](const auto& r) { return r.front(); });
        if (found == menus.rows().end()) throw Error(Failure::BadArguments, "没有 " + code, "Recipes");
        return text::split((*found)[menus.column(column)], ",");
    };
    // The plan menu knows three rows alone.
    const int planRow = type == 1 || type == 6 ? type : 2;
    return {list(type, "PersonItem"), list(type, "ProjectItem"), list(planRow, "PlanItem")};
}

} // namespace quillmere::sample

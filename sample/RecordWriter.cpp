#include "sample/RecordWriter.h"

#include "sample/Months.h"
#include "sample/RecordSpans.h"

#include <algorithm>
#include <iterator>

namespace quillmere::sample {
namespace {

constexpr std::size_t collectiveType = 6;

/// The row editor numbers its rows over the whole table: those of the budgets, and of the schedules of the
/// types that keep theirs with it.
bool isNumberedOverTheTable(const std::string& set, int type) {
    return set == "P03" || set == "C04" || (set == "P02" && (type == 4 || type == 7));
}

std::string columnList(const SetRecipe& recipe, const std::vector<std::string>& fields) {
    std::string list = "A00";
    if (!recipe.single) list += "," + recipe.name + "99";
    for (const std::string& field : fields)
        list += "," + field;
    return list;
}

std::vector<std::string> fieldNames(const SetRecipe& recipe) {
    std::vector<std::string> names;
    for (const FieldRecipe& field : recipe.fields) {
        if (std::ranges::find(names, field.name) == names.end()) names.push_back(field.name);
    }
    return names;
}

const FieldRecipe* recipeFor(const SetRecipe& recipe, const std::string& name, char type) {
    for (const FieldRecipe& field : recipe.fields) {
        if (field.name == name && (field.types.empty() || field.types.find(type) != std::string::npos))
            return &field;
    }
    return nullptr;
}

std::string literalOf(FieldLiteral literal, const std::string& value) {
    switch (literal) {
    case FieldLiteral::Date:
        return quotedOrNull(value);
    case FieldLiteral::Bare:
        return bareOrNull(value);
    default:
        return quoted(value);
    }
}

} // namespace

RecordWriter::RecordWriter(data::Connection& connection, const Pools& pools)
    : pools_(pools), recipes_(recordRecipes(pools)) {
    tables_.reserve(recipes_.size());
    for (const SetRecipe& recipe : recipes_)
        addTable(connection, recipe);
    for (std::size_t type = 1; type < types; ++type)
        chooseTables(type);
}

void RecordWriter::addTable(data::Connection& connection, const SetRecipe& recipe) {
    const std::vector<std::string> names = fieldNames(recipe);
    Table table{&recipe, {}, InsertBatch(connection, recipe.name, columnList(recipe, names)), {}};
    for (std::size_t type = 1; type < types; ++type) {
        const char digit = static_cast<char>('0' + type);
        for (const std::string& name : names)
            table.columns[type].push_back(recipeFor(recipe, name, digit));
    }
    tables_.push_back(std::move(table));
}

void RecordWriter::chooseTables(std::size_t type) {
    const MenuSets menu = menuSets(static_cast<int>(type));
    curriculum_[type] = tablesOf(menu.person);
    application_[type] = tablesOf(menu.project);
    progress_[type] = tablesOf(menu.plan);
    // Reports and closing take every set of their letter, without a list.
    const char report = type == collectiveType ? 'M' : 'E';
    const char closing = type == collectiveType ? 'N' : 'F';
    for (std::size_t i = 0; i < tables_.size(); ++i) {
        const char letter = tables_[i].recipe->name.front();
        if (letter == report) progress_[type].push_back(i);
        if (letter == closing) closing_[type].push_back(i);
    }
}

RecordWriter::Indexes RecordWriter::tablesOf(const std::vector<std::string>& sets) const {
    Indexes indexes;
    for (std::size_t i = 0; i < tables_.size(); ++i) {
        if (std::ranges::find(sets, tables_[i].recipe->name) != sets.end()) indexes.push_back(i);
    }
    return indexes;
}

void RecordWriter::writeCurriculum(const Subject& subject, Random& random) {
    writeTables(curriculum_[static_cast<std::size_t>(subject.type)], subject, random);
}

void RecordWriter::writeProject(const Subject& subject, Random& random) {
    const auto type = static_cast<std::size_t>(subject.type);
    writeTables(application_[type], subject, random);
    if (subject.project->stage == "01") return;
    writeTables(progress_[type], subject, random);
    if (subject.project->stage == "03") writeTables(closing_[type], subject, random);
}

void RecordWriter::writeTables(const Indexes& tables, const Subject& subject, Random& random) {
    RowMaker maker(pools_, random, subject);
    const int chance = random.between(1, 100);
    for (const std::size_t index : tables) {
        Table& table = tables_[index];
        if (chance >= table.recipe->from && chance <= table.recipe->to)
            writeSet(table, subject, random, maker);
    }
}

void RecordWriter::writeSet(Table& table, const Subject& subject, Random& random, RowMaker& maker) {
    const SetRecipe& recipe = *table.recipe;
    const std::vector<RecordSpan> spans = recordSpans(recipe, subject, random);
    const bool waits = isNumberedOverTheTable(recipe.name, subject.type);
    if (waits) table.waiting.emplace_back();
    maker.beginSet(spans.size());
    for (std::size_t i = 0; i < spans.size(); ++i) {
        maker.beginRow(spans[i].span, spans[i].reportYear, i + 1 == spans.size());
        Row row = rowOf(table, subject, maker);
        if (waits) {
            table.waiting.back().push_back(std::move(row));
            continue;
        }
        if (!recipe.single) row[1] = std::to_string(i + 1);
        table.batch.add(row);
    }
}

RecordWriter::Row RecordWriter::rowOf(const Table& table, const Subject& subject, RowMaker& maker) {
    const auto& columns = table.columns[static_cast<std::size_t>(subject.type)];
    Row row{quoted(subject.key)};
    if (!table.recipe->single) row.emplace_back();
    for (const FieldRecipe* field : columns)
        row.push_back(field == nullptr ? quoted("") : literalOf(field->literal, maker.value(field->filling)));
    return row;
}

void RecordWriter::numberOverTheTable(Table& table) {
    // Three projects at a time have been worked on by turns, so that the numbers of one have gaps.
    constexpr std::size_t atATime = 3;
    int number = 0;
    for (std::size_t first = 0; first < table.waiting.size(); first += atATime) {
        const std::size_t behind = std::min(first + atATime, table.waiting.size());
        bool any = true;
        for (std::size_t turn = 0; any; ++turn) {
            any = false;
            for (std::size_t project = first; project < behind; ++project) {
                auto& rows = table.waiting[project];
                if (turn >= rows.size()) continue;
                any = true;
                rows[turn][1] = std::to_string(++number);
                table.batch.add(rows[turn]);
            }
        }
    }
    table.waiting.clear();
}

void RecordWriter::flush() {
    for (Table& table : tables_) {
        numberOverTheTable(table);
        table.batch.flush();
    }
}

} // namespace quillmere::sample

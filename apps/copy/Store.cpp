#include "copy/Store.h"

#include "platform/text/Text.h"

#include <algorithm>
#include <exception>

namespace quillmere::copy {

const Column* findColumn(const Table& table, std::string_view name) {
    const auto found = std::ranges::find_if(
        table.columns, [name](const Column& column) { return text::equalsNoCase(column.name, name); });
    return found == table.columns.end() ? nullptr : &*found;
}

const Table* findTable(const std::vector<Table>& tables, std::string_view name) {
    const auto found = std::ranges::find_if(
        tables, [name](const Table& table) { return text::equalsNoCase(table.name, name); });
    return found == tables.end() ? nullptr : &*found;
}

std::string quotedName(std::string_view name) { return '"' + text::replaceAll(name, "\"", "\"\"") + '"'; }

Reading::~Reading() {
    try {
        store_.endReading();
    } catch (const std::exception&) { // NOLINT(bugprone-empty-catch): nothing was changed that could stay
    }
}

} // namespace quillmere::copy

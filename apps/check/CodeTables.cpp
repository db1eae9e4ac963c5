#include "check/CodeTables.h"

#include "check/RegisterView.h"

#include "platform/text/Text.h"

#include <algorithm>
#include <array>
#include <map>

namespace quillmere::check {

std::vector<CodeTableInUse> codeTablesInUse(const RegisterView& view) {
    std::map<std::string, CodeTableInUse> tables;
    for (const FieldEntry& field : view.fields()) {
        if (!field.item || field.item->CodeTable.empty()) continue;
        const std::string& table = field.item->CodeTable;
        tables.try_emplace(text::lower(table), CodeTableInUse{table, field.table + "." + field.name});
    }
    std::vector<CodeTableInUse> inUse;
    inUse.reserve(tables.size());
    for (auto& [key, table] : tables)
        inUse.push_back(std::move(table));
    return inUse;
}

bool isUsable(const RegisterView& view, const std::string& codeTable) {
    constexpr std::array columns{"dmcod", "dmcpt", "dmhnd", "dmattr"};
    return std::ranges::all_of(columns,
                               [&](const char* column) { return view.hasColumn(codeTable, column); });
}

} // namespace quillmere::check

#include "copy/StoreRows.h"

namespace quillmere::copy {

std::vector<Table> tablesFrom(const data::RowSet& rows,
                              const std::function<std::optional<Kind>(const std::string&)>& kindOf) {
    std::vector<Table> tables;
    for (std::size_t row = 0; row < rows.rowCount(); ++row) {
        const std::string table = rows.at(row, "tablename").toText();
        if (tables.empty() || tables.back().name != table) tables.push_back({table, {}});
        const std::string type = rows.at(row, "typename").toTextOrEmpty();
        tables.back().columns.push_back({rows.at(row, "columnname").toText(), type, kindOf(type)});
    }
    return tables;
}

std::vector<std::string> textsOf(const data::RowSet& rows) {
    std::vector<std::string> texts;
    for (std::size_t row = 0; row < rows.rowCount(); ++row)
        texts.push_back(rows.at(row, 0).toText());
    return texts;
}

std::string nameList(const std::vector<std::string>& names) {
    std::string list;
    for (const std::string& name : names)
        list.append(list.empty() ? "" : ",").append(quotedName(name));
    return list;
}

} // namespace quillmere::copy

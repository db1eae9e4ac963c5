#include "panels/GridStatement.h"

#include "metadata/Catalogue.h"
#include "metadata/cWhInfo.h"

#include <string_view>

namespace quillmere {

namespace {

/// The column names that the catalogue statement gives to a field's code table, picture and width.
struct CatalogueColumns {
    std::string_view codeTable;
    std::string_view style;
    std::string_view width;
};

constexpr CatalogueColumns plainColumns{"codetable", "style", "fldwidth"};
constexpr CatalogueColumns aliasedColumns{"Acodetable", "Astyle", "Afldwidth"};

std::string catalogueSql(const std::string& table, const CatalogueColumns& columns) {
    std::string sql = "select itemname,itemdesc,iif(codetable is null,'',codetable) as ";
    sql.append(columns.codeTable).append(" ,iif(style is null,'',style) as ").append(columns.style);
    sql.append(" ,iif(fldwidth is null,2000,fldwidth) as ").append(columns.width);
    sql.append(" from  s_infoitem where tblname ='").append(table);
    sql.append("' and itemname <> 'A00' and itemname <>'' and itemdesc <>''   order by fldorder ");
    return sql;
}

std::string term(const std::string& table, const data::Recordset& row, const CatalogueColumns& columns) {
    const std::string codeTable = row.Fields(columns.codeTable).toText();
    const std::string style = row.Fields(columns.style).toText();
    const std::string item = row.Fields("itemname").toText();
    const std::string description = row.Fields("itemdesc").toText();
    if (!codeTable.empty()) return codeTable + "_" + item + ".dmcpt as " + description;
    if (!style.empty()) return "format(" + table + "." + item + ",'" + style + "') as " + description;
    return table + "." + item + " as " + description;
}

/// One join for every coded field, so that two fields on one code table join it twice.
std::string fromClause(const std::string& table, data::Recordset& codedRows,
                       const CatalogueColumns& columns) {
    const auto count = codedRows.RecordCount();
    if (count == 0) return " from " + table;
    std::string from = " from " + std::string(static_cast<std::size_t>(count), '(') + " " + table;
    for (; !codedRows.EOF_(); codedRows.MoveNext()) {
        const std::string codeTable = codedRows.Fields(columns.codeTable).toText();
        const std::string item = codedRows.Fields("itemname").toText();
        const std::string alias = codeTable + "_" + item;
        from +=
            "  left join " + codeTable + " " + alias + " on " + table + "." + item + "=" + alias + ".dmcod) ";
    }
    return from;
}

} // namespace

GridStatement makeGridStatement(const cWhInfo& info, bool aliasedCatalogue) {
    const CatalogueColumns& columns = aliasedCatalogue ? aliasedColumns : plainColumns;
    const std::string& table = info.TabId;
    GridStatement made;
    const auto rows = OpenRecordset(catalogueSql(table, columns));
    for (; !rows->EOF_(); rows->MoveNext()) {
        made.sql += made.sql.empty() ? "select " : ", ";
        made.sql += term(table, *rows, columns);
        made.fields.push_back(rows->Fields("itemname").toText());
        made.widths.push_back(rows->Fields(columns.width).toInteger16());
    }
    if (!made.sql.empty()) {
        rows->setFilter(std::string(columns.codeTable) + "<>''");
        made.sql += fromClause(table, *rows, columns);
        made.sql += " Where " + table + ".A00='" + info.personID + "' ";
        if (info.IsMult && !info.FldOrder.empty()) made.sql += "order by " + info.FldOrder;
    }
    rows->close();
    return made;
}

} // namespace quillmere

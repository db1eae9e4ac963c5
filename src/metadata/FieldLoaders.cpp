#include "metadata/FieldLoaders.h"

#include "metadata/CatalogueFields.h"
#include "metadata/Globals.h"
#include "platform/data/Connection.h"

#include <string>
#include <utility>

namespace quillmere {

namespace {

using data::RowSet;
using data::Value;

CatalogueFields openCatalogue(std::string_view tblname) {
    return CatalogueFields(
        gConn().query(" select * from s_infoitem  where tblname ='" + std::string(tblname) + "'"));
}

void addUnderItsKey(cFieldItems& fields, std::shared_ptr<cFieldItem> item) {
    const std::string key = item->TblName + "_" + item->ItemName;
    fields.Add(std::move(item), key);
}

RowSet openRecord(std::string_view tblname, std::string_view personID, std::int16_t id) {
    const std::string table(tblname);
    std::string sql = "select * from " + table + " where a00 ='" + std::string(personID) + "'";
    if (id >= 1) sql += " and " + table + "99=" + std::to_string(id);
    return gConn().query(sql);
}

void loadCaption(cFieldItem& item) {
    const RowSet captions =
        gConn().query("select dmcpt from " + item.CodeTable + " where dmcod='" + item.code() + "'");
    if (!captions.empty()) item.Dmcpt = captions.at(0, 0).toTextOrEmpty();
}

void loadValue(cFieldItem& item, const RowSet& record) {
    const Value& stored = record.at(0, item.ItemName);
    item.Dmcod = stored.isNull() ? Value("") : stored;
    if (!item.CodeTable.empty()) loadCaption(item);
}

} // namespace

std::shared_ptr<cFieldItems> LoadFieldItems(std::string_view tblname) {
    auto fields = std::make_shared<cFieldItems>();
    const CatalogueFields catalogue = openCatalogue(tblname);
    for (std::size_t row = 0; row < catalogue.count(); ++row)
        addUnderItsKey(*fields, catalogue.field(row));
    return fields;
}

std::shared_ptr<cFieldItems> LoadFieldItemsWithValues(std::string_view tblname, std::string_view personID,
                                                      std::int16_t id) {
    auto fields = std::make_shared<cFieldItems>();
    const CatalogueFields catalogue = openCatalogue(tblname);
    if (catalogue.count() == 0) return fields;
    // Only the first row counts, also when there is no sequence condition to make it the only one.
    const RowSet record = openRecord(tblname, personID, id);
    for (std::size_t row = 0; row < catalogue.count(); ++row) {
        auto item = catalogue.field(row);
        if (!record.empty()) loadValue(*item, record);
        addUnderItsKey(*fields, std::move(item));
    }
    return fields;
}

} // namespace quillmere

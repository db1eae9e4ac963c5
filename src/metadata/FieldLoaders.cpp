#include "metadata/FieldLoaders.h"

#include "metadata/Globals.h"
#include "platform/Error.h"
#include "platform/data/Connection.h"

#include <array>
#include <string>
#include <utility>

namespace quillmere {

namespace {

using data::RowSet;
using data::Value;

constexpr std::int16_t defaultWidth = 2000;
constexpr const char* defaultLength = "0";

/// One column of s_infoitem and how its value comes into a field, nulls included.
struct Copy {
    std::string_view column;
    void (*into)(cFieldItem& item, const Value& value);
};

/// A text column; a null reads as the empty text.
template <std::string cFieldItem::*member>
void copyText(cFieldItem& item, const Value& value) {
    item.*member = value.toTextOrEmpty();
}

void copyLength(cFieldItem& item, const Value& value) {
    item.FieldLength = value.isNull() ? defaultLength : value.toText();
}

void copyWidth(cFieldItem& item, const Value& value) {
    item.FldWidth = value.isNull() ? defaultWidth : value.toInteger16();
}

void copyOptional(cFieldItem& item, const Value& value) { item.IsNUll = value.isNull() || value.toBoolean(); }

constexpr std::array<Copy, 12> copies{{
    {"TblName", copyText<&cFieldItem::TblName>},
    {"ItemName", copyText<&cFieldItem::ItemName>},
    {"ItemDesc", copyText<&cFieldItem::ItemDesc>},
    {"FieldType", copyText<&cFieldItem::FieldType>},
    {"FieldLength", copyLength},
    {"CodeTable", copyText<&cFieldItem::CodeTable>},
    {"Style", copyText<&cFieldItem::Style>},
    {"Check", copyText<&cFieldItem::Check>},
    {"FldOrder", copyText<&cFieldItem::FldOrder>},
    {"FldWidth", copyWidth},
    {"FldExplain", copyText<&cFieldItem::FldExplain>},
    {"IsNUll", copyOptional},
}};

/// The catalogue rows of a table, and where in them each of the `copies` stands: the columns are
/// looked up once, not for every row.
class CatalogueRows {
public:
    explicit CatalogueRows(std::string_view tblname)
        : rows_(gConn().query(" select * from s_infoitem  where tblname ='" + std::string(tblname) + "'")) {
        if (rows_.empty()) return;
        for (std::size_t i = 0; i < copies.size(); ++i) {
            const auto column = rows_.findColumn(copies[i].column);
            if (!column) throw Error(Failure::ItemNotFound);
            columns_[i] = *column;
        }
    }

    [[nodiscard]] std::size_t count() const { return rows_.rowCount(); }

    [[nodiscard]] std::shared_ptr<cFieldItem> field(std::size_t row) const {
        auto item = std::make_shared<cFieldItem>();
        for (std::size_t i = 0; i < copies.size(); ++i)
            copies[i].into(*item, rows_.at(row, columns_[i]));
        return item;
    }

private:
    RowSet rows_;
    std::array<std::size_t, copies.size()> columns_{};
};

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
    const CatalogueRows catalogue(tblname);
    for (std::size_t row = 0; row < catalogue.count(); ++row)
        addUnderItsKey(*fields, catalogue.field(row));
    return fields;
}

std::shared_ptr<cFieldItems> LoadFieldItemsWithValues(std::string_view tblname, std::string_view personID,
                                                      std::int16_t id) {
    auto fields = std::make_shared<cFieldItems>();
    const CatalogueRows catalogue(tblname);
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

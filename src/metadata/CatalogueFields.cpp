#include "metadata/CatalogueFields.h"

#include "platform/Error.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace quillmere {

namespace {

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

} // namespace

CatalogueFields::CatalogueFields(data::RowSet rows) : rows_(std::move(rows)) {
    static_assert(copies.size() == columnCount);
    if (rows_.empty()) return;
    for (std::size_t i = 0; i < copies.size(); ++i) {
        const auto column = rows_.findColumn(copies[i].column);
        if (!column) throw Error(Failure::ItemNotFound);
        columns_[i] = *column;
    }
}

std::shared_ptr<cFieldItem> CatalogueFields::field(std::size_t row) const {
    auto item = std::make_shared<cFieldItem>();
    for (std::size_t i = 0; i < copies.size(); ++i)
        copies[i].into(*item, rows_.at(row, columns_[i]));
    return item;
}

} // namespace quillmere

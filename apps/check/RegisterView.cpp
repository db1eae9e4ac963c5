#include "check/RegisterView.h"

#include "check/RequiredColumns.h"

#include "metadata/CatalogueFields.h"
#include "platform/Error.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <utility>

namespace quillmere::check {

namespace {

std::optional<bool> booleanOf(const data::Value& value) {
    try {
        return value.toBoolean();
    } catch (const Error&) {
        return std::nullopt;
    }
}

} // namespace

bool FieldEntry::isKey() const {
    return text::equalsNoCase(name, "A00") || text::equalsNoCase(name, table + "99");
}

RegisterView::RegisterView(std::shared_ptr<data::Connection> connection, const EngineIndexes& indexes)
    : connection_(std::move(connection)), indexes_(indexes) {
    readable_ = std::ranges::all_of(catalogueColumns(), [this](const RequiredColumns& required) {
        return std::ranges::all_of(required.columns,
                                   [&](auto column) { return hasColumn(required.table, column); });
    });
    if (!readable_) return;
    readSets();
    readFields();
}

void RegisterView::readSets() {
    const data::RowSet rows = connection_->query("SELECT * FROM s_infotable order by OtherProp,tblname");
    for (std::size_t row = 0; row < rows.rowCount(); ++row) {
        sets_.push_back({.name = rows.at(row, "tblname").toTextOrEmpty(),
                         .caption = rows.at(row, "tbldesc").toTextOrEmpty(),
                         .orderField = rows.at(row, "orderfield").toTextOrEmpty(),
                         .order = rows.at(row, "OtherProp"),
                         .limit = rows.at(row, "maxnumber"),
                         .isSingle = booleanOf(rows.at(row, "Property"))});
    }
}

void RegisterView::readFields() {
    data::RowSet rows = connection_->query("select * from s_infoitem order by TblName,FldOrder,ItemName");
    const CatalogueFields catalogue(rows);
    for (std::size_t row = 0; row < rows.rowCount(); ++row) {
        FieldEntry entry{.table = rows.at(row, "TblName").toTextOrEmpty(),
                         .name = rows.at(row, "ItemName").toTextOrEmpty(),
                         .order = rows.at(row, "FldOrder"),
                         .item = nullptr,
                         .failure = {}};
        try {
            entry.item = catalogue.field(row);
        } catch (const Error& failure) {
            entry.failure = failure.description();
        }
        fieldsBySet_[text::lower(entry.table)].push_back(fields_.size());
        fields_.push_back(std::move(entry));
    }
}

const SetEntry* RegisterView::findSet(std::string_view name) const {
    const auto found = std::ranges::find_if(
        sets_, [name](const SetEntry& set) { return text::equalsNoCase(set.name, name); });
    return found == sets_.end() ? nullptr : &*found;
}

std::vector<const FieldEntry*> RegisterView::fieldsOf(std::string_view set) const {
    std::vector<const FieldEntry*> found;
    const auto places = fieldsBySet_.find(text::lower(set));
    if (places == fieldsBySet_.end()) return found;
    for (const std::size_t place : places->second)
        found.push_back(&fields_[place]);
    return found;
}

const FieldEntry* RegisterView::findField(std::string_view set, std::string_view name) const {
    for (const FieldEntry* entry : fieldsOf(set))
        if (text::equalsNoCase(entry->name, name)) return entry;
    return nullptr;
}

const std::optional<std::vector<std::string>>& RegisterView::columnsOf(std::string_view table) const {
    const auto [place, isNew] = columns_.try_emplace(text::lower(table));
    if (isNew && !table.empty()) {
        try {
            place->second =
                connection_->query("select * from " + std::string(table) + " where 1=0").columns();
        } catch (const Error&) {
            if (!connection_->isOpen()) throw;
        }
    }
    return place->second;
}

bool RegisterView::hasColumn(std::string_view table, std::string_view column) const {
    const auto& columns = columnsOf(table);
    return columns && std::ranges::any_of(
                          *columns, [column](const auto& each) { return text::equalsNoCase(each, column); });
}

const PanelRow* ownPanel(const SetEntry& set) {
    const PanelRow* panel = findPanel("A1ctrlUser" + set.name);
    return panel != nullptr && text::equalsNoCase(panel->widgetTable, set.name) ? panel : nullptr;
}

bool showsGrid(const SetEntry& set) {
    const PanelRow* panel = ownPanel(set);
    return set.isMultiple() && panel != nullptr && panel->hasGrid;
}

} // namespace quillmere::check

#pragma once

#include "metadata/cFieldItem.h"
#include "panels/PanelCatalogue.h"
#include "platform/data/Connection.h"

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::check {

class EngineIndexes;

/// A row of s_infotable.
struct SetEntry {
    std::string name;
    std::string caption;
    std::string orderField;
    data::Value order;
    data::Value limit;
    /// `Property`: the set holds one record of a person. None where that is no boolean.
    std::optional<bool> isSingle;

    /// The set holds several records of one person. False where the catalogue does not say.
    [[nodiscard]] bool isMultiple() const { return !isSingle.value_or(true); }
    [[nodiscard]] std::string sequenceField() const { return name + "99"; }
};

/// A row of s_infoitem.
struct FieldEntry {
    std::string table;
    std::string name;
    data::Value order;
    /// The field as the system makes it; none where it fails, and then how.
    std::shared_ptr<cFieldItem> item;
    std::string failure;

    /// The key of a record or its number: fields that no clerk fills.
    [[nodiscard]] bool isKey() const;
};

/// The register as the checks see it: its catalogue, read once, and what its tables have. It only reads.
class RegisterView {
public:
    /// Raises what the connection raises.
    RegisterView(std::shared_ptr<data::Connection> connection, const EngineIndexes& indexes);

    [[nodiscard]] data::Connection& connection() const { return *connection_; }
    [[nodiscard]] const EngineIndexes& indexes() const { return indexes_; }

    /// All tables of the catalogue are there, with all their columns.
    [[nodiscard]] bool isCatalogueReadable() const { return readable_; }

    [[nodiscard]] const std::vector<SetEntry>& sets() const { return sets_; }
    [[nodiscard]] const std::vector<FieldEntry>& fields() const { return fields_; }
    /// Names are compared without regard to case, here and below.
    [[nodiscard]] const SetEntry* findSet(std::string_view name) const;
    [[nodiscard]] std::vector<const FieldEntry*> fieldsOf(std::string_view set) const;
    /// The first of that name.
    [[nodiscard]] const FieldEntry* findField(std::string_view set, std::string_view name) const;

    /// The columns of a table; none when it is not there.
    [[nodiscard]] const std::optional<std::vector<std::string>>& columnsOf(std::string_view table) const;
    [[nodiscard]] bool hasTable(std::string_view table) const { return columnsOf(table).has_value(); }
    [[nodiscard]] bool hasColumn(std::string_view table, std::string_view column) const;

private:
    void readSets();
    void readFields();

    std::shared_ptr<data::Connection> connection_;
    const EngineIndexes& indexes_;
    bool readable_ = false;
    std::vector<SetEntry> sets_;
    std::vector<FieldEntry> fields_;
    std::map<std::string, std::vector<std::size_t>> fieldsBySet_;
    mutable std::map<std::string, std::optional<std::vector<std::string>>> columns_;
};

/// The panel of a set that bears the set's name and shows its columns; none when it has no such panel.
[[nodiscard]] const PanelRow* ownPanel(const SetEntry& set);
/// Records of the set are shown in the grid of its panel.
[[nodiscard]] bool showsGrid(const SetEntry& set);

} // namespace quillmere::check

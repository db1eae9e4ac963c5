#pragma once

#include "save/SaveEngine.h"
#include "support/ScriptedPerson.h"
#include "support/StandInWindow.h"
#include "support/TestDatabase.h"

#include "metadata/Globals.h"
#include "platform/ui/CheckBox.h"
#include "platform/ui/Label.h"
#include "platform/ui/MaskEdBox.h"
#include "platform/ui/TextBox.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillmere::test {

/// A widget and the type of its field.
struct SavedField {
    quillmere::FieldRow widget;
    std::string type = "varchar";
};

/// A panel made of any fields, ready to be saved: the person p1, who is new, of unit-less hosts, in
/// the sponsorship type 3 and year 2026. Its table and P01 stand in the database, without rows.
class SaveBench : public testing::Test {
protected:
    SaveBench() {
        gZZType = 3;
        gZZYear = "2026";
        db.createDataTable("P01", {"P0123", "P0120", "P0111"});
    }
    ~SaveBench() override {
        gZZType = 0;
        gZZYear.clear();
    }

    /// Builds the panel, in place of an earlier one; a field of column X has the caption "栏X", may stay
    /// empty and has no rule.
    void build(std::string table, std::vector<SavedField> fields) {
        if (panel_ != nullptr) window.remove(window.Count() - 1);
        widgets_.clear();
        table_ = std::move(table);
        auto columns = ownColumns(fields);
        auto items = std::make_shared<cFieldItems>();
        for (const SavedField& field : fields) {
            widgets_.push_back(field.widget);
            columns.emplace_back(field.widget.code);
            addItem(*items, std::string(field.widget.code), field.type);
        }
        db.createDataTable(table_, columns);
        row_.className = "A1ctrlUserSaved";
        row_.widgetTable = table_;
        row_.fields = widgets_;
        panel_ = &window.place(row_);
        panel_->WhInfo.personID = "p1";
        panel_->WhInfo.TabId = table_;
        panel_->setCtrl(items);
        panel_->FieldItems = items;
    }

    cFieldItem& addItem(cFieldItems& items, const std::string& column, const std::string& type) {
        auto item = std::make_shared<cFieldItem>();
        item->TblName = table_;
        item->ItemName = column;
        item->ItemDesc = "栏" + column;
        item->FieldType = type;
        return items.Add(item, table_ + "_" + column);
    }

    A1ctrlUser& panel() { return *panel_; }
    cFieldItem& item(const std::string& column) { return panel_->FieldItems->Item(table_ + "_" + column); }

    template <class T>
    T& widget(const std::string& column) {
        return dynamic_cast<T&>(*panel_->find(table_ + "_" + column + "_v"));
    }
    /// Writes into a text box or masked box.
    void write(const std::string& column, std::string text) {
        ui::Control* found = panel_->find(table_ + "_" + column + "_v");
        if (auto* box = dynamic_cast<ui::TextBox*>(found); box != nullptr)
            box->setText(std::move(text));
        else
            dynamic_cast<ui::MaskEdBox&>(*found).setText(std::move(text));
    }

    bool save() {
        db.clearStatements();
        return Save(
            panel(),
            {.WhState = WhState, .personID = personID, .UnitCode = UnitCode, .labPersonName = labPersonName});
    }

    /// The save is refused with these complaints, line by line, and writes nothing.
    void expectRefusal(const std::string& complaints) {
        person.expectBox(complaints, "错误信息");
        EXPECT_FALSE(save());
        for (const std::string& sql : db.statements())
            EXPECT_FALSE(sql.starts_with("insert") || sql.starts_with("update")) << sql;
    }

    /// The save ends in the handler with this description.
    void expectFailure(const std::string& description) {
        person.expectBox(description, "信息保存");
        EXPECT_FALSE(save());
    }

    TestDatabase db;
    ScriptedPerson person;
    StandInWindow window;
    ui::Label labPersonName{"labPersonName", "before"};
    std::int32_t WhState = 0;
    std::string personID = "p1";
    std::string UnitCode;

private:
    /// Columns that a table has beside its fields: its number, and what a person or unit needs.
    [[nodiscard]] std::vector<std::string> ownColumns(const std::vector<SavedField>& fields) const {
        std::vector<std::string> columns{table_ + "99 integer"};
        if (table_ == "A01") columns.insert(columns.end(), {"A0136", "A0137"});
        if (table_ == "B01") columns.emplace_back("B0124");
        const std::string name = table_ + "01";
        const bool named =
            std::ranges::any_of(fields, [&](const SavedField& field) { return field.widget.code == name; });
        if ((table_ == "A01" || table_ == "B01") && !named) columns.push_back(name);
        return columns;
    }

    std::string table_;
    std::vector<quillmere::FieldRow> widgets_;
    PanelRow row_;
    A1ctrlUser* panel_ = nullptr;
};

} // namespace quillmere::test

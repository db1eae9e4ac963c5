#pragma once

#include "support/ScriptedPerson.h"
#include "support/StandInWindow.h"
#include "support/TestDatabase.h"

#include "platform/ui/CheckBox.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/Label.h"
#include "platform/ui/MaskEdBox.h"
#include "platform/ui/TextBox.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::test {

/// A field set with one plain item for each field of a panel: its caption, type varchar, no rule.
[[nodiscard]] inline std::shared_ptr<cFieldItems> itemsOf(const PanelRow& row) {
    auto items = std::make_shared<cFieldItems>();
    for (const quillmere::FieldRow& field : row.fields) {
        auto item = std::make_shared<cFieldItem>();
        item->TblName = row.widgetTable;
        item->ItemName = field.code;
        item->ItemDesc = field.caption;
        item->FieldType = "varchar";
        items->Add(item, item->TblName + "_" + item->ItemName);
    }
    return items;
}

/// A database with a multi-record set T of two texts: three rows of the person p1, none of p2.
class PanelBench : public testing::Test {
protected:
    PanelBench() {
        db.createCatalogue();
        db.addField({.tblName = "T", .itemName = "T01", .itemDesc = "名称", .fldOrder = "1"});
        db.addField({.tblName = "T", .itemName = "T02", .itemDesc = "说明", .fldOrder = "2"});
        db.addField(
            {.tblName = "T", .itemName = "T03", .itemDesc = "是否", .fieldType = "bit", .fldOrder = "3"});
        db.addField(
            {.tblName = "T", .itemName = "T99", .itemDesc = "序号", .fieldType = "int", .fldOrder = "9"});
        db.createDataTable("T", {"T01", "T02", "T03", "T99 integer"});
        db.addRow("T", {"p1", "first", "a", "0", "1"});
        db.addRow("T", {"p1", "second", "b", "1", "2"});
        db.addRow("T", {"p1", "third", "c", "0", "3"});
    }

    /// A panel of T for that person, prepared as the window does it, without a record yet.
    A1ctrlUser& prepare(const PanelRow& row, std::string personID = "p1") {
        A1ctrlUser& panel = window.place(row);
        panel.WhInfo.personID = std::move(personID);
        panel.WhInfo.TabId = "T";
        panel.WhInfo.IsMult = true;
        panel.WhInfo.FldOrder = "T99";
        return panel;
    }

    /// A prepared panel that has filled its grid.
    A1ctrlUser& open(const PanelRow& row, std::string personID = "p1") {
        A1ctrlUser& panel = prepare(row, std::move(personID));
        panel.setDGItems();
        db.clearStatements();
        return panel;
    }

    template <class T>
    static T& on(const A1ctrlUser& panel, std::string_view name) {
        auto* control = dynamic_cast<T*>(panel.find(name));
        if (control == nullptr) throw Error(Failure::ItemNotFound, std::string(name));
        return *control;
    }

    static std::string textOf(const A1ctrlUser& panel, std::string_view name) {
        return on<ui::TextBox>(panel, name).Text();
    }

    static void press(A1ctrlUser& panel, int code, int shift = ui::shift::Ctrl) {
        panel.KeyDown.raise(code, shift);
    }

    /// Stops the grid from loading rows: a rebuild without a table ends right after that.
    static void stopLoading(A1ctrlUser& panel) {
        panel.WhInfo.TabId.clear();
        panel.setDGItems();
        panel.WhInfo.TabId = "T";
    }

    static constexpr quillmere::FieldRow fields[] = {
        field::text("T01", "名称"),
        field::text("T02", "说明"),
        field::check("T03", "是否"),
    };
    static constexpr PanelRow setRow{
        .className = "A1ctrlUserT", .widgetTable = "T", .title = "测试", .fields = fields};

    TestDatabase db;
    ScriptedPerson person;
    StandInWindow window;
};

} // namespace quillmere::test

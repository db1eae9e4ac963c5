#pragma once

#include "binding/fmGrpCod.h"

#include "support/FailureNumber.h"
#include "support/ScriptedPerson.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace quillmere::test {

/// The dialog with a script for who works on it, and its widgets by name.
class CodeSelectorBench : public testing::Test {
protected:
    void SetUp() override {
        db.createCatalogue();
        selector.CodeTable = "ZW";
        selector.Dmcod = "77";
        selector.Dmcpt = "原值";
    }

    /// Two levels: 01 (a heading) over 0101 and 0102, and 02.
    void makeTwoLevels() {
        db.createCodeTable("ZW", "职务", {2, 4},
                           {{"01", "领导", "ld", false},
                            {"02", "教师", "js"},
                            {"0101", "校长", "xz"},
                            {"0102", "院长", "yz"}});
    }

    void open(const ScriptedPerson::Work& work) { person.show(selector, work); }

    template <class T>
    T& widget(std::string_view name) {
        return controlOf<T>(selector, name);
    }
    ui::TreeView& tree() { return widget<ui::TreeView>("tvGrpCod"); }
    ui::TabStrip& tabs() { return widget<ui::TabStrip>("Tab1"); }
    ui::TextBox& entry() { return widget<ui::TextBox>("txtDm"); }
    ui::ListBox& names() { return widget<ui::ListBox>("lstDmCpt"); }
    ui::ListBox& codes() { return widget<ui::ListBox>("lstDmCod"); }

    void press(std::string_view button) { selector.click(widget<ui::CommandButton>(button)); }

    void searchFor(std::string_view text) {
        tabs().setTab(1);
        selector.moveFocus(entry());
        typeText(selector, text);
        selector.pressKey({ui::key::Enter});
    }

    /// Key, parent's key, text and tag of every node, in the order of adding.
    std::vector<std::string> treeRows() {
        std::vector<std::string> rows;
        for (const auto& node : tree().nodes()) {
            rows.push_back(node->key + "<" + (node->parent == nullptr ? "" : node->parent->key) + " " +
                           node->text + " [" + node->tag + "]");
        }
        return rows;
    }

    TestDatabase db;
    ScriptedPerson person;
    fmGrpCod selector;
};

} // namespace quillmere::test

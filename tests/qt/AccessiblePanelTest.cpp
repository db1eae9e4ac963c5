#include "panels/PanelCatalogue.h"
#include "platform/ui/CheckBox.h"
#include "platform/ui/Label.h"
#include "platform/ui/TextBox.h"
#include "qt/AccessibleTree.h"
#include "qt/MaintenanceTest.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace quillmere::test {

namespace {

bool isLabelledBy(QAccessibleInterface& field, const std::string& label) {
    for (const auto& [other, relation] : field.relations(QAccessible::Label)) {
        if (other->object() != nullptr && other->object()->objectName().toStdString() == label) return true;
    }
    return false;
}

void expectRead(const FieldRow& row, const std::string& stem, const AccessibleTree& tree,
                const ui::Control& control) {
    const std::string where = stem + " " + std::string(row.caption);
    const auto found = tree.find(stem + "_v");
    ASSERT_NE(tree.end(), found) << where;
    QAccessibleInterface& field = *found->second;
    EXPECT_EQ(withoutBlanks(row.caption), nameOf(field)) << where;
    EXPECT_TRUE(isLabelledBy(field, stem + "_c")) << where;
    const bool check = row.widget == ValueWidget::Check;
    EXPECT_EQ(check ? QAccessible::CheckBox : QAccessible::EditableText, field.role()) << where;
    const QAccessible::State state = field.state();
    const auto* box = dynamic_cast<const ui::TextBox*>(&control);
    const bool coded = box != nullptr && box->Locked();
    if (control.isUsable()) {
        EXPECT_TRUE(state.focusable) << where;
    }
    EXPECT_EQ(!control.isUsable(), static_cast<bool>(state.disabled)) << where;
    EXPECT_EQ(coded, static_cast<bool>(state.readOnly)) << where;
    EXPECT_EQ(coded, descriptionOf(field).find("按 F2 键或双击选择代码") != std::string::npos) << where;
    const std::string unit = "单位：" + withoutBlanks(row.unit);
    EXPECT_EQ(!row.unit.empty(), descriptionOf(field).find(unit) != std::string::npos)
        << where << descriptionOf(field);
    if (check) {
        const bool checked = static_cast<const ui::CheckBox&>(control).Value() != 0;
        EXPECT_EQ(checked, static_cast<bool>(state.checked)) << where;
    }
}

using AccessiblePanelTest = MaintenanceTest;

} // namespace

TEST_F(AccessiblePanelTest, EveryFieldOfEveryPanelIsNamedByItsCaptionAndSaysWhatItIs) {
    EXPECT_EQ(73U, panelCatalogue().size());
    std::set<std::string> read;
    const auto readPanel = [&](frmPersonWh& window, const PanelRow& row) {
        A1ctrlUser& panel = window.LoadUCtrl(row.className);
        window.IniUCtrl(panel, row.widgetTable, 4);
        settle();
        const AccessibleTree tree = treeOf("frmPersonWh");
        for (const FieldRow& field : row.fields) {
            const std::string stem = std::string(row.widgetTable) + "_" + std::string(field.code);
            ui::Control& control = *panel.find(stem + "_v");
            if (!control.isShown()) continue;
            expectRead(field, stem, tree, control);
            read.insert(std::string(row.className) + " " + stem);
        }
        // The grid of a set that holds one record has nothing to list, and does not show.
        const bool lists = panel.find("DGItems") != nullptr && panel.WhInfo.IsMult;
        EXPECT_EQ(lists, tree.contains("DGItems")) << row.className;
        if (const auto grid = tree.find("DGItems"); grid != tree.end()) {
            EXPECT_EQ(QAccessible::Table, grid->second->role());
            EXPECT_EQ(withoutBlanks(controlOf<ui::Label>(window, "Title").Caption()), nameOf(*grid->second));
        }
        expectNoneNameless("frmPersonWh", row.className);
    };
    const auto unread = [&](const PanelRow& row) {
        std::vector<std::string> fields;
        for (const FieldRow& field : row.fields) {
            std::string name = std::string(row.className) + " " + std::string(row.widgetTable) + "_" +
                               std::string(field.code);
            if (!read.contains(name)) fields.push_back(std::move(name));
        }
        return fields;
    };
    // What one sponsorship type hides, another shows.
    for (std::int16_t type = 1; type <= 7; ++type) {
        maintain(
            [&](frmPersonWh& window) {
                for (const PanelRow& row : panelCatalogue()) {
                    if (type == 1 || !unread(row).empty()) readPanel(window, row);
                }
            },
            type);
    }
    for (const PanelRow& row : panelCatalogue())
        EXPECT_EQ(unread(row), std::vector<std::string>());
}

TEST_F(AccessiblePanelTest, ARequiredFieldSaysSo) {
    maintain([&](frmPersonWh&) {
        EXPECT_EQ("姓名", nameOf(accessOf("A01_A0101_v")));
        EXPECT_EQ(0U, descriptionOf(accessOf("A01_A0101_v")).find("必填"));
        EXPECT_EQ(std::string::npos, descriptionOf(accessOf("A01_A0103_v")).find("必填"));
    });
}

TEST_F(AccessiblePanelTest, TheHelpOfAFieldIsReadOnceTheFieldHasTheFocus) {
    maintain([&](frmPersonWh& window) {
        clickOn(widgetNamed("A01_A0103_v"));
        ASSERT_TRUE(focusComesTo("A01_A0103_v"));
        const std::string help = controlOf<ui::Label>(window, "labExplain").Caption();
        ASSERT_NE("", help);
        EXPECT_NE(std::string::npos, descriptionOf(accessOf("A01_A0103_v")).find(help));
        EXPECT_TRUE(accessOf("A01_A0103_v").state().focused);
    });
}

TEST_F(AccessiblePanelTest, AnAssistiveProgramTogglesABoxByTheModel) {
    class CheckForm : public ui::Form {
    public:
        CheckForm() : Form("frmCheck", "选择"), box(add<ui::CheckBox>("chkSigned")) {}
        ui::CheckBox& box;
    } form;
    screen.show(form, [&](ui::Form&) {
        auto& access = accessOf("chkSigned");
        int clicks = 0;
        form.box.Click.connect([&] { ++clicks; });
        access.actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        EXPECT_EQ(1, form.box.Value());
        EXPECT_EQ(1, clicks);
        EXPECT_TRUE(access.state().checked);
        form.box.setEnabled(false);
        EXPECT_TRUE(access.state().disabled);
    });
}

} // namespace quillmere::test

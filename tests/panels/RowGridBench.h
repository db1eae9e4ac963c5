#pragma once

#include "metadata/Globals.h"
#include "panels/PanelFactory.h"
#include "panels/frmC04.h"
#include "support/ScriptedPerson.h"
#include "support/StandInWindow.h"
#include "support/TestDatabase.h"

#include "platform/ui/CommandButton.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/Frame.h"
#include "platform/ui/Label.h"
#include "platform/ui/MaskEdBox.h"
#include "platform/ui/TextBox.h"

#include "PanelBench.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillmere::test {

/// Empty tables of stages, budget and funding plan, and a window for their panels.
class RowGridBench : public testing::Test {
protected:
    RowGridBench() {
        db.createDataTable("P02", {"P0201", "P0202", "P0203", "P0204", "P0299 integer"});
        db.createDataTable("P03", {"P0301", "P0302", "P0303", "P0399 integer"});
        db.createDataTable("C04", {"C0401", "C0402", "C0403", "C0404", "C0405", "C0406", "C0499 integer"});
    }

    /// The panel of that class for the project p1, filled as the window does it.
    A1ctrlUser& open(std::string_view className) {
        auto created = createPanel(className, window);
        A1ctrlUser& panel = *created;
        static_cast<ui::ControlHost&>(window).place(std::move(created));
        panel.WhInfo.personID = "p1";
        panel.WhInfo.TabId = "P01";
        panel.setVisible(true);
        panel.FieldItems = itemsOf(panel.row());
        panel.setCtrl(panel.FieldItems);
        return panel;
    }

    /// A person at the window who clicks one of its buttons.
    void click(std::string_view button) {
        person.show(window, [&](ui::Form& form) { form.click(controlOf<ui::CommandButton>(form, button)); });
    }

    /// The next time the editor opens, its boxes are filled so and a button of it is clicked.
    struct Entry {
        std::string_view box;
        std::string_view text;
    };
    void inEditor(const std::vector<Entry>& entries, std::string_view button) {
        person.onForm(
            [=](ui::Form& form) {
                for (const Entry& entry : entries) {
                    form.moveFocus(*form.find(entry.box));
                    form.selectAll();
                    form.paste(entry.text);
                }
                form.click(controlOf<ui::CommandButton>(form, button));
            },
            "frmC04");
    }

    static std::string textOf(const ui::Form& form, std::string_view box) {
        return form.find(box)->property("Text").value_or("?");
    }

    std::string focus() const {
        const ui::Control* active = frmC04::defaultInstance().ActiveControl();
        return active == nullptr ? "" : active->name();
    }

    TestDatabase db;
    ScriptedPerson person;
    StandInWindow window;
};

} // namespace quillmere::test

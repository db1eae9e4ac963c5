#pragma once

#include "binding/FieldEvents.h"

#include "metadata/cFieldItems.h"
#include "metadata/cWhInfo.h"
#include "platform/ui/CheckBox.h"
#include "platform/ui/Form.h"
#include "platform/ui/Label.h"
#include "platform/ui/MaskEdBox.h"
#include "platform/ui/TextBox.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace quillmere::test {

/// A window that serves as a panel: a widget of each kind, with its field.
class FieldPanel : public ui::Form, public FieldContext {
public:
    FieldPanel() : Form("panel", "panel") {
        addField("plain", "varchar");
        addField("coded", "varchar").CodeTable = "ZW";
        addField("date", "datetime");
        addField("number", "int");
        addField("check", "bit");
        for (const auto& control : Controls())
            items.AddControl(*control);
    }

    cFieldItem& addField(const std::string& name, const char* type) {
        auto item = std::make_shared<cFieldItem>();
        item->ItemDesc = "栏目" + name;
        item->FieldType = type;
        item->FldExplain = "说明" + name;
        return fields.Add(item, "T_" + name);
    }

    cFieldItems& fieldItems() override { return fields; }
    cWhInfo& whInfo() override { return info; }
    bool isLoading() const override { return loading; }
    ui::Label& explainLabel() override { return labExplain; }
    bool caretToFront() const override { return toFront; }

    ui::Label& labExplain = add<ui::Label>("labExplain");
    ui::TextBox& plain = add<ui::TextBox>("T_plain_v");
    ui::TextBox& coded = add<ui::TextBox>("T_coded_v");
    ui::MaskEdBox& date = add<ui::MaskEdBox>("T_date_v", "####-##", "yyyy-MM");
    ui::MaskEdBox& number = add<ui::MaskEdBox>("T_number_v", "####", "");
    ui::CheckBox& check = add<ui::CheckBox>("T_check_v");
    ui::TextBox& other = add<ui::TextBox>("search");
    ui::TextBox& stray = add<ui::TextBox>("T_stray_v");

    cFieldItems fields;
    cWhInfo info;
    bool loading = false;
    bool toFront = true;
    ControlItems items;
    FieldEvents events{*this, items};
};

/// Such a window, with a person before it.
class FieldEventsBench : public testing::Test {
protected:
    /// Whether `control` lets the focus go.
    bool leave(ui::Control& control) {
        bool cancel = false;
        panel.events.cItems_Validate(control, cancel);
        return !cancel;
    }

    bool leaveChanged(ui::Control& control) {
        panel.info.IsChange = true;
        return leave(control);
    }

    ScriptedPerson person;
    FieldPanel panel;
};

} // namespace quillmere::test

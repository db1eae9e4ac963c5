#pragma once

#include "platform/ui/Form.h"
#include "platform/ui/TextBox.h"
#include "platform/ui/UserControl.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere::ui {

using Texts = std::vector<std::string>;

class PreviewForm : public Form {
public:
    PreviewForm() : Form("frm", "frm") {}
    std::function<void(char32_t&)> preview = [](char32_t&) {};

protected:
    void onKeyPreview(char32_t& character) override { preview(character); }
};

/// A text box with the focus, on a panel of an open form.
class TextBoxBench : public testing::Test {
protected:
    TextBoxBench() { panel.setVisible(true); }

    void work(const std::function<void()>& what) {
        person.show(form, [&](Form&) {
            ASSERT_TRUE(form.moveFocus(box));
            what();
        });
    }
    void type(std::string_view text) { test::typeText(form, text); }
    void press(std::string_view keys) {
        for (const KeyStroke& stroke : parseKeys(keys))
            form.pressKey(stroke);
    }

    test::ScriptedPerson person;
    PreviewForm form;
    UserControl& panel = form.add<UserControl>("panel");
    TextBox& box = panel.add<TextBox>("box");
};

} // namespace quillmere::ui

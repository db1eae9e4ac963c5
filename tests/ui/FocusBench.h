#pragma once

#include "platform/ui/Form.h"
#include "platform/ui/TextBox.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace quillmere::ui {

using Texts = std::vector<std::string>;

/// Three text boxes "a", "b", "c" on a form, and a log of their focus events.
class FocusBench : public testing::Test {
protected:
    FocusBench() {
        for (TextBox* box : {&a, &b, &c}) {
            const std::string& name = box->name();
            box->Validate.connect([this, name](bool& cancel) {
                log.push_back("validate " + name);
                cancel = name == refusing;
            });
            box->LostFocus.connect([this, name] { log.push_back("lost " + name); });
            box->GotFocus.connect([this, name] { log.push_back("got " + name); });
        }
    }

    /// Works on the open form with the focus in "a" and an empty log.
    void work(const std::function<void()>& what) {
        person.show(form, [&](Form&) {
            ASSERT_TRUE(form.moveFocus(a));
            log.clear();
            what();
        });
    }

    [[nodiscard]] std::string focused() const {
        return form.ActiveControl() == nullptr ? "" : form.ActiveControl()->name();
    }

    /// Where the focus is after each of that many Tabs.
    Texts tabs(int count, bool back = false) {
        Texts seen;
        for (int i = 0; i < count; ++i) {
            form.pressKey({key::Tab, back ? shift::Shift : shift::None});
            seen.push_back(focused());
        }
        return seen;
    }

    test::ScriptedPerson person;
    Form form{"frm", "frm"};
    TextBox& a = form.add<TextBox>("a");
    TextBox& b = form.add<TextBox>("b");
    TextBox& c = form.add<TextBox>("c");
    std::string refusing;
    Texts log;
};

inline const Texts moveFromAToB{"validate a", "lost a", "got b"};

} // namespace quillmere::ui

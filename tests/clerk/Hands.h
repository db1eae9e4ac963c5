#pragma once

#include "clerk/Diary.h"
#include "platform/ui/Form.h"
#include "sample/Random.h"

#include <functional>
#include <string>
#include <vector>

namespace quillmere::test {

/// The hands of a clerk who does anything that can be done to what is on show, chosen by chance.
class Hands {
public:
    Hands(sample::Random& chance, Diary& diary) : chance_(chance), diary_(diary) {}

    /// One step on a form: a widget of it, a key, or the form itself.
    void act(ui::Form& form);

private:
    /// Any control within reach, a likely one as a rule; none when there is none.
    [[nodiscard]] ui::Control* pick(const ui::Form& form);
    void resize(ui::Form& form);
    void onControl(ui::Form& form, ui::Control& control);
    void onEntry(ui::Form& form, ui::Control& control);
    void onListOrTree(ui::Form& form, ui::Control& control);
    void onMenuOrToolbar(ui::Control& control);
    void pressAnyKey(ui::Form& form);
    void enterText(ui::Form& form);
    void enterDigits(ui::Form& form, int most);
    void enterMonth(ui::Form& form);
    void type(ui::Form& form, const std::string& text);
    /// Puts something that may pass the checks into every field on show, and stores it.
    void fillIn(ui::Form& form);
    void store(ui::Form& form);
    /// Writes the step down, then does it.
    void perform(const ui::Control* control, const std::string& deed, const std::function<void()>& work);

    sample::Random& chance_;
    Diary& diary_;
};

/// The controls that can be reached now, those of panels among them.
[[nodiscard]] std::vector<ui::Control*> withinReach(const ui::Form& form);

} // namespace quillmere::test

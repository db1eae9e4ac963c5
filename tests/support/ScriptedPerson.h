#pragma once

#include "platform/Error.h"
#include "platform/ui/ScreenlessDesktop.h"
#include "support/Typing.h"

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::test {

/// A person before a screenless desktop who follows a script. The desktop is the one in use for as
/// long as this object lives.
///
/// The script is strict: a message box, form or file dialog that no entry of the script is for fails
/// the test, and so does an entry that is left over at the end.
class ScriptedPerson final : public ui::ScreenlessPerson {
public:
    using Work = std::function<void(ui::Form& form)>;

    ScriptedPerson();
    ~ScriptedPerson() override;

    // The script. Boxes, forms and file dialogs each have a queue of their own.

    /// The next message box has this text and title; it is answered so. Buttons and icon stand in
    /// `boxes()`.
    void expectBox(std::string text, std::string title = {}, ui::Answer answer = ui::Answer::Ok);
    /// From now on a box that is not next in the queue is no failure: a yes-no box is answered so.
    void answerAnyBox(ui::Answer forYesNo);
    /// Works on the next form that opens; `name` empty for whatever form. A form that is still open
    /// when the work is done is closed by its frame.
    void onForm(Work work, std::string name = {});
    /// The next file dialog yields this path; empty for a cancelled one.
    void chooseFile(std::string path);

    /// Shows a form modally and works on it: for tests that need an open form around a control.
    void show(ui::Form& form, Work work);

    // What was seen.

    [[nodiscard]] const std::vector<ui::MessageBox>& boxes() const { return boxes_; }
    [[nodiscard]] const std::vector<ui::FileDialog>& fileDialogs() const { return fileDialogs_; }
    /// Names of the forms that opened, in order.
    [[nodiscard]] const std::vector<std::string>& opened() const { return opened_; }
    [[nodiscard]] int beeps() const { return beeps_; }
    void forget();

    [[nodiscard]] ui::Desktop& desktop() { return desktop_; }

    ui::Answer answer(const ui::MessageBox& box) override;
    void work(ui::Form& form) override;
    std::string choose(const ui::FileDialog& dialog) override;
    void hearBeep() override { ++beeps_; }
    void seeOpened(ui::Form& form) override { opened_.push_back(form.name()); }

private:
    struct ExpectedBox {
        std::string text;
        std::string title;
        ui::Answer answer;
    };
    struct ExpectedForm {
        std::string name;
        Work work;
    };

    ui::ScreenlessDesktop desktop_;
    std::deque<ExpectedBox> expectedBoxes_;
    std::deque<ExpectedForm> expectedForms_;
    std::deque<std::string> files_;
    bool anyBox_ = false;
    ui::Answer anyAnswer_ = ui::Answer::No;
    std::vector<ui::MessageBox> boxes_;
    std::vector<ui::FileDialog> fileDialogs_;
    std::vector<std::string> opened_;
    int beeps_ = 0;
};

/// The control of that name on the form or on a user control of it, as a T. Raises ItemNotFound when
/// there is none and TypeMismatch when it is of another kind.
template <class T>
[[nodiscard]] T& controlOf(const ui::Form& form, std::string_view name) {
    ui::Control* control = form.findDeep(name);
    if (control == nullptr) throw Error(Failure::ItemNotFound, std::string(name));
    auto* typed = dynamic_cast<T*>(control);
    if (typed == nullptr) throw Error(Failure::TypeMismatch, std::string(name));
    return *typed;
}

} // namespace quillmere::test

#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <utility>

namespace quillmere::test {

ScriptedPerson::ScriptedPerson() : desktop_(*this) { ui::useDesktop(&desktop_); }

ScriptedPerson::~ScriptedPerson() {
    ui::useDesktop(nullptr);
    for (const ExpectedBox& box : expectedBoxes_)
        ADD_FAILURE() << "message box never shown: [" << box.title << "] " << box.text;
    for (const ExpectedForm& form : expectedForms_)
        ADD_FAILURE() << "form never opened: " << form.name;
    for (const std::string& file : files_)
        ADD_FAILURE() << "file dialog never opened, for: " << file;
}

void ScriptedPerson::expectBox(std::string text, std::string title, ui::Answer answer) {
    expectedBoxes_.push_back({std::move(text), std::move(title), answer});
}

void ScriptedPerson::answerAnyBox(ui::Answer forYesNo) {
    anyBox_ = true;
    anyAnswer_ = forYesNo;
}

void ScriptedPerson::onForm(Work work, std::string name) {
    expectedForms_.push_back({std::move(name), std::move(work)});
}

void ScriptedPerson::chooseFile(std::string path) { files_.push_back(std::move(path)); }

void ScriptedPerson::show(ui::Form& form, Work work) {
    expectedForms_.push_front({form.name(), std::move(work)});
    desktop_.showModal(form);
}

void ScriptedPerson::forget() {
    boxes_.clear();
    fileDialogs_.clear();
    opened_.clear();
    beeps_ = 0;
}

ui::Answer ScriptedPerson::answer(const ui::MessageBox& box) {
    boxes_.push_back(box);
    if (!expectedBoxes_.empty()) {
        const ExpectedBox expected = expectedBoxes_.front();
        if (expected.text == box.text && expected.title == box.title) {
            expectedBoxes_.pop_front();
            return expected.answer;
        }
    }
    if (!anyBox_) ADD_FAILURE() << "unexpected message box: [" << box.title << "] " << box.text;
    return box.buttons == ui::Buttons::Ok ? ui::Answer::Ok : anyAnswer_;
}

void ScriptedPerson::work(ui::Form& form) {
    const bool awaited = !expectedForms_.empty() &&
                         (expectedForms_.front().name.empty() || expectedForms_.front().name == form.name());
    if (awaited) {
        const ExpectedForm expected = std::move(expectedForms_.front());
        expectedForms_.pop_front();
        expected.work(form);
    } else {
        ADD_FAILURE() << "unexpected form: " << form.name() << " [" << form.Caption() << "]";
    }
    if (form.isOpen()) form.closeByFrame();
}

std::string ScriptedPerson::choose(const ui::FileDialog& dialog) {
    fileDialogs_.push_back(dialog);
    if (files_.empty()) {
        ADD_FAILURE() << "unexpected file dialog";
        return {};
    }
    std::string path = std::move(files_.front());
    files_.pop_front();
    return path;
}

} // namespace quillmere::test

#pragma once

#include "platform/ui/Desktop.h"

namespace quillmere::ui {

/// The person before a screenless desktop: a test, or a script.
class ScreenlessPerson {
public:
    ScreenlessPerson() = default;
    ScreenlessPerson(const ScreenlessPerson&) = delete;
    ScreenlessPerson& operator=(const ScreenlessPerson&) = delete;
    virtual ~ScreenlessPerson() = default;

    virtual Answer answer(const MessageBox& box) = 0;
    /// Works on the form until it is closed.
    virtual void work(Form& form) = 0;
    virtual std::string choose(const FileDialog& dialog) = 0;
    virtual void hearBeep() {}
    virtual void seeOpened(Form& /*form*/) {}
    virtual void seeClosed(Form& /*form*/) {}
};

/// A desktop without a screen: everything that a person would see or answer goes to an object.
class ScreenlessDesktop final : public Desktop {
public:
    explicit ScreenlessDesktop(ScreenlessPerson& person) : person_(person) {}

    Answer msgBox(const MessageBox& box) override { return person_.answer(box); }
    std::string openFile(const FileDialog& dialog) override { return person_.choose(dialog); }
    void beep() override { person_.hearBeep(); }
    /// Of 1600 by 1000 points.
    Rect screen() const override { return {0, 0, 24000, 15000}; }

protected:
    void runModal(Form& form) override;
    /// Nothing is drawn, so the structure is all that counts.
    bool canDecode(std::string_view /*jpeg*/) const override { return true; }

private:
    ScreenlessPerson& person_;
};

} // namespace quillmere::ui

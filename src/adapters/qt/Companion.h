#pragma once

#include <optional>
#include <string>

namespace quillmere::ui {
class Form;
struct MessageBox;
struct FileDialog;
enum class Answer;
} // namespace quillmere::ui

namespace quillmere::qt {

/// Sits beside the person before the screen: a guided tour, a scenario, a test. Each call runs inside
/// the loop of what is on show, with the window visible; what it throws comes out of the modal show.
class Companion {
public:
    Companion() = default;
    Companion(const Companion&) = delete;
    Companion& operator=(const Companion&) = delete;
    virtual ~Companion();

    /// The form is on show; it may be worked on, and closed, from here.
    virtual void formOpened(ui::Form& /*form*/) {}
    virtual void formClosed(ui::Form& /*form*/) {}
    /// The message is on show. An answer presses the button; none leaves it to the person.
    virtual std::optional<ui::Answer> messageOpened(const ui::MessageBox& message);
    /// Asked before a file dialog shows. A path (or the empty text, for cancelled) takes its place.
    virtual std::optional<std::string> fileAsked(const ui::FileDialog& dialog);
    virtual void beepHeard() {}
};

} // namespace quillmere::qt

#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quillmere::ui {
class Desktop;
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
    virtual ~Companion() = default;

    /// The form is on show; it may be worked on, and closed, from here.
    virtual void formOpened(ui::Form& /*form*/) {}
    virtual void formClosed(ui::Form& /*form*/) {}
    /// The message is on show. An answer presses the button; none leaves it to the person.
    virtual std::optional<ui::Answer> messageOpened(const ui::MessageBox& message);
    /// Asked before a file dialog shows. A path (or the empty text, for cancelled) takes its place.
    virtual std::optional<std::string> fileAsked(const ui::FileDialog& dialog);
    virtual void beepHeard() {}
};

struct ToolkitOptions {
    /// The name under which window managers know the program, when the toolkit makes the application.
    std::string applicationName = "quillmere";
    /// Platform plug-in, for example "offscreen", when the toolkit makes the application; empty for
    /// the one that the system chooses.
    std::string platform;
    /// Not owned; must live as long as the toolkit.
    Companion* companion = nullptr;
};

/// The Qt toolkit for hosts: makes the desktop of the system show real windows. It works in the host's
/// QApplication, or makes one when the process has none; that one is kept for the next toolkit, and
/// `shutdown` ends it. Everything runs on the thread of the application.
class Toolkit {
public:
    /// Raises an Error when the process has a bare QCoreApplication, when this is not the thread of the
    /// user interface, or when another toolkit is in use.
    explicit Toolkit(const ToolkitOptions& options = {});
    Toolkit(const Toolkit&) = delete;
    Toolkit& operator=(const Toolkit&) = delete;
    /// Takes the desktop back from the system.
    ~Toolkit();

    /// The desktop that the system uses from now on.
    [[nodiscard]] ui::Desktop& desktop();

    /// Writes the window in front, message boxes included, as a PNG file. False when no window is
    /// open or the file cannot be written.
    bool saveScreenshot(std::string_view path);

    /// A failure of what is in front is on its way to the caller of the modal show. A companion that
    /// works on the form returns then.
    [[nodiscard]] bool isFailing() const;

    /// Ends the application that a toolkit made; no toolkit may be in use. Without such an
    /// application it does nothing.
    static void shutdown();

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace quillmere::qt

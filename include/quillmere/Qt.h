#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace quillmere::ui {
class Desktop;
}

namespace quillmere::qt {

class Companion;

/// How a toolkit begins. What it consists of is a part of the interface and stays as it is.
struct ToolkitOptions {
    /// The name under which window managers know the program, when the toolkit makes the application.
    std::string applicationName = "quillmere";
    /// Platform plug-in, for example "offscreen", when the toolkit makes the application; empty for
    /// the one that the system chooses.
    std::string platform;
    /// For tours, scenarios and tests, which are built with the sources of the system; hosts leave it as it
    /// is. Not owned; must live as long as the toolkit.
    Companion* companion = nullptr;
};

/// The Qt toolkit for hosts: makes the desktop of the system show real windows. It works in the host's
/// QApplication, or makes one when the process has none; that one is kept for the next toolkit, and
/// `shutdown` ends it. Everything runs on the thread of the application.
class Toolkit {
public:
    /// Raises an Error when the process has a bare QCoreApplication, when it has none and there is no
    /// display, when this is not the thread of the user interface, or when another toolkit is in use.
    explicit Toolkit(const ToolkitOptions& options = {});
    Toolkit(const Toolkit&) = delete;
    Toolkit& operator=(const Toolkit&) = delete;
    /// Takes the desktop back from the system.
    ~Toolkit();

    /// The desktop that the system uses from now on; of use to what is built with the sources.
    [[nodiscard]] ui::Desktop& desktop();

    /// Writes the window in front, message boxes included, as a PNG file. False when no window is
    /// open or the file cannot be written.
    bool saveScreenshot(std::string_view path);

    /// A failure of what is in front is on its way to the caller of the modal show. A companion that
    /// works on the form returns then.
    [[nodiscard]] bool isFailing() const;

    /// Ends the application that a toolkit made; no toolkit may be in use. Without such an
    /// application it does nothing. Raises an Error on another thread than the application's.
    static void shutdown();

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace quillmere::qt

#include "scenario/qt/QtToolkit.h"

#include "scenario/Player.h"

#include <cstdlib>

namespace quillmere::scenario {

namespace {

bool isSet(const char* variable) {
    const char* value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

/// The platform that the user asks for, or that the display needs; off the screen without either.
std::string choosePlatform() {
    const bool chosen = isSet("QT_QPA_PLATFORM") || isSet("DISPLAY") || isSet("WAYLAND_DISPLAY");
    return chosen ? std::string() : std::string("offscreen");
}

} // namespace

QtToolkit::QtToolkit() {
    toolkit_.emplace(qt::ToolkitOptions{
        .applicationName = "quillmere-scenario", .platform = choosePlatform(), .companion = this});
}

QtToolkit::~QtToolkit() {
    toolkit_.reset();
    qt::Toolkit::shutdown();
}

void QtToolkit::takePicture(const std::string& path) {
    if (!toolkit_->saveScreenshot(path)) throw Stop{"the picture " + path + " cannot be written"};
}

bool QtToolkit::isFailing() const { return toolkit_->isFailing(); }

void QtToolkit::formOpened(ui::Form& form) {
    player_->seeOpened(form);
    player_->work(form);
}

void QtToolkit::formClosed(ui::Form& form) { player_->seeClosed(form); }

std::optional<ui::Answer> QtToolkit::messageOpened(const ui::MessageBox& message) {
    return player_->answer(message);
}

std::optional<std::string> QtToolkit::fileAsked(const ui::FileDialog& dialog) {
    return player_->choose(dialog);
}

void QtToolkit::beepHeard() { player_->hearBeep(); }

} // namespace quillmere::scenario

#include "register/Reception.h"

#include <QFileInfo>

#include <utility>

namespace quillmere::host {

Reception::Reception(OpenSettings settings, Questions ask)
    : settings_(std::move(settings)), ask_(std::move(ask)) {}

std::unique_ptr<MainWindow> Reception::windowOf(const QString& path) {
    auto window = openRegister(path, settings_);
    window->onOpenAnother([this] { openAnother(); });
    Memory::setLastRegister(path);
    path_ = path;
    return window;
}

void Reception::open(const QString& path) {
    try {
        window_ = windowOf(path);
    } catch (const std::exception& failure) {
        welcome();
        return start_->showProblem(problemWith(path, failure));
    }
    window_->show();
    // It may be in the middle of telling which register was chosen.
    if (start_) start_.release()->deleteLater();
}

void Reception::welcome() {
    if (!start_) {
        start_ = std::make_unique<StartWindow>(StartWindow::Listener{
            [this](const QString& path) { open(path); }, ask_.file, ask_.placeForSample});
    }
    start_->show();
}

void Reception::openAnother() {
    const QString path = ask_.file();
    if (path.isEmpty()) return;
    if (QFileInfo(path) == QFileInfo(path_)) return window_->showNotice(QStringLiteral("这个登记库已经打开"));
    try {
        replaceWindow(windowOf(path));
    } catch (const std::exception& failure) {
        // The register that is open stays so.
        window_->showProblem(problemWith(path, failure));
    }
}

void Reception::replaceWindow(std::unique_ptr<MainWindow> next) {
    next->restoreGeometry(window_->saveGeometry());
    // Shown before the other one goes, or the program would take that for its end.
    next->show();
    window_->close();
    // It is in the middle of asking for another register.
    window_.release()->deleteLater();
    window_ = std::move(next);
}

} // namespace quillmere::host

#pragma once

#include "register/MainWindow.h"
#include "register/OpenRegister.h"
#include "register/StartWindow.h"

#include <QString>

#include <functional>
#include <memory>

namespace quillmere::host {

/// Who receives the person: opens a register in its window or, where there is none to open, stands in the
/// start window until there is. From the window another register can be opened in its place.
class Reception {
public:
    /// What the person is asked; each gives a path, empty for none.
    struct Questions {
        std::function<QString()> file;
        std::function<QString()> placeForSample;
    };

    Reception(OpenSettings settings, Questions ask);

    void open(const QString& path);
    void welcome();

    [[nodiscard]] bool hasOpened() const { return window_ != nullptr; }
    /// None before a register is open.
    [[nodiscard]] MainWindow* window() const { return window_.get(); }

private:
    void openAnother();
    [[nodiscard]] std::unique_ptr<MainWindow> windowOf(const QString& path);
    void replaceWindow(std::unique_ptr<MainWindow> next);

    OpenSettings settings_;
    Questions ask_;
    QString path_;
    std::unique_ptr<MainWindow> window_;
    std::unique_ptr<StartWindow> start_;
};

} // namespace quillmere::host

#include "quillmere/Qt.h"

#include "adapters/qt/Application.h"
#include "adapters/qt/ModalSession.h"
#include "adapters/qt/QtDesktop.h"
#include "adapters/qt/QtText.h"

#include "platform/Error.h"

#include <QPixmap>
#include <QWidget>

namespace quillmere::qt {

namespace {

bool inUse = false;

} // namespace

struct Toolkit::Parts {
    explicit Parts(Companion* companion) : desktop(companion) {}

    QtDesktop desktop;
};

Toolkit::Toolkit(const ToolkitOptions& options) {
    if (inUse) throw Error(Failure::InvalidCall, "界面工具包已经在使用。", "Quillmere");
    requireApplication(options.applicationName, options.platform);
    parts_ = std::make_unique<Parts>(options.companion);
    ui::useDesktop(&parts_->desktop);
    inUse = true;
}

Toolkit::~Toolkit() {
    ui::useDesktop(nullptr);
    inUse = false;
}

ui::Desktop& Toolkit::desktop() { return parts_->desktop; }

bool Toolkit::saveScreenshot(std::string_view path) {
    QWidget* window = parts_->desktop.frontWindow();
    return window != nullptr && window->grab().save(toQt(path), "PNG");
}

bool Toolkit::isFailing() const { return ModalSession::isFailing(); }

void Toolkit::shutdown() {
    if (inUse) throw Error(Failure::InvalidCall, "界面工具包正在使用，不能结束。", "Quillmere");
    endOwnApplication();
}

} // namespace quillmere::qt

#include "adapters/qt/QtDesktop.h"

#include "adapters/qt/Application.h"
#include "adapters/qt/FileChooser.h"
#include "adapters/qt/FormPeer.h"
#include "adapters/qt/Guard.h"
#include "adapters/qt/MessageBoxDialog.h"
#include "adapters/qt/QtText.h"
#include "adapters/qt/Twips.h"

#include <QApplication>
#include <QBuffer>
#include <QImageReader>
#include <QScreen>
#include <QTimer>

namespace quillmere::qt {

/// Has a window in front for a time, and activates what was in front before it.
class QtDesktop::InFront {
public:
    InFront(std::vector<QWidget*>& windows, QWidget& window) : windows_(windows) {
        windows_.push_back(&window);
    }
    InFront(const InFront&) = delete;
    InFront& operator=(const InFront&) = delete;
    ~InFront() {
        windows_.back()->hide();
        windows_.pop_back();
        if (!windows_.empty()) windows_.back()->activateWindow();
    }

private:
    std::vector<QWidget*>& windows_;
};

QWidget* QtDesktop::frontWindow() const { return windows_.empty() ? nullptr : windows_.back(); }

QWidget* QtDesktop::parentForNext() const {
    return windows_.empty() ? QApplication::activeWindow() : windows_.back();
}

void QtDesktop::settleFront() const {
    if (!forms_.empty()) forms_.back()->buildPending();
}

ui::Answer QtDesktop::msgBox(const ui::MessageBox& box) {
    requireUserInterfaceThread();
    settleFront();
    const ui::Form* form = front();
    MessageBoxDialog dialog(box, form == nullptr ? QString() : toQt(form->Caption()), parentForNext());
    const InFront inFront(windows_, dialog);
    if (companion_ != nullptr) {
        QTimer::singleShot(0, &dialog, [&] {
            guarded([&] {
                if (const auto answer = companion_->messageOpened(box); answer) dialog.choose(*answer);
            });
        });
    }
    return dialog.ask();
}

std::string QtDesktop::openFile(const ui::FileDialog& dialog) {
    requireUserInterfaceThread();
    settleFront();
    if (companion_ != nullptr) {
        if (const auto chosen = companion_->fileAsked(dialog); chosen) return *chosen;
    }
    return chooseFile(dialog, parentForNext());
}

void QtDesktop::beep() {
    QApplication::beep();
    if (companion_ != nullptr) companion_->beepHeard();
}

ui::Rect QtDesktop::screen() const {
    const QWidget* window = parentForNext();
    const QScreen* shown = window != nullptr ? window->screen() : QApplication::primaryScreen();
    const QRect area = shown->availableGeometry();
    return {area.left() * twipsPerPixel, area.top() * twipsPerPixel, area.width() * twipsPerPixel,
            area.height() * twipsPerPixel};
}

bool QtDesktop::canDecode(std::string_view jpeg) const {
    QByteArray bytes = QByteArray::fromRawData(jpeg.data(), static_cast<qsizetype>(jpeg.size()));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "jpeg");
    // All of the file is read however small the picture, and a small one costs the least.
    reader.setScaledSize(QSize(1, 1));
    return !reader.read().isNull();
}

void QtDesktop::runModal(ui::Form& form) {
    requireUserInterfaceThread();
    settleFront();
    FormPeer peer(form, parentForNext());
    struct Listed {
        std::vector<FormPeer*>& list;
        ~Listed() { list.pop_back(); }
    } listed{forms_};
    forms_.push_back(&peer);
    const InFront inFront(windows_, peer.window());
    peer.show();
    if (companion_ != nullptr) {
        QTimer::singleShot(0, &peer.window(), [&] { guarded([&] { companion_->formOpened(form); }); });
    }
    try {
        peer.run();
    } catch (...) {
        if (companion_ != nullptr) companion_->formClosed(form);
        throw;
    }
    if (companion_ != nullptr) companion_->formClosed(form);
}

} // namespace quillmere::qt

#include "adapters/qt/FormWindow.h"

#include "adapters/qt/AccessibleRoles.h"
#include "adapters/qt/FormPeer.h"
#include "adapters/qt/Guard.h"
#include "adapters/qt/Twips.h"

#include "platform/ui/Desktop.h"

#include <QCloseEvent>
#include <QLayout>
#include <QResizeEvent>
#include <QScreen>

namespace quillmere::qt {

namespace {

/// Beyond this a form of fields only gets emptier.
constexpr QSize largestWindow(1360, 860);
constexpr QSize frameAllowance(24, 56);
constexpr QSize smallestDialog(380, 120);

} // namespace

FormWindow::FormWindow(FormPeer& peer, QWidget* parent) : QWidget(parent, Qt::Window), peer_(peer) {
    readAs(*this, peer.isMainWindow() ? QAccessible::Window : QAccessible::Dialog);
    setObjectName(QString::fromStdString(peer.form().name()));
    if (!peer.isMainWindow()) setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowModality(Qt::ApplicationModal);
}

QSize FormWindow::preferredSize() const {
    const ui::Rect& designed = peer_.form().geometry();
    const QSize design(designed.width / twipsPerPixel, designed.height / twipsPerPixel);
    const QSize available = screen()->availableSize() - frameAllowance;
    if (peer_.isMainWindow()) return largestWindow.expandedTo(design).boundedTo(available);
    return design.expandedTo(layout()->sizeHint()).expandedTo(smallestDialog).boundedTo(available);
}

QRect FormWindow::placeWanted() const {
    const ui::Rect& designed = peer_.form().geometry();
    if (designed.left != 0 || designed.top != 0) {
        return {designed.left / twipsPerPixel, designed.top / twipsPerPixel, designed.width / twipsPerPixel,
                designed.height / twipsPerPixel};
    }
    return parentWidget() != nullptr ? parentWidget()->window()->geometry() : screen()->availableGeometry();
}

void FormWindow::open() {
    resize(preferredSize());
    const QRect around = placeWanted();
    const QRect area = screen()->availableGeometry();
    QPoint corner = around.center() - rect().center();
    corner.setX(qBound(area.left(), corner.x(), qMax(area.left(), area.right() - width())));
    corner.setY(qBound(area.top(), corner.y(), qMax(area.top(), area.bottom() - height())));
    move(corner);
    opened_ = true;
    show();
    raise();
    activateWindow();
}

void FormWindow::closeEvent(QCloseEvent* event) {
    // The window itself goes when the form has closed.
    event->ignore();
    guarded([this] {
        // Behind another modal window nothing may be closed under an event that is still running.
        if (ui::desktop().front() == &peer_.form() && peer_.form().isOpen()) peer_.form().closeByFrame();
    });
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (!opened_) return;
    guarded([this] { peer_.form().resizeByPerson(width() * twipsPerPixel, height() * twipsPerPixel); });
}

bool FormWindow::focusNextPrevChild(bool /*next*/) {
    // A Tab goes to the model before it comes here. What does come are moves of Qt's own, as when the
    // widget with the keyboard is hidden or disabled: that is no one's leaving of a field.
    return false;
}

} // namespace quillmere::qt

#include "adapters/qt/FocusRing.h"

#include "adapters/qt/Style.h"

#include <QEvent>
#include <QPainter>

namespace quillmere::qt {

FocusRing::FocusRing(QWidget& around) : QWidget(around.parentWidget()), around_(around) {
    setObjectName(QStringLiteral("focusRing"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    around.installEventFilter(this);
    follow();
}

void FocusRing::follow() {
    setVisible(around_.hasFocus() && around_.isVisible());
    setGeometry(around_.geometry());
    raise();
}

bool FocusRing::eventFilter(QObject* /*watched*/, QEvent* event) {
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::Resize:
    case QEvent::Move:
    case QEvent::Show:
    case QEvent::Hide:
        follow();
        break;
    default:
        break;
    }
    return false;
}

void FocusRing::paintEvent(QPaintEvent* /*event*/) {
    constexpr int pen = 2;
    constexpr int corner = 5;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(style::colours().focus, pen));
    painter.drawRoundedRect(rect().adjusted(1, 1, -1, -1), corner, corner);
}

} // namespace quillmere::qt

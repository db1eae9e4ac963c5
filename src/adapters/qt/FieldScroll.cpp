#include "adapters/qt/FieldScroll.h"

#include "adapters/qt/FieldGrid.h"

#include <QEvent>
#include <QResizeEvent>
#include <QTimer>

namespace quillmere::qt {

FieldScroll::FieldScroll(FieldGrid* fields) {
    setWidget(fields);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Left to itself the bar may stay, and take its width, when the area has grown high enough.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    fields->setAutoFillBackground(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void FieldScroll::chooseBar() {
    const QWidget& fields = *widget();
    const int needed =
        fields.hasHeightForWidth() ? fields.heightForWidth(width()) : fields.minimumSizeHint().height();
    setVerticalScrollBarPolicy(needed > height() ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
}

bool FieldScroll::event(QEvent* event) {
    const bool handled = QScrollArea::event(event);
    if (event->type() == QEvent::Resize) QTimer::singleShot(0, this, [this] { chooseBar(); });
    return handled;
}

QSize FieldScroll::sizeHint() const {
    const QWidget& fields = *widget();
    // Captions that run over two lines need a height that depends on the width.
    const bool known = fields.hasHeightForWidth() && isVisible();
    return {600, known ? fields.heightForWidth(viewport()->width()) : fields.sizeHint().height()};
}

QSize FieldScroll::minimumSizeHint() const {
    constexpr QSize fewRows(200, 96);
    return fewRows.boundedTo(sizeHint());
}

void FieldScroll::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    if (event->oldSize().width() != event->size().width()) updateGeometry();
}

bool FieldScroll::eventFilter(QObject* watched, QEvent* event) {
    const bool handled = QScrollArea::eventFilter(watched, event);
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        QTimer::singleShot(0, this, [this] { chooseBar(); });
    }
    return handled;
}

} // namespace quillmere::qt

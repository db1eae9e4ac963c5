#include "adapters/qt/FieldScroll.h"

#include "adapters/qt/FieldGrid.h"

#include <QEvent>
#include <QResizeEvent>

namespace quillmere::qt {

FieldScroll::FieldScroll(FieldGrid* fields) {
    setWidget(fields);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    fields->setAutoFillBackground(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
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
    if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
    return handled;
}

} // namespace quillmere::qt

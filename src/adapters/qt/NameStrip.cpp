#include "adapters/qt/NameStrip.h"

#include "adapters/qt/AccessibleRoles.h"
#include "adapters/qt/LabelPeer.h"
#include "adapters/qt/PictureFile.h"
#include "adapters/qt/Style.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>

#include <utility>

namespace quillmere::qt {

namespace {

constexpr QSize photoSize(28, 36);
constexpr int gap = 10;
/// Enough for the densest screens.
constexpr int mostPixelsPerPixel = 4;
/// What the name and the buttons keep between them, however narrow the bar.
constexpr int breathingSpace = 48;

} // namespace

class NameStrip::Photo final : public QWidget {
public:
    explicit Photo(QWidget* parent) : QWidget(parent) {
        setObjectName(QStringLiteral("namePhoto"));
        setFixedSize(photoSize);
        setAccessibleName(QStringLiteral("照片"));
        readAs(*this, QAccessible::Graphic);
        hide();
    }

    void take(QImage picture) {
        picture_ = std::move(picture);
        update();
    }
    [[nodiscard]] bool isEmpty() const { return picture_.isNull(); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        QPainterPath frame;
        frame.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
        painter.setClipPath(frame);
        QRect target(QPoint(), picture_.size().scaled(size(), Qt::KeepAspectRatioByExpanding));
        target.moveCenter(rect().center());
        painter.drawImage(target, picture_);
        painter.setClipping(false);
        painter.setPen(style::colours().cardBorder);
        painter.drawPath(frame);
    }

private:
    QImage picture_;
};

NameStrip::NameStrip(LabelPeer& name, const QWidget& neighbour, QWidget& bar)
    : QWidget(&bar), name_(name.label()), neighbour_(neighbour), photo_(new Photo(this)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(gap);
    row->addWidget(photo_);
    row->addWidget(&name_);
    bar.installEventFilter(this);
    name.onPicture([this](const std::string& path) { showPhoto(path); });
}

void NameStrip::showPhoto(const std::string& path) {
    photo_->take(readPicture(path, photoSize * mostPixelsPerPixel));
    photo_->setVisible(!photo_->isEmpty() && hasRoom());
}

bool NameStrip::hasRoom() const {
    const int needed =
        neighbour_.sizeHint().width() + breathingSpace + photoSize.width() + gap + name_.sizeHint().width();
    return parentWidget()->width() >= needed;
}

bool NameStrip::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::Resize) photo_->setVisible(!photo_->isEmpty() && hasRoom());
    return false;
}

} // namespace quillmere::qt

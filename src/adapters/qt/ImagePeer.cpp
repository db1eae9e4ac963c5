#include "adapters/qt/ImagePeer.h"

#include "adapters/qt/AccessibleRoles.h"
#include "adapters/qt/FormPeer.h"
#include "adapters/qt/Icons.h"
#include "adapters/qt/PictureFile.h"
#include "adapters/qt/Style.h"

#include "platform/ui/Image.h"

#include <QPainter>

namespace quillmere::qt {

namespace {

constexpr QSize portrait(114, 152);
/// A photo from a camera is cut down to what a screen can show.
constexpr QSize largestPicture(1200, 1200);

class PictureWidget final : public QWidget {
public:
    explicit PictureWidget(QWidget* parent) : QWidget(parent) {
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        setMinimumSize(portrait);
        readAs(*this, QAccessible::Graphic);
    }

    void show(QImage picture) {
        picture_ = std::move(picture);
        update();
    }

    [[nodiscard]] QSize sizeHint() const override { return portrait; }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
        painter.setPen(QPen(style::colours().cardBorder, 1));
        painter.setBrush(style::colours().quiet);
        painter.drawRoundedRect(frame, 4, 4);
        if (picture_.isNull()) {
            const int side = qMin(width(), height()) / 2;
            const QRect middle(QPoint((width() - side) / 2, (height() - side) / 2), QSize(side, side));
            icons::paint(painter, icons::Glyph::Person, middle, style::colours().emptyPicture);
            return;
        }
        QRect target(QPoint(), picture_.size().scaled(size() - QSize(6, 6), Qt::KeepAspectRatio));
        target.moveCenter(rect().center());
        painter.drawImage(target, picture_);
    }

private:
    QImage picture_;
};

} // namespace

ImagePeer::ImagePeer(FormPeer& form, ui::Control& control)
    : ControlPeer(form, control, new PictureWidget(&form.window())) {
    mirror(ui::Property::Picture);
}

void ImagePeer::mirror(ui::Property property) {
    if (property != ui::Property::Picture) return;
    static_cast<PictureWidget*>(widget())->show(readPicture(as<ui::Image>().Picture(), largestPicture));
}

bool ImagePeer::mousePressed(QMouseEvent& event, QWidget& /*target*/) {
    tellClick(event);
    return true;
}

} // namespace quillmere::qt

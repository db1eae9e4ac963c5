#include "adapters/qt/Icons.h"

#include "adapters/qt/Style.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QStringList>

#include <array>
#include <cmath>
#include <utility>

namespace quillmere::qt::icons {

namespace {

/// Lines on a field of 24 by 24: "M x y" goes to, "L x y" draws to, "C" with two control points, "Z"
/// closes, "O x y r" is a circle, "R x y w h" a rectangle with round corners.
constexpr std::array<const char*, 19> outlines{
    "M 13 3 L 6 3 L 6 21 L 18 21 L 18 8 Z M 13 3 L 13 8 L 18 8 M 12 11 L 12 17 M 9 14 L 15 14",
    "M 4 7 L 20 7 M 9 7 L 9 4 L 15 4 L 15 7 M 6 7 L 7 21 L 17 21 L 18 7 M 10 11 L 10 17 M 14 11 L 14 17",
    "M 4 4 L 17 4 L 20 7 L 20 20 L 4 20 Z M 8 4 L 8 9 L 15 9 L 15 4 M 7 20 L 7 13 L 17 13 L 17 20",
    "M 8 5 L 4 9 L 8 13 M 4 9 L 14 9 C 18 9 20 11 20 14 C 20 17 18 19 14 19 L 8 19",
    "M 14 4 L 5 4 L 5 20 L 14 20 M 10 12 L 21 12 M 17 8 L 21 12 L 17 16",
    "O 12 8 4 M 4 21 C 4 16 8 14.5 12 14.5 C 16 14.5 20 16 20 21",
    "M 3 6 L 10 6 L 12 8.5 L 21 8.5 L 21 20 L 3 20 Z",
    "R 4 5 16 16 M 4 10 L 20 10 M 8 3 L 8 7 M 16 3 L 16 7",
    "M 6 20 L 6 12 M 12 20 L 12 5 M 18 20 L 18 9 M 3 20 L 21 20",
    "R 4 4 16 16 M 8 12 L 11 15 L 16 9",
    "M 6 3 L 18 3 L 18 21 L 6 21 Z M 9 8 L 15 8 M 9 12 L 15 12 M 9 16 L 15 16",
    "O 12 12 9 M 12 11 L 12 16.5 O 12 7.6 0.4",
    "M 12 10 L 12 19 O 12 5.2 0.4",
    "M 8 9 C 8 6.5 9.5 5 12 5 C 14.5 5 16 6.5 16 9 C 16 11.5 12 12 12 15 O 12 19 0.4",
    "M 12 5 L 12 14.5 O 12 19 0.4",
    "M 7 7 L 17 17 M 17 7 L 7 17",
    "O 6 12 1 O 12 12 1 O 18 12 1",
    "M 7 10 L 12 15 L 17 10",
    "M 10 7 L 15 12 L 10 17",
};

/// Brings drawn places to places on the screen, in its pixels.
class Grid {
public:
    /// `scale` from the field to pixels, `pen` in whole pixels.
    Grid(double scale, int pen) : scale_(scale), middle_(pen % 2 == 0 ? 0 : 0.5) {}

    [[nodiscard]] QPointF at(double x, double y) const { return {x * scale_, y * scale_}; }
    /// The place where a line of the pen's width covers whole pixels.
    [[nodiscard]] QPointF onPixel(double x, double y) const { return {snapped(x), snapped(y)}; }
    [[nodiscard]] double length(double drawn) const { return drawn * scale_; }

private:
    [[nodiscard]] double snapped(double drawn) const {
        return std::round(drawn * scale_ - middle_) + middle_;
    }

    double scale_;
    double middle_;
};

QPainterPath pathOf(Glyph glyph, const Grid& grid) {
    const QStringList words =
        QString::fromLatin1(outlines[static_cast<std::size_t>(glyph)]).split(QLatin1Char(' '));
    QPainterPath path;
    qsizetype next = 0;
    const auto number = [&] { return words[next++].toDouble(); };
    const auto corner = [&] {
        const double x = number();
        return grid.onPixel(x, number());
    };
    const auto point = [&] {
        const double x = number();
        return grid.at(x, number());
    };
    while (next < words.size()) {
        const char command = words[next++].front().toLatin1();
        if (command == 'M') path.moveTo(corner());
        if (command == 'L') path.lineTo(corner());
        if (command == 'Z') path.closeSubpath();
        if (command == 'C') {
            const QPointF first = point();
            const QPointF second = point();
            path.cubicTo(first, second, corner());
        }
        if (command == 'O') {
            const QPointF centre = corner();
            const double radius = grid.length(number());
            path.addEllipse(centre, radius, radius);
        }
        if (command == 'R') {
            const double left = number();
            const double top = number();
            const double width = number();
            const QRectF box(grid.onPixel(left, top), grid.onPixel(left + width, top + number()));
            path.addRoundedRect(box, grid.length(2), grid.length(2));
        }
    }
    return path;
}

class GlyphEngine final : public QIconEngine {
public:
    GlyphEngine(Glyph glyph, QColor Colours::*colour) : glyph_(glyph), colour_(colour) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
        const Colours& skin = style::colours();
        icons::paint(*painter, glyph_, rect, mode == QIcon::Disabled ? skin.disabledIcon : skin.*colour_);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new GlyphEngine(glyph_, colour_); }

private:
    Glyph glyph_;
    QColor Colours::*colour_;
};

} // namespace

void paint(QPainter& painter, Glyph glyph, const QRect& place, const QColor& colour) {
    constexpr double field = 24;
    constexpr double penOnField = 1.9;
    const double ratio = painter.device()->devicePixelRatioF();
    const double scale = place.width() * ratio / field;
    const double pen = qMax(1.0, penOnField * scale);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.topLeft());
    painter.scale(1 / ratio, 1 / ratio);
    painter.setPen(QPen(colour, pen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(glyph == Glyph::Ellipsis ? QBrush(colour) : QBrush(Qt::NoBrush));
    painter.drawPath(pathOf(glyph, Grid(scale, qRound(pen))));
    painter.restore();
}

QIcon icon(Glyph glyph, QColor Colours::*colour) { return QIcon(new GlyphEngine(glyph, colour)); }

Glyph forCommand(const QString& key) {
    static const std::array<std::pair<const char*, Glyph>, 5> commands{{{"Add", Glyph::Add},
                                                                        {"Delete", Glyph::Delete},
                                                                        {"Save", Glyph::Save},
                                                                        {"Cancel", Glyph::Undo},
                                                                        {"Exit", Glyph::Exit}}};
    for (const auto& [name, glyph] : commands) {
        if (key == QLatin1String(name)) return glyph;
    }
    return Glyph::Document;
}

} // namespace quillmere::qt::icons

#include "adapters/qt/Icons.h"

#include "adapters/qt/Resources.h"
#include "adapters/qt/Style.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <array>
#include <utility>

namespace quillmere::qt::icons {

namespace {

/// In the order of Glyph.
constexpr std::array names{"add",      "delete",      "save",         "undo",         "exit",
                           "person",   "folder",      "calendar",     "chart",        "check",
                           "document", "information", "letter",       "question",     "exclamation",
                           "cross",    "ellipsis",    "chevron-down", "chevron-right"};

const QByteArray& drawingOf(Glyph glyph) {
    static const auto drawings = [] {
        std::array<QByteArray, names.size()> read;
        for (std::size_t i = 0; i < names.size(); ++i)
            read[i] = resource(QStringLiteral("icons/%1.svg").arg(QLatin1String(names[i])));
        return read;
    }();
    return drawings.at(static_cast<std::size_t>(glyph));
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
    QByteArray drawing = drawingOf(glyph);
    QSvgRenderer renderer(drawing.replace("currentColor", colour.name().toLatin1()));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(painter.opacity() * colour.alphaF());
    renderer.render(&painter, place);
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

#include "adapters/qt/Style.h"

#include <QApplication>
#include <QProxyStyle>
#include <QStringList>
#include <QWidget>

#include <utility>

namespace quillmere::qt::style {

namespace {

constexpr int fontPixels = 13;

/// Fusion without the dotted frame around what has the focus: the border tells it.
class QuietFusion final : public QProxyStyle {
public:
    QuietFusion() : QProxyStyle(QStringLiteral("Fusion")) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (element != PE_FrameFocusRect) QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
};

QPalette palette(const Colours& skin) {
    QPalette colours;
    colours.setColor(QPalette::Window, skin.ground);
    colours.setColor(QPalette::WindowText, skin.text);
    colours.setColor(QPalette::Base, skin.card);
    colours.setColor(QPalette::AlternateBase, skin.quiet);
    colours.setColor(QPalette::Text, skin.text);
    colours.setColor(QPalette::Button, skin.card);
    colours.setColor(QPalette::ButtonText, skin.text);
    colours.setColor(QPalette::BrightText, skin.text);
    colours.setColor(QPalette::Link, skin.focus);
    colours.setColor(QPalette::Mid, skin.cardBorder);
    colours.setColor(QPalette::Dark, skin.fieldBorder);
    colours.setColor(QPalette::Highlight, skin.accent);
    colours.setColor(QPalette::HighlightedText, skin.accentText);
    colours.setColor(QPalette::PlaceholderText, skin.mutedText);
    colours.setColor(QPalette::ToolTipBase, skin.popup);
    colours.setColor(QPalette::ToolTipText, skin.text);
    colours.setColor(QPalette::Disabled, QPalette::WindowText, skin.disabledText);
    colours.setColor(QPalette::Disabled, QPalette::Text, skin.disabledText);
    colours.setColor(QPalette::Disabled, QPalette::ButtonText, skin.paleText);
    return colours;
}

QFont typeface() {
    QFont font;
    font.setFamilies({QStringLiteral("Microsoft YaHei UI"), QStringLiteral("Noto Sans CJK SC")});
    font.setPixelSize(fontPixels);
    return font;
}

Skin& worn() {
    static Skin skin = Skin::light();
    return skin;
}

} // namespace

const Colours& colours() { return worn().colours(); }

SkinKeeper::SkinKeeper() : kept_(worn()) {}

SkinKeeper::~SkinKeeper() { worn() = std::move(kept_); }

void dress(QWidget& window) {
    window.setFont(typeface());
    window.setPalette(palette(colours()));
    if (window.property("role").isNull()) window.setProperty("role", "window");
    if (worn().sheet() != window.styleSheet()) window.setStyleSheet(worn().sheet());
}

void applySkin(QWidget& window, const std::string& path) {
    if (path.empty()) return;
    worn() = Skin::fromFile(path);
    dress(window);
}

void dressOwnApplication() {
    QApplication::setStyle(new QuietFusion);
    QApplication::setPalette(palette(Skin::light().colours()));
    QApplication::setFont(typeface());
    QApplication::setApplicationDisplayName(QString());
}

QColor toQColor(ui::Colour colour) {
    switch (colour) {
    case ui::colour::window:
        return colours().field;
    case ui::colour::buttonShadow:
        return colours().mutedText;
    case ui::colour::buttonText:
        return colours().text;
    case ui::colour::codedField:
        return colours().coded;
    default:
        break;
    }
    return {static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
            static_cast<int>(colour >> 16 & 0xFF)};
}

QString legendMarkup(const QStringList& lines) {
    QString markup;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString line = lines[i].trimmed().toHtmlEscaped();
        if (i != 0) markup += QStringLiteral("&nbsp;&nbsp;&nbsp;&nbsp;");
        if (i == 0)
            markup += QStringLiteral("<b>%1</b>").arg(line);
        else if (i == 1)
            markup += QStringLiteral("<span style='color:%1'>■</span>&nbsp;%2")
                          .arg(colours().codedSwatch.name(), line);
        else
            markup += line;
    }
    return markup;
}

} // namespace quillmere::qt::style

#include "adapters/qt/Style.h"

#include "adapters/qt/QtText.h"
#include "adapters/qt/StyleSheet.h"

#include "platform/files/Files.h"

#include <QApplication>
#include <QDebug>
#include <QFile>
#include <QProxyStyle>
#include <QStringList>
#include <QWidget>

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

QPalette palette() {
    QPalette colours;
    colours.setColor(QPalette::Window, ground);
    colours.setColor(QPalette::WindowText, text);
    colours.setColor(QPalette::Base, card);
    colours.setColor(QPalette::AlternateBase, quietGround);
    colours.setColor(QPalette::Text, text);
    colours.setColor(QPalette::Button, card);
    colours.setColor(QPalette::ButtonText, text);
    colours.setColor(QPalette::Highlight, accent);
    colours.setColor(QPalette::HighlightedText, card);
    colours.setColor(QPalette::PlaceholderText, mutedText);
    colours.setColor(QPalette::ToolTipBase, card);
    colours.setColor(QPalette::ToolTipText, text);
    colours.setColor(QPalette::Disabled, QPalette::WindowText, mutedText);
    colours.setColor(QPalette::Disabled, QPalette::Text, mutedText);
    colours.setColor(QPalette::Disabled, QPalette::ButtonText, disabledIcon);
    return colours;
}

QFont typeface() {
    QFont font;
    font.setFamilies({QStringLiteral("Microsoft YaHei UI"), QStringLiteral("Noto Sans CJK SC")});
    font.setPixelSize(fontPixels);
    return font;
}

} // namespace

void dress(QWidget& window) {
    window.setFont(typeface());
    window.setPalette(palette());
    window.setProperty("role", "window");
    window.setStyleSheet(QString::fromUtf8(styleSheet));
}

void applySkin(QWidget& window, const std::string& path) {
    QString sheet = QString::fromUtf8(styleSheet);
    if (!path.empty()) {
        QFile file(toQt(files::native(path)));
        if (file.open(QIODevice::ReadOnly))
            sheet += QString::fromUtf8(file.readAll());
        else
            qWarning("Quillmere: no skin at %s", path.c_str());
    }
    if (sheet != window.styleSheet()) window.setStyleSheet(sheet);
}

void dressOwnApplication() {
    QApplication::setStyle(new QuietFusion);
    QApplication::setPalette(palette());
    QApplication::setFont(typeface());
    QApplication::setApplicationDisplayName(QString());
}

QColor toQColor(ui::Colour colour) {
    switch (colour) {
    case ui::colour::window:
        return card;
    case ui::colour::buttonShadow:
        return mutedText;
    case ui::colour::buttonText:
        return text;
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
                          .arg(QStringLiteral("#8DBBF4"), line);
        else
            markup += line;
    }
    return markup;
}

} // namespace quillmere::qt::style

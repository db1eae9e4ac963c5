#include "register/Look.h"

#include <QApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QPainter>
#include <QPalette>
#include <QStyleFactory>
#include <QSvgRenderer>
#include <QTranslator>
#include <QWidget>

#include <array>
#include <stdexcept>

/// A static library's resources register themselves only when asked to, and outside of any namespace.
static void registerResources() { Q_INIT_RESOURCE(quillmere_register); }

namespace quillmere::host::look {

namespace {

/// A file that the program carries inside itself.
QByteArray resource(const QString& name) {
    registerResources();
    QFile file(QStringLiteral(":/register/") + name);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("not carried inside: " + name.toStdString());
    return file.readAll();
}

constexpr QColor toolColour{0x1F, 0x4E, 0x9C};
constexpr QColor paleColour{0xB4, 0xBE, 0xCB};
constexpr int fontPixels = 13;

constexpr const char* styleSheet = R"(
QWidget[role="topBar"] { background: #FFFFFF; border-bottom: 1px solid #D9E1EC; }
QWidget[role="ground"] { background: #EEF2F7; }
QFrame[role="card"] { background: #FFFFFF; border: 1px solid #D9E1EC; border-radius: 6px; }
QFrame[role="separator"] { background: #D9E1EC; border: none; }
QLabel { color: #16243A; background: transparent; }
QLabel[role="count"] { color: #66758C; }
QLabel[role="emptyTitle"] { color: #43536B; font-size: 15px; font-weight: bold; }
QLabel[role="emptyHint"] { color: #66758C; }

QToolButton { color: #16243A; background: transparent; border: none; border-radius: 5px; padding: 6px 11px 6px 9px; }
QToolButton:hover { background: #EDF3FC; }
QToolButton:pressed { background: #DCE8FA; }
QToolButton:disabled { color: #A3AEBD; }
QToolButton[primary="true"] { color: #FFFFFF; background: #2F6FD0; padding: 6px 30px 6px 10px; }
QToolButton[primary="true"]:hover { background: #3E7DDC; }
QToolButton[primary="true"]:pressed { background: #255BB0; }
QToolButton[primary="true"]::menu-button { border: none; border-left: 1px solid #6E9DE2; width: 21px;
    border-top-right-radius: 5px; border-bottom-right-radius: 5px; }
QToolButton[primary="true"]::menu-button:hover { background: #4A86E0; }

QPushButton[segment="true"] { color: #52627A; background: #FFFFFF; border: 1px solid #BECAD9; padding: 0 18px;
    min-height: 28px; }
QPushButton[segment="true"]:hover { background: #F3F7FD; }
QPushButton[segment="true"]:checked { color: #FFFFFF; background: #2F6FD0; border-color: #2F6FD0; font-weight: bold; }
QPushButton[segment="true"]:focus { border-color: #1B4A96; }
QPushButton#persons { border-top-left-radius: 4px; border-bottom-left-radius: 4px; }
QPushButton#units { border-top-right-radius: 4px; border-bottom-right-radius: 4px; border-left: none; }

QLineEdit { color: #16243A; background: #FFFFFF; border: 1px solid #BECAD9; border-radius: 4px; padding: 0 4px;
    min-height: 28px; selection-background-color: #2F6FD0; selection-color: #FFFFFF; }
QLineEdit:hover { border-color: #94A8C2; }
QLineEdit:focus { border: 2px solid #2F6FD0; padding: 0 3px; min-height: 26px; }
QLineEdit QToolButton { padding: 0; background: transparent; }

QComboBox { color: #16243A; background: #FFFFFF; border: 1px solid #BECAD9; border-radius: 4px;
    padding: 0 26px 0 9px; min-height: 28px; }
QComboBox:hover { border-color: #94A8C2; }
QComboBox:focus { border-color: #2F6FD0; }
QComboBox[active="true"] { color: #1B4A96; background: #E4EEFC; border-color: #2F6FD0; }
QComboBox::drop-down { border: none; width: 24px; }
QComboBox::down-arrow { image: none; }
QComboBox QAbstractItemView { color: #16243A; background: #FFFFFF; border: 1px solid #BECAD9; outline: none;
    selection-background-color: #E4EEFC; selection-color: #16243A; padding: 4px; }
QProgressBar { background: transparent; border: none; }
QProgressBar::chunk { background: #2F6FD0; }
QLabel[role="notice"] { color: #7A5300; background: #FFF6DD; border-bottom: 1px solid #EAD9A8; padding: 8px 18px; }
QToolButton[quiet="true"] { color: #2F6FD0; padding: 4px 8px; }
QToolButton[quietMenu="true"]::menu-indicator { image: none; width: 0; }
QPushButton[plain="true"] { color: #1B4A96; background: #FFFFFF; border: 1px solid #BECAD9; border-radius: 4px;
    padding: 0 16px; min-height: 30px; }
QPushButton[plain="true"]:hover { background: #EDF3FC; border-color: #94A8C2; }
QPushButton[plain="true"]:pressed { background: #DCE8FA; }
QPushButton[plain="true"]:focus { border-color: #2F6FD0; }
QLabel[role="startTitle"] { color: #16243A; font-size: 22px; font-weight: bold; }
QFrame[role="problem"] { background: #FDF1F0; border: 1px solid #EBC3BF; border-radius: 6px; }
QLabel[role="problemTitle"] { color: #A82A21; font-weight: bold; }
QLabel[role="problemText"] { color: #5C3A37; }
QPushButton[choice="true"] { color: #16243A; background: #FFFFFF; border: 1px solid #D9E1EC; border-radius: 6px;
    padding: 0 18px; min-height: 58px; text-align: left; font-weight: bold; }
QPushButton[choice="true"]:hover { background: #F6F9FD; border-color: #94A8C2; }
QPushButton[choice="true"]:focus { border: 2px solid #2F6FD0; padding: 0 17px; min-height: 56px; }
QPushButton[choice="true"]:pressed { background: #E4EEFC; }
QPushButton[choice="true"]:disabled { color: #A3AEBD; }
QPushButton[plain="true"]:disabled { color: #A3AEBD; }

QTableView { color: #16243A; background: #FFFFFF; border: none; outline: none; gridline-color: #E6ECF4;
    alternate-background-color: #F6F9FD; selection-background-color: #D6E6FB; selection-color: #16243A; }
QTableView::item { padding: 0 8px; border: none; }
QTableView::item:selected { background: #D6E6FB; color: #16243A; }
QHeaderView { background: #EEF3F9; border: none; }
QHeaderView::section { color: #2C3D57; background: #EEF3F9; font-weight: bold; border: none;
    border-right: 1px solid #D9E1EC; border-bottom: 1px solid #D9E1EC; border-top: 1px solid #D9E1EC;
    padding: 0 11px; }
QScrollBar:vertical { background: transparent; width: 11px; margin: 1px; }
QScrollBar::handle:vertical { background: #C3CFDE; border-radius: 4px; min-height: 30px; }
QScrollBar::handle:vertical:hover { background: #A5B5C9; }
QScrollBar:horizontal { background: transparent; height: 11px; margin: 1px; }
QScrollBar::handle:horizontal { background: #C3CFDE; border-radius: 4px; min-width: 30px; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }

QMenu { color: #16243A; background: #FFFFFF; border: 1px solid #BECAD9; padding: 4px; }
QMenu::item { padding: 6px 26px 6px 30px; border-radius: 3px; }
QMenu::item:selected { background: #E4EEFC; }
QMenu::item:disabled { color: #66758C; padding-left: 12px; }
QMenu::separator { height: 1px; background: #E6ECF4; margin: 4px 8px; }

QStatusBar { background: #FFFFFF; border-top: 1px solid #D9E1EC; min-height: 28px; }
QStatusBar::item { border: none; }
QStatusBar QLabel { color: #52627A; padding: 0 6px; }
QStatusBar QLabel[outcome="saved"] { color: #1B7F4B; font-weight: bold; }
QStatusBar QLabel[outcome="failure"] { color: #C0362C; font-weight: bold; }
)";

/// The drawings icons/*.svg, in the order of Glyph.
constexpr std::array names{"add",   "edit", "plan",  "progress", "closing", "search",
                           "clear", "down", "clock", "open",     "folder",  "sample"};

QPixmap draw(const QByteArray& drawing, int size) {
    QSvgRenderer renderer(drawing);
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer.render(&painter);
    return picture;
}

QPixmap pixmap(Glyph glyph, const QColor& colour, int size) {
    const QLatin1String name(names.at(static_cast<std::size_t>(glyph)));
    QByteArray drawing = resource(QStringLiteral("icons/%1.svg").arg(name));
    return draw(drawing.replace("currentColor", colour.name().toLatin1()), size);
}

} // namespace

void dress(QApplication& application) {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0xEE, 0xF2, 0xF7));
    palette.setColor(QPalette::WindowText, QColor(0x16, 0x24, 0x3A));
    palette.setColor(QPalette::Highlight, QColor(0x2F, 0x6F, 0xD0));
    palette.setColor(QPalette::PlaceholderText, QColor(0x7C, 0x88, 0x99));
    QApplication::setPalette(palette);
    QFont font;
    font.setFamilies({QStringLiteral("Microsoft YaHei UI"), QStringLiteral("Noto Sans CJK SC")});
    font.setPixelSize(fontPixels);
    QApplication::setFont(font);

    QApplication::setWindowIcon(programIcon());
    QGuiApplication::setDesktopFileName(QStringLiteral("quillmere-register"));

    auto* translator = new QTranslator(&application);
    if (translator->load(QStringLiteral("qtbase_zh_CN"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(translator);
}

void dress(QWidget& part) { part.setStyleSheet(QString::fromUtf8(styleSheet)); }

QIcon icon(Glyph glyph, const QColor& colour) {
    QIcon result;
    for (const int size : {18, 36}) {
        result.addPixmap(pixmap(glyph, colour, size));
        result.addPixmap(pixmap(glyph, paleColour, size), QIcon::Disabled);
    }
    return result;
}

QIcon icon(Glyph glyph) { return icon(glyph, toolColour); }

QIcon programIcon() {
    const QByteArray drawing = resource(QStringLiteral("quillmere-register.svg"));
    QIcon result;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        result.addPixmap(draw(drawing, size));
    return result;
}

} // namespace quillmere::host::look

#include "adapters/qt/MessageBoxDialog.h"

#include "adapters/qt/Guard.h"
#include "adapters/qt/QtText.h"
#include "adapters/qt/Style.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace quillmere::qt {

namespace {

constexpr int signSize = 34;
constexpr int widestText = 460;

struct SignLook {
    QColor colour;
    const char* character;
};

SignLook lookOf(ui::Icon icon) {
    switch (icon) {
    case ui::Icon::Warning:
        return {QColor(0xE9, 0xA2, 0x1B), "!"};
    case ui::Icon::Error:
        return {QColor(0xD6, 0x45, 0x45), "×"};
    case ui::Icon::Question:
        return {style::accent, "?"};
    case ui::Icon::Information:
    case ui::Icon::None:
        break;
    }
    return {style::accent, "i"};
}

QPixmap signOf(ui::Icon icon, double ratio) {
    const auto [colour, character] = lookOf(icon);
    const int side = static_cast<int>(signSize * ratio);
    QPixmap pixmap(side, side);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(0, 0, signSize, signSize);
    QFont font = QApplication::font();
    font.setPixelSize(22);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRect(0, 0, signSize, signSize), Qt::AlignCenter, QString::fromUtf8(character));
    return pixmap;
}

} // namespace

MessageBoxDialog::MessageBoxDialog(const ui::MessageBox& box, const QString& titleBelow, QWidget* parent)
    : QWidget(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
    , buttons_(box.buttons)
    , answer_(box.buttons == ui::Buttons::Ok ? ui::Answer::Ok : ui::Answer::No) {
    setObjectName(QStringLiteral("messageBox"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowModality(Qt::ApplicationModal);
    setWindowTitle(box.title.empty() ? titleBelow : toQt(box.title));
    style::dress(*this);
    setProperty("role", "dialog");

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(22, 20, 20, 16);
    column->setSpacing(20);
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    if (box.icon != ui::Icon::None) {
        auto* sign = new QLabel;
        sign->setPixmap(signOf(box.icon, devicePixelRatioF()));
        row->addWidget(sign, 0, Qt::AlignTop);
    }
    auto* message = new QLabel(toQt(box.text));
    message->setObjectName(QStringLiteral("messageText"));
    message->setTextFormat(Qt::PlainText);
    const int natural = message->sizeHint().width();
    message->setWordWrap(true);
    message->setMinimumWidth(std::min(natural, widestText));
    message->setMinimumHeight(signSize);
    message->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    row->addWidget(message, 1);
    column->addLayout(row, 1);
    auto* choices = new QHBoxLayout;
    choices->setSpacing(10);
    choices->addStretch(1);
    if (buttons_ == ui::Buttons::Ok) {
        addButton(*choices, QStringLiteral("btnOk"), QStringLiteral("确定"), ui::Answer::Ok);
    } else {
        addButton(*choices, QStringLiteral("btnYes"), QStringLiteral("是"), ui::Answer::Yes);
        addButton(*choices, QStringLiteral("btnNo"), QStringLiteral("否"), ui::Answer::No);
    }
    column->addLayout(choices);
    setMinimumWidth(280);
}

void MessageBoxDialog::addButton(QHBoxLayout& row, const QString& name, const QString& text,
                                 ui::Answer answer) {
    auto* button = new QPushButton(text);
    button->setObjectName(name);
    button->setMinimumWidth(62);
    const bool first = findChild<QPushButton*>() == nullptr && row.count() == 1;
    if (first) button->setProperty("primary", true);
    row.addWidget(button);
    if (first) button->setFocus();
    connect(button, &QPushButton::clicked, this, [this, answer] { choose(answer); });
}

ui::Answer MessageBoxDialog::ask() {
    adjustSize();
    const QWidget* below = parentWidget() == nullptr ? nullptr : parentWidget()->window();
    const QRect around = below != nullptr ? below->geometry() : screen()->availableGeometry();
    move(around.center() - rect().center());
    show();
    raise();
    activateWindow();
    session_.run();
    return answer_;
}

void MessageBoxDialog::choose(ui::Answer answer) {
    answer_ = answer;
    session_.end();
}

void MessageBoxDialog::closeEvent(QCloseEvent* event) {
    event->accept();
    session_.end();
}

void MessageBoxDialog::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Escape:
        close();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto* button = qobject_cast<QPushButton*>(focusWidget()); button != nullptr) button->click();
        return;
    case Qt::Key_Y:
        if (buttons_ == ui::Buttons::YesNo) choose(ui::Answer::Yes);
        return;
    case Qt::Key_N:
        if (buttons_ == ui::Buttons::YesNo) choose(ui::Answer::No);
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace quillmere::qt

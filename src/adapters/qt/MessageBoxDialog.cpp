#include "adapters/qt/MessageBoxDialog.h"

#include "adapters/qt/AccessibleRoles.h"
#include "adapters/qt/Guard.h"
#include "adapters/qt/Icons.h"
#include "adapters/qt/QtText.h"
#include "adapters/qt/Style.h"

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
    icons::Glyph mark;
};

SignLook lookOf(ui::Icon icon) {
    const Colours& skin = style::colours();
    switch (icon) {
    case ui::Icon::Warning:
        return {skin.warning, icons::Glyph::Exclamation};
    case ui::Icon::Error:
        return {skin.error, icons::Glyph::Cross};
    case ui::Icon::Question:
        return {skin.focus, icons::Glyph::Question};
    case ui::Icon::Information:
    case ui::Icon::None:
        break;
    }
    return {skin.focus, icons::Glyph::Letter};
}

/// A disc in the colour of what the box says, with its mark.
class Sign final : public QWidget {
public:
    explicit Sign(ui::Icon icon) : look_(lookOf(icon)) { setFixedSize(signSize, signSize); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(look_.colour);
        painter.drawEllipse(rect());
        constexpr int edge = 3;
        icons::paint(painter, look_.mark, rect().adjusted(edge, edge, -edge, -edge),
                     style::colours().signMark);
    }

private:
    SignLook look_;
};

} // namespace

MessageBoxDialog::MessageBoxDialog(const ui::MessageBox& box, const QString& titleBelow, QWidget* parent)
    : QWidget(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
    , buttons_(box.buttons)
    , answer_(box.buttons == ui::Buttons::Ok ? ui::Answer::Ok : ui::Answer::No) {
    readAs(*this, QAccessible::AlertMessage);
    setObjectName(QStringLiteral("messageBox"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowModality(Qt::ApplicationModal);
    setWindowTitle(box.title.empty() ? titleBelow : toQt(box.title));
    setAccessibleDescription(toQt(box.text));
    style::dress(*this);
    setProperty("role", "dialog");

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(22, 20, 20, 16);
    column->setSpacing(20);
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    if (box.icon != ui::Icon::None) {
        row->addWidget(new Sign(box.icon), 0, Qt::AlignTop);
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
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
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

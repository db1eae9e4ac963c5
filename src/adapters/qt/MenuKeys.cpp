#include "adapters/qt/MenuKeys.h"

#include "adapters/qt/FormPeer.h"

#include <QKeyEvent>

#include <algorithm>

namespace quillmere::qt {

namespace {

bool isGroup(const QPushButton& button) { return button.property("role") == QStringLiteral("menuGroup"); }

bool leadsThere(const QKeyEvent& event) {
    return (event.key() == Qt::Key_F6 && event.modifiers() == Qt::NoModifier) ||
           (event.key() == Qt::Key_M && event.modifiers() == Qt::AltModifier);
}

} // namespace

QWidget* MenuKeys::menu() const {
    for (const auto& control : form_.form().Controls()) {
        const ControlPeer* peer = form_.peerOf(control.get());
        if (control->kind() == ui::Kind::VerticalMenu && peer != nullptr) return peer->widget();
    }
    return nullptr;
}

std::vector<QPushButton*> MenuKeys::buttons() const {
    std::vector<QPushButton*> shown;
    const QWidget* accordion = menu();
    if (accordion == nullptr) return shown;
    for (auto* button : accordion->findChildren<QPushButton*>()) {
        if (button->isVisible() && button->isEnabled()) shown.push_back(button);
    }
    std::ranges::sort(shown, {},
                      [&](const QPushButton* button) { return button->mapTo(accordion, QPoint()).y(); });
    return shown;
}

bool MenuKeys::isInside() const { return here_ != nullptr && here_->hasFocus(); }

bool MenuKeys::take(const QKeyEvent& event) {
    if (!isInside()) {
        if (!leadsThere(event)) return false;
        enter();
        return isInside();
    }
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        step(event.key() == Qt::Key_Up ? -1 : 1);
        break;
    case Qt::Key_Home:
        goTo(buttons().front());
        break;
    case Qt::Key_End:
        goTo(buttons().back());
        break;
    case Qt::Key_Left:
        while (!isGroup(*here_) && here_ != buttons().front())
            step(-1);
        break;
    case Qt::Key_Right:
        if (isGroup(*here_)) here_->click();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        press(*here_);
        break;
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        leave();
        break;
    default:
        if (leadsThere(event)) leave();
        break;
    }
    return true;
}

void MenuKeys::enter() {
    const auto shown = buttons();
    const auto current = std::ranges::find_if(
        shown, [](const QPushButton* button) { return button->property("current").toBool(); });
    const auto open = std::ranges::find_if(
        shown, [](const QPushButton* button) { return button->property("open").toBool(); });
    if (shown.empty()) return;
    goTo(current != shown.end() ? *current : open != shown.end() ? *open : shown.front());
}

void MenuKeys::goTo(QPushButton* button) {
    here_ = button;
    form_.focus().lend(button);
}

void MenuKeys::step(int by) {
    const auto shown = buttons();
    const auto here = std::ranges::find(shown, here_.data()) - shown.begin();
    const auto there = here + by;
    if (there >= 0 && there < std::ssize(shown)) goTo(shown[static_cast<std::size_t>(there)]);
}

void MenuKeys::press(QPushButton& button) {
    // An item brings another panel, and the keyboard goes where that puts it.
    if (!isGroup(button)) leave();
    button.click();
}

void MenuKeys::leave() {
    if (here_ == nullptr) return;
    here_ = nullptr;
    form_.focus().lend(nullptr);
}

} // namespace quillmere::qt

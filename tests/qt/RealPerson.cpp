#include "qt/RealPerson.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QTest>

#include <algorithm>

namespace quillmere::test {

namespace {

QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QWidget* findWindow(const QString& name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->objectName() == name) return window;
    }
    return nullptr;
}

QWidget& keyboardWidget() {
    QWidget* target = QApplication::focusWidget();
    if (target == nullptr) target = QApplication::activeWindow();
    if (target == nullptr) throw std::runtime_error("nothing has the keyboard");
    return *target;
}

void sendKey(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    // The first half may close the window that the second half was for.
    QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(&keyboardWidget(), &down);
    if (QApplication::focusWidget() == nullptr) return;
    QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(QApplication::focusWidget(), &up);
}

void give(Press press) {
    switch (press) {
    case Press::Ok:
        return clickOn(widgetNamed("btnOk"));
    case Press::Yes:
        return clickOn(widgetNamed("btnYes"));
    case Press::No:
        return clickOn(widgetNamed("btnNo"));
    case Press::EnterKey:
        return pressKey(Qt::Key_Return);
    case Press::EscapeKey:
        return pressKey(Qt::Key_Escape);
    case Press::YesKey:
        return typeKeys("y");
    case Press::NoKey:
        return typeKeys("n");
    case Press::Nothing:
        return;
    }
}

QPoint pointOfRow(QAbstractItemView& view, std::string_view text) {
    const auto recursive = Qt::MatchExactly | Qt::MatchRecursive | Qt::MatchWrap;
    for (int column = 0; column < view.model()->columnCount(); ++column) {
        const auto found = view.model()->match(view.model()->index(0, column), Qt::DisplayRole,
                                               toQString(text), 1, recursive);
        if (found.isEmpty()) continue;
        view.scrollTo(found.front());
        return view.visualRect(found.front()).center();
    }
    throw std::runtime_error("no row shows " + std::string(text));
}

} // namespace

RealPerson::~RealPerson() {
    for (const ExpectedBox& box : expectedBoxes_)
        ADD_FAILURE() << "message box never shown: [" << box.title << "] " << box.text;
    for (const ExpectedForm& form : expectedForms_)
        ADD_FAILURE() << "form never opened: " << form.name;
}

void RealPerson::expectBox(std::string text, std::string title, Press answer) {
    expectedBoxes_.push_back({std::move(text), std::move(title), answer});
}

void RealPerson::onForm(Work work, std::string name) {
    expectedForms_.push_back({std::move(name), std::move(work)});
}

void RealPerson::formOpened(ui::Form& form) {
    seen_.push_back("opened " + form.name());
    QWidget& window = windowNamed(form.name());
    const bool awaited = !expectedForms_.empty() &&
                         (expectedForms_.front().name.empty() || expectedForms_.front().name == form.name());
    if (awaited) {
        const ExpectedForm expected = std::move(expectedForms_.front());
        expectedForms_.pop_front();
        expected.work(form);
    } else {
        ADD_FAILURE() << "unexpected form: " << form.name();
    }
    if (form.isOpen()) window.close();
}

void RealPerson::formClosed(ui::Form& form) { seen_.push_back("closed " + form.name()); }

std::optional<ui::Answer> RealPerson::messageOpened(const ui::MessageBox& message) {
    boxes_.push_back(message);
    if (const auto standing = standing_.find(message.text); standing != standing_.end())
        return standing->second;
    if (!expectedBoxes_.empty()) {
        const ExpectedBox expected = expectedBoxes_.front();
        if (expected.text == message.text && expected.title == message.title) {
            expectedBoxes_.pop_front();
            (void)windowNamed("messageBox");
            give(expected.answer);
            return std::nullopt;
        }
    }
    ADD_FAILURE() << "unexpected message box: [" << message.title << "] " << message.text;
    return message.buttons == ui::Buttons::Ok ? ui::Answer::Ok : ui::Answer::No;
}

void Screen::show(ui::Form& form, RealPerson::Work work) {
    person.onForm(std::move(work), form.name());
    toolkit.desktop().showModal(form);
}

bool waitUntil(const std::function<bool()>& condition) {
    constexpr int mostMilliseconds = 5000;
    return QTest::qWaitFor(condition, mostMilliseconds);
}

QWidget& windowNamed(std::string_view name) {
    QWidget* window = nullptr;
    const bool there = waitUntil([&] {
        window = findWindow(toQString(name));
        return window != nullptr && window->isActiveWindow();
    });
    if (!there) throw std::runtime_error("no active window " + std::string(name));
    return *window;
}

QWidget& widgetNamed(std::string_view name) {
    QWidget* found = nullptr;
    const bool there = waitUntil([&] {
        if (QApplication::activeWindow() == nullptr) return false;
        const auto all = QApplication::activeWindow()->findChildren<QWidget*>(toQString(name));
        const auto visible = std::ranges::find_if(all, [](const QWidget* each) { return each->isVisible(); });
        if (visible == all.end()) return false;
        found = *visible;
        return true;
    });
    if (!there) throw std::runtime_error("no widget " + std::string(name));
    return *found;
}

std::string focusedName() {
    const QWidget* widget = QApplication::focusWidget();
    return widget == nullptr ? std::string() : widget->objectName().toStdString();
}

bool focusComesTo(std::string_view name) {
    return waitUntil([name] { return focusedName() == name; });
}

void settle() {
    // Each round may make the next one due; a few end all of them.
    for (int round = 0; round < 4; ++round) {
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }
}

void typeKeys(std::string_view text) {
    for (const char32_t character : toQString(text).toStdU32String()) {
        const bool known = character < 128;
        const QChar upper = known ? QChar(static_cast<char16_t>(character)).toUpper() : QChar(0);
        sendKey(upper.unicode(), Qt::NoModifier, QString::fromUcs4(&character, 1));
    }
}

void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    const bool command = modifiers.testFlag(Qt::ControlModifier) || modifiers.testFlag(Qt::AltModifier);
    QString text;
    if (key == Qt::Key_Return && !command) text = QStringLiteral("\r");
    if (key == Qt::Key_Backspace && !command) text = QStringLiteral("\b");
    if (key == Qt::Key_Tab && !command) text = QStringLiteral("\t");
    if (key == Qt::Key_Space && !command) text = QStringLiteral(" ");
    sendKey(key, modifiers, text);
}

void pressShortcut(Qt::Key letter) { QTest::keyClick(QApplication::activeWindow(), letter, Qt::AltModifier); }

void clickOn(QWidget& widget, Qt::MouseButton button) { QTest::mouseClick(&widget, button); }

void doubleClickOn(QWidget& widget) {
    // A real double click begins with a single one.
    QTest::mouseClick(&widget, Qt::LeftButton);
    QTest::mouseDClick(&widget, Qt::LeftButton);
}

void clickRow(QAbstractItemView& view, std::string_view text) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, pointOfRow(view, text));
}

void doubleClickRow(QAbstractItemView& view, std::string_view text) {
    const QPoint point = pointOfRow(view, text);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, point);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, point);
}

void compose(std::string_view composition, std::string_view commit) {
    QInputMethodEvent composing(toQString(composition), {});
    QApplication::sendEvent(&keyboardWidget(), &composing);
    if (commit.empty()) return;
    QInputMethodEvent done;
    done.setCommitString(toQString(commit));
    QApplication::sendEvent(&keyboardWidget(), &done);
}

} // namespace quillmere::test

#pragma once

#include "quillmere/Qt.h"

#include "adapters/qt/Companion.h"
#include "platform/ui/Desktop.h"

#include <QPoint>
#include <QWidget>

#include <deque>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

class QAbstractItemView;

namespace quillmere::test {

/// How a person answers a message box: with the mouse on a button, or with a key. Nothing leaves it to
/// the test.
enum class Press { Ok, Yes, No, EnterKey, EscapeKey, YesKey, NoKey, Nothing };

/// A person before real windows, who follows a script and works with key and mouse events alone. A box
/// or form that no entry of the script is for fails the test, and so does an entry that is left over.
class RealPerson final : public qt::Companion {
public:
    using Work = std::function<void(ui::Form& form)>;

    RealPerson() = default;
    ~RealPerson() override;

    void expectBox(std::string text, std::string title, Press answer = Press::Ok);
    /// Answers boxes of that text, however many come, until the end.
    void answerWhenAsked(std::string text, ui::Answer answer) { standing_[std::move(text)] = answer; }
    /// Works on the next form that opens; `name` empty for whatever form. A form that is still open
    /// when the work is done is closed by its frame.
    void onForm(Work work, std::string name = {});

    [[nodiscard]] const std::vector<ui::MessageBox>& boxes() const { return boxes_; }
    /// "opened NAME" and "closed NAME", in order.
    [[nodiscard]] const std::vector<std::string>& seen() const { return seen_; }
    [[nodiscard]] int beeps() const { return beeps_; }

    void formOpened(ui::Form& form) override;
    void formClosed(ui::Form& form) override;
    void beepHeard() override { ++beeps_; }
    std::optional<ui::Answer> messageOpened(const ui::MessageBox& message) override;

private:
    struct ExpectedBox {
        std::string text;
        std::string title;
        Press answer;
    };
    struct ExpectedForm {
        std::string name;
        Work work;
    };

    std::deque<ExpectedBox> expectedBoxes_;
    std::map<std::string, ui::Answer> standing_;
    std::deque<ExpectedForm> expectedForms_;
    std::vector<ui::MessageBox> boxes_;
    std::vector<std::string> seen_;
    int beeps_ = 0;
};

/// A person with a toolkit of their own.
struct Screen {
    /// Shows a form and works on it.
    void show(ui::Form& form, RealPerson::Work work);

    /// No screen but the one that is asked for.
    [[nodiscard]] static std::string platform() {
        return qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") ? "offscreen" : "";
    }

    RealPerson person;
    qt::Toolkit toolkit{{.applicationName = "test", .platform = platform(), .companion = &person}};
};

// What is on the screen. All of them wait until it is there, and throw when it does not come.

/// The window of that name, in front and active.
[[nodiscard]] QWidget& windowNamed(std::string_view name);
/// A visible widget in the active window.
[[nodiscard]] QWidget& widgetNamed(std::string_view name);

template <class T>
[[nodiscard]] T& widgetNamed(std::string_view name) {
    auto* widget = qobject_cast<T*>(&widgetNamed(name));
    if (widget == nullptr) throw std::runtime_error("of another kind: " + std::string(name));
    return *widget;
}

/// Works the event loop until the condition holds. False when it does not come to hold.
[[nodiscard]] bool waitUntil(const std::function<bool()>& condition);
/// The name of the widget that has the keyboard, empty when none has.
[[nodiscard]] std::string focusedName();
/// Waits for that widget to have the keyboard.
[[nodiscard]] bool focusComesTo(std::string_view name);
/// Works off everything that is due in the event loop now.
void settle();

// What hands do.

/// A key event for each character, to whatever has the keyboard.
void typeKeys(std::string_view text);
void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// A letter with Alt, on the road of shortcuts.
void pressShortcut(Qt::Key letter);
void clickOn(QWidget& widget, Qt::MouseButton button = Qt::LeftButton);
void doubleClickOn(QWidget& widget);
/// The first row that shows this text, in a table, list or tree.
void clickRow(QAbstractItemView& view, std::string_view text);
void doubleClickRow(QAbstractItemView& view, std::string_view text);
/// What an input method gives: first a composition, then, when it is not empty, a text.
void compose(std::string_view composition, std::string_view commit);

} // namespace quillmere::test

#include "adapters/qt/QtKeys.h"

#include <algorithm>
#include <array>

namespace quillmere::qt {

namespace {

struct KeyRow {
    int native;
    int code;
};

constexpr std::array keyRows{
    KeyRow{Qt::Key_Backspace, ui::key::Backspace},
    KeyRow{Qt::Key_Tab, ui::key::Tab},
    KeyRow{Qt::Key_Backtab, ui::key::Tab},
    KeyRow{Qt::Key_Return, ui::key::Enter},
    KeyRow{Qt::Key_Enter, ui::key::Enter},
    KeyRow{Qt::Key_Escape, ui::key::Escape},
    KeyRow{Qt::Key_Space, ui::key::Space},
    KeyRow{Qt::Key_PageUp, ui::key::PageUp},
    KeyRow{Qt::Key_PageDown, ui::key::PageDown},
    KeyRow{Qt::Key_End, ui::key::End},
    KeyRow{Qt::Key_Home, ui::key::Home},
    KeyRow{Qt::Key_Left, ui::key::Left},
    KeyRow{Qt::Key_Up, ui::key::Up},
    KeyRow{Qt::Key_Right, ui::key::Right},
    KeyRow{Qt::Key_Down, ui::key::Down},
    KeyRow{Qt::Key_Delete, ui::key::Delete},
    KeyRow{Qt::Key_Comma, ui::key::Comma},
    KeyRow{Qt::Key_Period, ui::key::Period},
};

std::optional<int> codeOf(int native) {
    const auto row = std::ranges::find(keyRows, native, &KeyRow::native);
    if (row != keyRows.end()) return row->code;
    const bool letterOrDigit =
        (native >= Qt::Key_A && native <= Qt::Key_Z) || (native >= Qt::Key_0 && native <= Qt::Key_9);
    if (letterOrDigit) return native;
    if (native >= Qt::Key_F1 && native <= Qt::Key_F12) return native - Qt::Key_F2 + ui::key::F2;
    return std::nullopt;
}

} // namespace

std::optional<ui::KeyStroke> strokeOf(const QKeyEvent& event) {
    const auto code = codeOf(event.key());
    if (!code) return std::nullopt;
    const Qt::KeyboardModifiers held = event.modifiers();
    int state = ui::shift::None;
    if (held.testFlag(Qt::ShiftModifier) || event.key() == Qt::Key_Backtab) state |= ui::shift::Shift;
    if (held.testFlag(Qt::ControlModifier)) state |= ui::shift::Ctrl;
    if (held.testFlag(Qt::AltModifier)) state |= ui::shift::Alt;
    return ui::KeyStroke{*code, state};
}

QString typedText(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    // Ctrl with Alt is AltGr on some keyboards and types characters.
    const bool command = held.testFlag(Qt::ControlModifier) != held.testFlag(Qt::AltModifier);
    QString text = event.text();
    if (command || text.isEmpty() || !text.front().isPrint()) {
        const bool pair = !command && !text.isEmpty() && text.front().isHighSurrogate();
        return pair ? text : QString();
    }
    return text;
}

bool opensCodes(const QKeyEvent& event) {
    const auto held = event.modifiers() & ~Qt::KeypadModifier;
    return (event.key() == Qt::Key_F2 && held == Qt::NoModifier) ||
           (event.key() == Qt::Key_Down && held == Qt::AltModifier);
}

} // namespace quillmere::qt

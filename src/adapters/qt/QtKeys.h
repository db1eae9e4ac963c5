#pragma once

#include "platform/ui/Keys.h"

#include <QKeyEvent>
#include <QString>

#include <optional>

namespace quillmere::qt {

/// The key as the system numbers it; none for a key without a number (a lone Shift, for example).
[[nodiscard]] std::optional<ui::KeyStroke> strokeOf(const QKeyEvent& event);

/// The characters that the key types; empty for commands and control characters.
[[nodiscard]] QString typedText(const QKeyEvent& event);

/// Keys by which the list behind a field opens: F2 and Alt+Down.
[[nodiscard]] bool opensCodes(const QKeyEvent& event);

} // namespace quillmere::qt

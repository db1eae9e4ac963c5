#pragma once

#include "platform/ui/Control.h"

#include <string>

namespace quillmere::ui {

/// Flags of a file dialog, as numbers that may be added.
namespace fileFlag {
inline constexpr int hideReadOnly = 4;
}

/// The file dialog as a control of a form: never visible itself, it shows the toolkit's dialog when
/// asked to.
class CommonDialog : public Control {
public:
    explicit CommonDialog(std::string name) : Control(Kind::CommonDialog, std::move(name)) {
        setVisible(false);
    }

    /// A directory, or a file in it; empty for the toolkit's choice.
    std::string InitDir;
    /// What was chosen last; a dialog that was cancelled leaves it.
    std::string FileName;
    /// "text|pattern" pairs.
    std::string Filter;
    /// No toolkit of ours has a read-only box to hide, so nothing hangs on it.
    int Flags = 0;

    /// Shows the open dialog and waits for it.
    void ShowOpen();
};

} // namespace quillmere::ui

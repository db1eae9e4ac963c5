#include "platform/ui/UserControl.h"

#include "platform/ui/Form.h"

namespace quillmere::ui {

UserControl::UserControl(std::string name) : Control(Kind::UserControl, std::move(name)) {
    setVisible(false);
}

void UserControl::becameVisible() {
    if (form() != nullptr) form()->announceShown(*this);
}

void UserControl::moveTo(const Rect& rect) {
    const bool resized = rect.width != geometry().width || rect.height != geometry().height;
    setGeometry(rect);
    if (resized) Resize.raise();
}

} // namespace quillmere::ui

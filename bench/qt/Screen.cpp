#include "Screen.h"

namespace quillmere::bench {

void Clerk::formOpened(ui::Form& form) {
    work(form);
    if (form.isOpen()) form.closeByFrame();
}

std::optional<ui::Answer> Clerk::messageOpened(const ui::MessageBox& box) {
    throw std::runtime_error(box.text);
}

void settle() {
    for (int round = 0; round < 3; ++round) {
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }
}

} // namespace quillmere::bench

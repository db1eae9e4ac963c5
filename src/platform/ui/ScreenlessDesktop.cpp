#include "platform/ui/ScreenlessDesktop.h"

#include "platform/Error.h"

namespace quillmere::ui {

void ScreenlessDesktop::runModal(Form& form) {
    person_.seeOpened(form);
    try {
        person_.work(form);
    } catch (...) {
        person_.seeClosed(form);
        throw;
    }
    if (form.isOpen()) throw Error(Failure::InvalidCall, "窗口没有关闭。", "Quillmere");
    person_.seeClosed(form);
}

} // namespace quillmere::ui

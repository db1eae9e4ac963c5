#pragma once

#include "adapters/qt/Companion.h"
#include "platform/ui/Desktop.h"

#include <QApplication>
#include <QWidget>

#include <functional>
#include <stdexcept>
#include <string>

namespace quillmere::bench {

/// Works on each form as it opens, the outermost first, and closes it.
class Clerk final : public qt::Companion {
public:
    std::function<void(ui::Form&)> work;

    void formOpened(ui::Form& form) override;
    std::optional<ui::Answer> messageOpened(const ui::MessageBox& box) override;
};

/// Works off what is due, painting included.
void settle();

/// The widget of that name in the window that is on the screen. Raises std::runtime_error when there is none.
template <class T>
T& widgetIn(const char* name) {
    T* found = QApplication::activeWindow() == nullptr
                   ? nullptr
                   : QApplication::activeWindow()->findChild<T*>(QString::fromLatin1(name));
    if (found == nullptr) throw std::runtime_error(std::string("not on the screen: ") + name);
    return *found;
}

} // namespace quillmere::bench

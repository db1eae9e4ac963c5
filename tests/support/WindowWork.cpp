#include "support/WindowWork.h"

#include "platform/ui/VerticalMenu.h"
#include "support/Typing.h"

namespace quillmere::test {

bool clickItem(frmPersonWh& window, std::string_view caption) {
    const auto& groups = window.menu().groups();
    for (std::size_t group = 0; group < groups.size(); ++group) {
        for (std::size_t item = 0; item < groups[group].items.size(); ++item) {
            if (groups[group].items[item].caption != caption) continue;
            return window.menu().clickItem(static_cast<int>(group) + 1, static_cast<int>(item) + 1);
        }
    }
    return false;
}

bool enterText(ui::Form& form, std::string_view widget, std::string_view text) {
    ui::Control* control = form.findDeep(widget);
    if (control == nullptr || !form.moveFocus(*control)) return false;
    form.selectAll();
    typeText(form, text);
    return true;
}

bool pressButton(frmPersonWh& window, std::string_view key) {
    return window.toolbar().clickButton(window.toolbarButton(key));
}

} // namespace quillmere::test

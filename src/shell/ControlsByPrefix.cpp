#include "shell/ControlsByPrefix.h"

#include "panels/A1ctrlUser.h"
#include "platform/text/Text.h"
#include "platform/ui/Form.h"

namespace quillmere {

void RemoveCtrlByPrefix(ui::Form& form, std::string_view prefix) {
    for (std::size_t index = form.Count(); index-- > 0;) {
        if (text::startsWithNoCase(form.Controls(index).name(), prefix)) form.remove(index);
    }
}

bool IsCtrlChanged(const ui::Form& form, std::string_view prefix) {
    for (std::size_t index = form.Count(); index-- > 0;) {
        const ui::Control& control = form.Controls(index);
        if (!text::startsWithNoCase(control.name(), prefix)) continue;
        const auto* panel = dynamic_cast<const A1ctrlUser*>(&control);
        return panel != nullptr && panel->WhInfo.IsChange;
    }
    return false;
}

} // namespace quillmere

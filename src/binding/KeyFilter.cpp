#include "binding/KeyFilter.h"

#include "platform/ui/Desktop.h"

namespace quillmere {

std::u32string_view acceptedBy(KeyFilter filter) {
    switch (filter) {
    case KeyFilter::Digits:
        return U"0123456789\b";
    case KeyFilter::Decimal:
        return U"0123456789\b.";
    case KeyFilter::Phone:
        return U"0123456789\b -.\t";
    case KeyFilter::None:
        break;
    }
    return {};
}

void install(KeyFilter filter, ui::TextBox& box) {
    if (filter == KeyFilter::None) return;
    box.KeyPress.connect([accepted = acceptedBy(filter)](char32_t& character) {
        if (accepted.find(character) != std::u32string_view::npos) return;
        if (character == ui::key::Enter) {
            // Without "{Home}+{End}", unlike Enter in a masked box: meant so.
            ui::desktop().sendKeys("{tab}");
        } else {
            character = ui::bellCharacter;
        }
    });
}

} // namespace quillmere

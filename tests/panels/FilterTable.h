#pragma once

#include "panels/PanelCatalogue.h"
#include "panels/PanelFactory.h"
#include "support/ScriptedPerson.h"
#include "support/StandInWindow.h"

#include "metadata/Globals.h"
#include "platform/ui/TextBox.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace quillmere::test {

/// A widget's name and what its box accepts, of the keys that tell the filters apart: "0", ".", "-"
/// and a letter.
using Filters = std::map<std::string, std::string, std::less<>>;

inline constexpr const char* digits = "0";
inline constexpr const char* decimal = "0.";
inline constexpr const char* phone = "0.-";

/// The text boxes of a panel that refuse some of these keys. It needs a desktop.
[[nodiscard]] inline Filters filtersOf(const A1ctrlUser& panel) {
    constexpr std::u32string_view keys = U"0.-x";
    Filters filters;
    for (const auto& control : panel.Controls()) {
        if (control->kind() != ui::Kind::TextBox) continue;
        std::string accepted;
        for (const char32_t key : keys) {
            char32_t character = key;
            control->KeyPress.raise(character);
            if (character == key)
                accepted += static_cast<char>(key);
            else if (character != ui::bellCharacter)
                accepted += '?';
        }
        if (accepted.size() != keys.size()) filters[control->name()] = accepted;
    }
    return filters;
}

/// Panels as the window creates them, on a window that does nothing.
class CreatedPanels {
public:
    A1ctrlUser& create(std::string_view name, std::int32_t sponsorshipType = 1) {
        gZZType = sponsorshipType;
        auto panel = createPanel(name, window);
        gZZType = 0;
        A1ctrlUser& created = *panel;
        window.ControlHost::place(std::move(panel));
        created.setVisible(true);
        return created;
    }

    ScriptedPerson person;
    StandInWindow window;
};

} // namespace quillmere::test

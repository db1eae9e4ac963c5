#pragma once

#include "platform/text/Text.h"
#include "platform/ui/Form.h"
#include "support/ScriptedPerson.h"

#include <stdexcept>
#include <string>
#include <string_view>

namespace quillmere::test {

/// Presses the key of that name; "+" in front holds Shift.
inline void pressNamed(ui::Form& form, std::string_view name) {
    struct NamedKey {
        std::string_view name;
        int code;
    };
    static constexpr NamedKey keys[] = {
        {"Back", ui::key::Backspace}, {"Del", ui::key::Delete}, {"End", ui::key::End},
        {"Enter", ui::key::Enter},    {"Home", ui::key::Home},  {"Left", ui::key::Left},
        {"Right", ui::key::Right},    {"Tab", ui::key::Tab},
    };
    const bool held = name.starts_with('+');
    if (held) name.remove_prefix(1);
    for (const NamedKey& key : keys) {
        if (key.name == name) return form.pressKey({key.code, held ? ui::shift::Shift : ui::shift::None});
    }
    throw std::invalid_argument(std::string(name));
}

/// Does what a line of keys says: "<Home>" and its like are pressed, "<All>" selects all,
/// "<Paste:1990-03>" pastes, and every other character is typed.
inline void doKeys(ui::Form& form, std::string_view line) {
    constexpr std::string_view paste = "Paste:";
    while (!line.empty()) {
        const auto open = line.find('<');
        typeText(form, line.substr(0, open));
        if (open == std::string_view::npos) return;
        const auto close = line.find('>', open);
        const auto name = line.substr(open + 1, close - open - 1);
        if (name == "All")
            form.selectAll();
        else if (name.starts_with(paste))
            form.paste(name.substr(paste.size()));
        else
            pressNamed(form, name);
        line.remove_prefix(close + 1);
    }
}

/// The text of a box with its caret as "|", or what is selected in square brackets.
template <class Box>
std::string look(const Box& box) {
    const std::string text = box.Text();
    const std::string before = text::left(text, box.SelStart());
    const std::string behind = text::mid(text, box.SelStart() + box.SelLength() + 1);
    if (box.SelLength() == 0) return before + "|" + behind;
    return before + "[" + text::mid(text, box.SelStart() + 1, box.SelLength()) + "]" + behind;
}

} // namespace quillmere::test

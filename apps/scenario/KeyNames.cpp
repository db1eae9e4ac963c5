#include "scenario/KeyNames.h"

#include "scenario/Stop.h"

#include <array>
#include <string>

namespace quillmere::scenario {

namespace {

struct KeyRow {
    std::string_view name;
    ui::KeyStroke stroke;
};

constexpr std::array keys{
    KeyRow{"Enter", {ui::key::Enter, ui::shift::None}},
    KeyRow{"Tab", {ui::key::Tab, ui::shift::None}},
    KeyRow{"Shift+Tab", {ui::key::Tab, ui::shift::Shift}},
    KeyRow{"Backspace", {ui::key::Backspace, ui::shift::None}},
    KeyRow{"Delete", {ui::key::Delete, ui::shift::None}},
    KeyRow{"Home", {ui::key::Home, ui::shift::None}},
    KeyRow{"End", {ui::key::End, ui::shift::None}},
    KeyRow{"Left", {ui::key::Left, ui::shift::None}},
    KeyRow{"Right", {ui::key::Right, ui::shift::None}},
    KeyRow{"Up", {ui::key::Up, ui::shift::None}},
    KeyRow{"Down", {ui::key::Down, ui::shift::None}},
    KeyRow{"Ctrl+N", {'N', ui::shift::Ctrl}},
    KeyRow{"Ctrl+S", {'S', ui::shift::Ctrl}},
    KeyRow{"Ctrl+,", {ui::key::Comma, ui::shift::Ctrl}},
    KeyRow{"Ctrl+.", {ui::key::Period, ui::shift::Ctrl}},
};

} // namespace

ui::KeyStroke parseKey(std::string_view name) {
    for (const KeyRow& row : keys) {
        if (row.name == name) return row.stroke;
    }
    throw Stop{"there is no key " + std::string(name)};
}

} // namespace quillmere::scenario

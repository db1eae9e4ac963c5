#include "platform/ui/Keys.h"

#include "platform/Error.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <array>

namespace quillmere::ui {

namespace {

struct NamedKey {
    std::string_view name;
    int code;
};

constexpr std::array namedKeys{
    NamedKey{"backspace", key::Backspace},
    NamedKey{"delete", key::Delete},
    NamedKey{"down", key::Down},
    NamedKey{"end", key::End},
    NamedKey{"enter", key::Enter},
    NamedKey{"esc", key::Escape},
    NamedKey{"home", key::Home},
    NamedKey{"left", key::Left},
    NamedKey{"right", key::Right},
    NamedKey{"tab", key::Tab},
    NamedKey{"up", key::Up},
};

} // namespace

std::vector<KeyStroke> parseKeys(std::string_view sequence) {
    std::vector<KeyStroke> strokes;
    while (!sequence.empty()) {
        const bool held = sequence.front() == '+';
        if (held) sequence.remove_prefix(1);
        const auto close = sequence.find('}');
        if (!sequence.starts_with('{') || close == std::string_view::npos) throw Error(Failure::InvalidCall);
        const auto name = sequence.substr(1, close - 1);
        const auto found = std::ranges::find_if(
            namedKeys, [&](const NamedKey& named) { return text::equalsNoCase(named.name, name); });
        if (found == namedKeys.end()) throw Error(Failure::InvalidCall);
        strokes.push_back({found->code, held ? shift::Shift : shift::None});
        sequence.remove_prefix(close + 1);
    }
    return strokes;
}

} // namespace quillmere::ui

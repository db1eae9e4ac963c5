#include "metadata/Globals.h"
#include "panels/PanelFactory.h"
#include "support/StandInWindow.h"

#include "platform/text/Text.h"
#include "platform/ui/CheckBox.h"
#include "platform/ui/Label.h"
#include "platform/ui/MaskEdBox.h"
#include "platform/ui/TextBox.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

// Every panel is built and read back field by field, then held against PanelList.txt, which was written
// from the forms and not from the code: class, widget table and title; then code, caption and kind mark of
// each field in tab order, and its unit. The marks: T text, L long text, Y month, D day, N four digits,
// C check box; a number is the designed limit; d, p and n are the key filters.

namespace quillmere {
namespace {

using Lines = std::vector<std::string>;

Lines listed() {
    std::ifstream file(QUILLMERE_SOURCE_DIR "/tests/panels/PanelList.txt");
    Lines lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

bool takes(ui::TextBox& box, char32_t character) {
    char32_t left = character;
    box.KeyPress.raise(left);
    return left == character;
}

std::string filterMark(ui::TextBox& box) {
    if (takes(box, U'x')) return "";
    if (takes(box, U' ')) return "p";
    return takes(box, U'.') ? "n" : "d";
}

std::string textMark(ui::TextBox& box) {
    std::string mark = box.MultiLine() ? "L" : "T";
    if (box.MaxLength() != 0) mark += std::to_string(box.MaxLength());
    return mark + filterMark(box);
}

std::string maskMark(const ui::MaskEdBox& box) {
    if (box.PromptChar() != U'_') return "another prompt character";
    if (box.MaskText() == "####年##月" && box.Format() == "yyyy年mm月") return "Y";
    if (box.MaskText() == "####年##月##日" && box.Format() == "yyyy年mm月dd日") return "D";
    if (box.MaskText() == "####" && box.Format() == "####") return "N";
    return box.MaskText() + " as " + box.Format();
}

std::string markOf(ui::Control& widget) {
    switch (widget.kind()) {
    case ui::Kind::TextBox:
        return textMark(static_cast<ui::TextBox&>(widget));
    case ui::Kind::MaskEdBox:
        return maskMark(static_cast<ui::MaskEdBox&>(widget));
    case ui::Kind::CheckBox:
        return "C";
    default:
        return "?";
    }
}

std::string captionOf(const A1ctrlUser& panel, const std::string& name) {
    const auto* label = dynamic_cast<const ui::Label*>(panel.find(name));
    return label == nullptr ? "no label" : label->Caption();
}

/// The label of the unit stands behind the widget in the panel's own order.
std::string unitBehind(const A1ctrlUser& panel, const ui::Control& widget) {
    const auto& controls = panel.Controls();
    const auto next = std::ranges::find_if(controls, [&](const auto& c) { return c.get() == &widget; }) + 1;
    const auto* label = next == controls.end() ? nullptr : dynamic_cast<const ui::Label*>(next->get());
    return label != nullptr && !label->name().ends_with("_c") && label->Caption().ends_with("元")
               ? " | " + label->Caption()
               : "";
}

Lines describe(const A1ctrlUser& panel) {
    std::vector<ui::Control*> widgets;
    for (const auto& control : panel.Controls()) {
        if (control->name().ends_with("_v")) widgets.push_back(control.get());
    }
    std::ranges::stable_sort(widgets, {}, &ui::Control::TabIndex);
    const std::string table = widgets.front()->name().substr(0, widgets.front()->name().find('_'));
    Lines lines{std::string(panel.row().className) + " | " + table + " | " + captionOf(panel, "Title")};
    for (ui::Control* widget : widgets) {
        const std::string key = fieldKey(widget->name());
        const std::string beginning = table + "_";
        lines.push_back("    " + (key.starts_with(beginning) ? key.substr(beginning.size()) : key) + " | " +
                        captionOf(panel, key + "_c") + " | " + markOf(*widget) + unitBehind(panel, *widget));
    }
    return lines;
}

TEST(PanelListTest, EveryPanelBearsTheFieldsThatItsFormHas) {
    gZZType = 1;
    Lines built;
    for (const PanelRow& row : panelCatalogue()) {
        test::StandInWindow window;
        const auto panel = createPanel(row.className, window);
        const Lines lines = describe(*panel);
        built.insert(built.end(), lines.begin(), lines.end());
    }
    Lines expected = listed();
    ASSERT_EQ(std::ranges::count_if(expected, [](const std::string& line) { return line[0] != ' '; }), 73);
    ASSERT_EQ(built.size(), expected.size());
    // Panel by panel in the order of the list; the catalogue groups them in another way.
    for (auto line = expected.begin(); line != expected.end();) {
        const auto end = std::find_if(line + 1, expected.end(), [](const auto& l) { return l[0] != ' '; });
        const auto place = std::ranges::find(built, *line);
        ASSERT_NE(place, built.end()) << *line;
        for (auto mine = place; line != end; ++line, ++mine)
            EXPECT_EQ(*mine, *line) << *place;
    }
}

} // namespace
} // namespace quillmere

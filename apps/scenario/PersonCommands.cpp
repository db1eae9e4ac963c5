#include "scenario/Commands.h"
#include "scenario/Hand.h"
#include "scenario/KeyNames.h"
#include "scenario/Numbers.h"
#include "scenario/Scene.h"

#include "platform/text/Text.h"
#include "platform/ui/CheckBox.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/Form.h"
#include "platform/ui/Keys.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/TabStrip.h"
#include "platform/ui/VerticalMenu.h"

#include <array>
#include <limits>

namespace quillmere::scenario {

namespace {

void requireReach(const ui::Control& widget) {
    if (!widget.isShown()) throw Stop{widget.name() + " does not show"};
    if (!widget.isUsable()) throw Stop{widget.name() + " is disabled"};
}

/// The widget of a command, as a T that a person can reach.
template <class T>
T& reach(const Scene& scene, const Words& words, std::string_view kind) {
    T& widget = findWidgetAs<T>(scene, words[1], kind);
    requireReach(widget);
    return widget;
}

ui::Control& reach(const Scene& scene, const Words& words) {
    ui::Control& widget = findWidget(scene, words[1]);
    requireReach(widget);
    return widget;
}

/// The one control of that kind on the form in front.
template <class T>
T& only(const Scene& scene, std::string_view kind) {
    for (const auto& control : scene.front().Controls()) {
        auto* typed = dynamic_cast<T*>(control.get());
        if (typed == nullptr) continue;
        requireReach(*typed);
        return *typed;
    }
    throw Stop{"the form in front has no " + std::string(kind)};
}

void runMenu(Scene& scene, const Words& words) {
    auto& menu = only<ui::VerticalMenu>(scene, "menu");
    const int group = parseCount(words[1]);
    const int item = parseCount(words[2]);
    const auto& groups = menu.groups();
    if (static_cast<std::size_t>(group) > groups.size() ||
        static_cast<std::size_t>(item) > groups[static_cast<std::size_t>(group) - 1].items.size()) {
        throw Stop{"the menu has no item " + words[2] + " in group " + words[1]};
    }
    scene.toolkit.hand().clickItem(scene.front(), menu, group, item);
}

void runToolbar(Scene& scene, const Words& words) {
    auto& toolbar = only<ui::Toolbar>(scene, "toolbar");
    for (const auto& button : toolbar.buttons()) {
        if (button->isSeparator() || button->Key() != words[1]) continue;
        if (!button->Enabled()) throw Stop{"the button " + words[1] + " is disabled"};
        scene.toolkit.hand().clickButton(scene.front(), toolbar, *button);
        return;
    }
    throw Stop{"the toolbar has no button " + words[1]};
}

void runFocus(Scene& scene, const Words& words) {
    ui::Control& widget = reach(scene, words);
    if (!widget.canTakeFocus()) throw Stop{widget.name() + " takes no focus"};
    scene.toolkit.hand().focus(scene.front(), widget);
}

/// Focuses a widget and selects all of it, for a text to take its place.
void enter(Scene& scene, const Words& words) {
    runFocus(scene, words);
    ui::Form& form = scene.front();
    const ui::Control* focused = form.ActiveControl();
    if (focused == nullptr || !text::equalsNoCase(focused->name(), words[1])) {
        throw Stop{words[1] + " did not get the focus"};
    }
    scene.toolkit.hand().selectAll(form);
}

/// One key for each character; a line end, however it is written, is one Enter.
void typeKeys(Scene& scene, std::string_view typed) {
    ui::Form& form = scene.front();
    Hand& hand = scene.toolkit.hand();
    char32_t last = 0;
    for (const char32_t character : text::decode(typed)) {
        const bool lineEndGoesOn = character == U'\n' && last == U'\r';
        last = character;
        if (lineEndGoesOn) continue;
        if (!form.isOpen()) throw Stop{"the form closed while it was typed into"};
        if (character == U'\r' || character == U'\n') {
            hand.press(form, {ui::key::Enter, ui::shift::None});
        } else if (character == U'\t') {
            hand.press(form, {ui::key::Tab, ui::shift::None});
        } else {
            hand.type(form, character);
        }
    }
}

void runType(Scene& scene, const Words& words) {
    enter(scene, words);
    typeKeys(scene, words[2]);
}

void runKeys(Scene& scene, const Words& words) {
    if (scene.front().ActiveControl() == nullptr) throw Stop{"no widget has the focus"};
    typeKeys(scene, words[1]);
}

void runPaste(Scene& scene, const Words& words) {
    enter(scene, words);
    scene.toolkit.hand().paste(scene.front(), words[2]);
}

void runPress(Scene& scene, const Words& words) {
    scene.toolkit.hand().press(scene.front(), parseKey(words[1]));
}

void runCheck(Scene& scene, const Words& words) {
    auto& box = reach<ui::CheckBox>(scene, words, "check box");
    if (box.Value() != parseNumber(words[2], 0, 1)) scene.toolkit.hand().click(scene.front(), box);
}

void runClick(Scene& scene, const Words& words) {
    scene.toolkit.hand().click(scene.front(), reach(scene, words));
}

void runDoubleClick(Scene& scene, const Words& words) {
    scene.toolkit.hand().doubleClick(scene.front(), reach(scene, words));
}

void runGrid(Scene& scene, const Words& words) {
    auto& grid = reach<ui::DataGrid>(scene, words, "grid");
    const int row = parseCount(words[2]);
    if (static_cast<std::size_t>(row) > grid.rowCount()) throw Stop{words[1] + " has no row " + words[2]};
    scene.toolkit.hand().clickRow(scene.front(), grid, row);
}

void runTab(Scene& scene, const Words& words) {
    auto& tabs = reach<ui::TabStrip>(scene, words, "tabbed container");
    const int page = parseNumber(words[2], 0, std::numeric_limits<int>::max());
    if (static_cast<std::size_t>(page) >= tabs.captions().size()) {
        throw Stop{words[1] + " has no page " + words[2]};
    }
    scene.toolkit.hand().clickPage(scene.front(), tabs, page);
}

void runTree(Scene& scene, const Words& words) {
    auto& tree = reach<ui::TreeView>(scene, words, "tree");
    ui::TreeView::Node* node = tree.find(words[2]);
    if (node == nullptr) throw Stop{words[1] + " has no node " + words[2]};
    const bool twice = words.size() == 4;
    if (twice && words[3] != "dbl") throw Stop{words[3] + " is not dbl"};
    scene.toolkit.hand().clickNode(scene.front(), tree, *node, twice);
}

void runList(Scene& scene, const Words& words) {
    auto& list = reach<ui::ListBox>(scene, words, "list");
    const int row = parseCount(words[2]);
    if (row > list.ListCount()) throw Stop{words[1] + " has no row " + words[2]};
    scene.toolkit.hand().clickListRow(scene.front(), list, row - 1);
}

void runClose(Scene& scene, const Words& /*words*/) { scene.toolkit.hand().closeByFrame(scene.front()); }

constexpr std::array commands{
    Command{"menu", 2, 2, runMenu},   Command{"toolbar", 1, 1, runToolbar},
    Command{"focus", 1, 1, runFocus}, Command{"type", 2, 2, runType},
    Command{"keys", 1, 1, runKeys},   Command{"paste", 2, 2, runPaste},
    Command{"press", 1, 1, runPress}, Command{"check", 2, 2, runCheck},
    Command{"click", 1, 1, runClick}, Command{"button", 1, 1, runClick},
    Command{"grid", 2, 2, runGrid},   Command{"dblclick", 1, 1, runDoubleClick},
    Command{"tab", 2, 2, runTab},     Command{"tree", 2, 3, runTree},
    Command{"list", 2, 2, runList},   Command{"close", 0, 0, runClose},
};

} // namespace

std::span<const Command> personCommands() { return commands; }

} // namespace quillmere::scenario

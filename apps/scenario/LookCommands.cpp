#include "scenario/Commands.h"
#include "scenario/Paths.h"
#include "scenario/Scene.h"

#include "panels/A1ctrlUser.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/Form.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/TreeView.h"
#include "platform/ui/VerticalMenu.h"

#include <array>

namespace quillmere::scenario {

namespace {

void runGet(Scene& scene, const Words& words) {
    scene.out.line("GET " + words[1] + " = " + readPath(scene, words[1]));
}

void runExpect(Scene& scene, const Words& words) {
    const std::string got = readPath(scene, words[1]);
    if (got == words[2]) return;
    ++scene.failures;
    scene.out.line("FAILED " + std::to_string(scene.line) + ": expected |" + words[2] + "| got |" + got +
                   "|");
}

const ui::VerticalMenu& menuInFront(const Scene& scene) {
    for (const auto& control : scene.front().Controls()) {
        if (const auto* menu = dynamic_cast<const ui::VerticalMenu*>(control.get())) return *menu;
    }
    throw Stop{"the form in front has no menu"};
}

void runMenus(Scene& scene, const Words& /*words*/) {
    const ui::VerticalMenu& menu = menuInFront(scene);
    int number = 0;
    for (const auto& group : menu.groups()) {
        ++number;
        int itemNumber = 0;
        for (const auto& item : group.items) {
            scene.out.line("MENU " + std::to_string(number) + " " + std::to_string(++itemNumber) + " " +
                           item.key + " " + item.caption);
        }
    }
    scene.out.line("OPEN " + std::to_string(menu.OpenGroup()));
    scene.out.line("ADDRESSED " + std::to_string(menu.AddressedGroup()) + " " +
                   std::to_string(menu.AddressedItem()));
}

std::string show(bool value) { return value ? "true" : "false"; }

void runControls(Scene& scene, const Words& /*words*/) {
    const A1ctrlUser* panel = panelOn(scene.front());
    if (panel == nullptr) throw Stop{"no panel is on show"};
    for (const auto& control : panel->Controls()) {
        scene.out.line("CONTROL " + control->name() + " " + std::string(ui::nameOf(control->kind())) + " " +
                       show(control->Visible()) + " " + show(control->Enabled()) + " " +
                       std::to_string(control->TabIndex()));
    }
}

std::string rowOf(const ui::DataGrid& grid, const std::string& word,
                  std::string (*cell)(const ui::DataGrid&, std::size_t row, std::size_t column),
                  std::size_t row) {
    std::string line = word;
    char separator = ' ';
    for (std::size_t column = 0; column < grid.columns().size(); ++column) {
        if (!grid.columns()[column].visible) continue;
        line += separator;
        line += cell(grid, row, column);
        separator = '|';
    }
    return line;
}

void runGrid(Scene& scene, const Words& words) {
    const auto& grid = findWidgetAs<ui::DataGrid>(scene, words[1], "grid");
    const auto heading = [](const ui::DataGrid& shown, std::size_t, std::size_t column) {
        return shown.columns()[column].heading;
    };
    const auto cell = [](const ui::DataGrid& shown, std::size_t row, std::size_t column) {
        return shown.cellText(row, column);
    };
    scene.out.line(rowOf(grid, "COLS", heading, 0));
    for (std::size_t row = 0; row < grid.rowCount(); ++row)
        scene.out.line(rowOf(grid, "ROW", cell, row));
    scene.out.line("CURRENT " + std::to_string(grid.currentRow()));
}

void printNodes(Scene& scene, const std::vector<ui::TreeView::Node*>& nodes, int depth) {
    for (const ui::TreeView::Node* node : nodes) {
        scene.out.line("NODE " + std::to_string(depth) + " " + node->key + " " + node->text + " " +
                       node->tag + " " + std::to_string(node->foreColor));
        printNodes(scene, node->children, depth + 1);
    }
}

void runNodes(Scene& scene, const Words& words) {
    printNodes(scene, findWidgetAs<ui::TreeView>(scene, words[1], "tree").roots(), 0);
}

void runList(Scene& scene, const Words& words) {
    const auto& list = findWidgetAs<ui::ListBox>(scene, words[1], "list");
    for (const std::string& item : list.items())
        scene.out.line("ITEM " + item);
    scene.out.line("SELECTED " + std::to_string(list.ListIndex() + 1));
}

void runShot(Scene& scene, const Words& words) {
    if (!scene.pictures.empty()) scene.toolkit.takePicture(scene.pictures + "/" + words[1] + ".png");
}

constexpr std::array commands{
    Command{"get", 1, 1, runGet},     Command{"expect", 2, 2, runExpect},
    Command{"menus", 0, 0, runMenus}, Command{"controls", 0, 0, runControls},
    Command{"grid", 1, 1, runGrid},   Command{"nodes", 1, 1, runNodes},
    Command{"list", 1, 1, runList},   Command{"shot", 1, 1, runShot},
};

} // namespace

std::span<const Command> lookCommands() { return commands; }

} // namespace quillmere::scenario

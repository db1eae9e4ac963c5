#include "QtCase.h"
#include "Require.h"

#include <QLineEdit>

// Windows and panels, built and painted.

namespace quillmere::bench {

namespace {

constexpr int menuGroups = 5;

void click(ui::VerticalMenu& menu, int group, int item) {
    require(menu.clickItem(group, item), "no such item of the menu");
    settle();
}

/// From the host's call until the window has been painted with its first panel, and closed again. The first
/// of a process also loads fonts and style.
void openWindow(benchmark::State& state, Stage& stage) {
    measure(state, [&] {
        withQtWindow(stage, [](frmPersonWh&) {
            require(widgetIn<QLineEdit>("A01_A0101_v").isVisible(), "the panel is not there");
        });
    });
}

/// The basic data of a person, 35 fields.
void buildBasicData(benchmark::State& state, Stage& stage) {
    withQtWindow(stage, [&](frmPersonWh& window) {
        measure(state, [&] { click(window.menu(), 1, 1); });
        require(widgetIn<QLineEdit>("A01_A0101_v").isVisible(), "the panel is not there");
    });
}

void thereAndBack(benchmark::State& state, Stage& stage) {
    withQtWindow(stage, [&](frmPersonWh& window) {
        measure(state, [&] {
            click(window.menu(), 1, 2);
            click(window.menu(), 1, 1);
        });
        require(widgetIn<QLineEdit>("A01_A0101_v").isVisible(), "the panel is not back");
    });
}

/// Every item of the menu once in a round.
void wholeMenu(benchmark::State& state, Stage& stage) {
    withQtWindow(stage, [&](frmPersonWh& window) {
        int panels = 0;
        for (const auto& group : window.menu().groups())
            panels += static_cast<int>(group.items.size());
        require(window.menu().groups().size(), menuGroups, "groups of the menu");
        measure(
            state,
            [&] {
                for (int group = 1; group <= menuGroups; ++group) {
                    const auto items =
                        window.menu().groups()[static_cast<std::size_t>(group) - 1].items.size();
                    for (int item = 1; item <= static_cast<int>(items); ++item)
                        click(window.menu(), group, item);
                }
            },
            panels);
        state.counters["panels"] = panels;
    });
}

} // namespace

std::vector<QtCase> panelCases() {
    return {
        {"qt-window/first", 1, openWindow},          {"qt-window/open-and-close", 15, openWindow},
        {"qt-panel/basic-data", 30, buildBasicData}, {"qt-panel/there-and-back", 30, thereAndBack},
        {"qt-panel/each-of-the-menu", 5, wholeMenu},
    };
}

} // namespace quillmere::bench

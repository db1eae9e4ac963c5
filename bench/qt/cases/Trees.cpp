#include "QtCase.h"
#include "Require.h"
#include "platform/ui/TreeView.h"

#include <QTreeView>

// A tree of codes, opened and walked through by keys.

namespace quillmere::bench {

namespace {

/// `count` codes: a hundred at the top, the others evenly below them.
void fill(ui::TreeView& tree, int count) {
    constexpr int tops = 100;
    for (int top = 0; top < tops; ++top) {
        ui::TreeView::Node& parent = tree.add(nullptr, "T" + std::to_string(top), "大类");
        for (int i = 1; i < count / tops; ++i)
            tree.add(&parent, "N" + std::to_string(top) + "-" + std::to_string(i), "小类");
    }
}

/// A form with nothing but a tree.
class TreeForm : public ui::Form {
public:
    explicit TreeForm(int count) : Form("frmTree", "代码"), tree(add<ui::TreeView>("tvCodes")) {
        fill(tree, count);
    }
    ui::TreeView& tree;
};

/// Filled, painted and closed.
void open(benchmark::State& state, Stage& stage, int count) {
    stage.clerk.work = [](ui::Form&) {
        settle();
        require(widgetIn<QTreeView>("tvCodes").isVisible(), "the tree is not there");
    };
    measure(state, [&] {
        TreeForm form(count);
        stage.desktop.showModal(form);
    });
}

void press(benchmark::State& state, Stage& stage, int count) {
    constexpr int keys = 1000;
    TreeForm form(count);
    stage.clerk.work = [&](ui::Form&) {
        settle();
        form.tree.SetFocus();
        form.tree.setExpanded(*form.tree.roots().front(), true);
        measure(
            state,
            [&] {
                for (int i = 0; i < keys; ++i)
                    form.pressKey({i % 100 < 50 ? ui::key::Down : ui::key::Up});
                settle();
            },
            keys);
        const auto& view = widgetIn<QTreeView>("tvCodes");
        require(view.isExpanded(view.model()->index(0, 0)), "the first code is not open");
        require(form.tree.SelectedItem() == form.tree.roots().front(), "the keys do not lead back");
    };
    stage.desktop.showModal(form);
}

} // namespace

std::vector<QtCase> treeCases() {
    std::vector<QtCase> cases;
    for (const int count : {10'000, 100'000}) {
        const std::string suffix = std::to_string(count) + "-codes";
        cases.push_back(
            {"qt-tree-open/" + suffix, 5, [count](auto& state, auto& stage) { open(state, stage, count); }});
        cases.push_back(
            {"qt-tree-key/" + suffix, 3, [count](auto& state, auto& stage) { press(state, stage, count); }});
    }
    return cases;
}

} // namespace quillmere::bench

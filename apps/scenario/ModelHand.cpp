#include "scenario/ModelHand.h"

#include "platform/ui/DataGrid.h"
#include "platform/ui/Form.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/TabStrip.h"
#include "platform/ui/VerticalMenu.h"

namespace quillmere::scenario {

void ModelHand::focus(ui::Form& form, ui::Control& control) { form.moveFocus(control); }

void ModelHand::selectAll(ui::Form& form) { form.selectAll(); }

void ModelHand::type(ui::Form& form, char32_t character) { form.typeCharacter(character); }

void ModelHand::paste(ui::Form& form, std::string_view text) { form.paste(text); }

void ModelHand::press(ui::Form& form, const ui::KeyStroke& stroke) { form.pressKey(stroke); }

void ModelHand::click(ui::Form& form, ui::Control& control) { form.click(control); }

void ModelHand::doubleClick(ui::Form& form, ui::Control& control) { form.doubleClick(control); }

void ModelHand::clickButton(ui::Form& /*form*/, ui::Toolbar& toolbar, ui::Toolbar::Button& button) {
    toolbar.clickButton(button);
}

void ModelHand::clickItem(ui::Form& /*form*/, ui::VerticalMenu& menu, int group, int item) {
    menu.clickItem(group, item);
}

void ModelHand::clickRow(ui::Form& /*form*/, ui::DataGrid& grid, int row) { grid.clickRow(row); }

void ModelHand::clickPage(ui::Form& form, ui::TabStrip& tabs, int page) {
    form.perform([&] {
        if (form.requestFocus(tabs)) tabs.setTab(page);
    });
}

namespace {

/// What a person has to do before a node can be clicked: to open what it stands in.
void open(ui::TreeView& tree, ui::TreeView::Node* node) {
    if (node == nullptr) return;
    open(tree, node->parent);
    tree.setExpanded(*node, true);
}

} // namespace

void ModelHand::clickNode(ui::Form& form, ui::TreeView& tree, ui::TreeView::Node& node, bool twice) {
    form.perform([&] {
        if (!form.requestFocus(tree)) return;
        open(tree, node.parent);
        tree.setSelectedItem(&node);
        twice ? form.doubleClick(tree) : form.click(tree);
    });
}

void ModelHand::clickListRow(ui::Form& form, ui::ListBox& list, int row) {
    form.perform([&] {
        if (form.requestFocus(list)) list.setListIndex(row);
    });
}

void ModelHand::closeByFrame(ui::Form& form) { form.closeByFrame(); }

} // namespace quillmere::scenario

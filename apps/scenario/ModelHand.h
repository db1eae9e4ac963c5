#pragma once

#include "scenario/Hand.h"

namespace quillmere::scenario {

/// Works on the widget model itself, without a screen.
class ModelHand final : public Hand {
public:
    void focus(ui::Form& form, ui::Control& control) override;
    void selectAll(ui::Form& form) override;
    void type(ui::Form& form, char32_t character) override;
    void paste(ui::Form& form, std::string_view text) override;
    void press(ui::Form& form, const ui::KeyStroke& stroke) override;
    void click(ui::Form& form, ui::Control& control) override;
    void doubleClick(ui::Form& form, ui::Control& control) override;
    void clickButton(ui::Form& form, ui::Toolbar& toolbar, ui::Toolbar::Button& button) override;
    void clickItem(ui::Form& form, ui::VerticalMenu& menu, int group, int item) override;
    void clickRow(ui::Form& form, ui::DataGrid& grid, int row) override;
    void clickPage(ui::Form& form, ui::TabStrip& tabs, int page) override;
    void clickNode(ui::Form& form, ui::TreeView& tree, ui::TreeView::Node& node, bool twice) override;
    void clickListRow(ui::Form& form, ui::ListBox& list, int row) override;
    void closeByFrame(ui::Form& form) override;
};

} // namespace quillmere::scenario

#pragma once

#include "platform/ui/Toolbar.h"
#include "platform/ui/TreeView.h"

#include <string_view>

namespace quillmere::ui {
class Control;
class DataGrid;
class Form;
class ListBox;
class TabStrip;
class VerticalMenu;
struct KeyStroke;
} // namespace quillmere::ui

namespace quillmere::scenario {

/// What a person's hands do on the form in front: by the model's own operations, or by key and mouse
/// events of a toolkit. The player has made sure that the control shows and can be used.
///
/// Each runs its whole road before it returns; what the system raises on the way comes through.
class Hand {
public:
    Hand() = default;
    Hand(const Hand&) = delete;
    Hand& operator=(const Hand&) = delete;
    virtual ~Hand() = default;

    /// A click into a control for the focus alone. It may stay where it is.
    virtual void focus(ui::Form& form, ui::Control& control) = 0;
    virtual void selectAll(ui::Form& form) = 0;
    /// One character, into the control with the focus.
    virtual void type(ui::Form& form, char32_t character) = 0;
    virtual void paste(ui::Form& form, std::string_view text) = 0;
    virtual void press(ui::Form& form, const ui::KeyStroke& stroke) = 0;
    virtual void click(ui::Form& form, ui::Control& control) = 0;
    virtual void doubleClick(ui::Form& form, ui::Control& control) = 0;
    virtual void clickButton(ui::Form& form, ui::Toolbar& toolbar, ui::Toolbar::Button& button) = 0;
    /// Group and item from 1; opens the group first.
    virtual void clickItem(ui::Form& form, ui::VerticalMenu& menu, int group, int item) = 0;
    /// From 1.
    virtual void clickRow(ui::Form& form, ui::DataGrid& grid, int row) = 0;
    /// From 0.
    virtual void clickPage(ui::Form& form, ui::TabStrip& tabs, int page) = 0;
    virtual void clickNode(ui::Form& form, ui::TreeView& tree, ui::TreeView::Node& node, bool twice) = 0;
    /// From 0.
    virtual void clickListRow(ui::Form& form, ui::ListBox& list, int row) = 0;
    virtual void closeByFrame(ui::Form& form) = 0;
};

} // namespace quillmere::scenario

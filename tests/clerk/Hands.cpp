#include "clerk/Hands.h"

#include "clerk/OddTexts.h"
#include "platform/text/Text.h"
#include "platform/ui/CheckBox.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/MaskEdBox.h"
#include "platform/ui/TabStrip.h"
#include "platform/ui/TextBox.h"
#include "platform/ui/Toolbar.h"
#include "platform/ui/TreeView.h"
#include "platform/ui/UserControl.h"
#include "platform/ui/VerticalMenu.h"

#include <algorithm>
#include <iterator>

namespace quillmere::test {

namespace {

using ui::Kind;

void collect(const ui::ControlHost& host, std::vector<ui::Control*>& reached) {
    for (const auto& control : host.Controls()) {
        if (!control->isShown() || !control->isUsable()) continue;
        if (const auto* nested = dynamic_cast<const ui::UserControl*>(control.get()); nested != nullptr)
            collect(*nested, reached);
        else
            reached.push_back(control.get());
    }
}

bool isEntry(Kind kind) { return kind == Kind::TextBox || kind == Kind::MaskEdBox; }

} // namespace

std::vector<ui::Control*> withinReach(const ui::Form& form) {
    std::vector<ui::Control*> reached;
    collect(form, reached);
    return reached;
}

void Hands::perform(const ui::Control* control, const std::string& deed, const std::function<void()>& work) {
    diary_.write((control == nullptr ? std::string("form") : control->name()) + " " + deed);
    work();
}

void Hands::act(ui::Form& form) {
    const int dice = chance_.between(1, 100);
    if (dice <= 12) {
        pressAnyKey(form);
    } else if (dice == 13) {
        resize(form);
    } else if (dice == 14 && chance_.chance(30)) {
        perform(nullptr, "close", [&] { form.closeByFrame(); });
    } else if (dice <= 20) {
        perform(form.ActiveControl(), "empty", [&] {
            form.selectAll();
            form.pressKey({ui::key::Delete, ui::shift::None});
        });
    } else if (dice <= 23) {
        fillIn(form);
    } else if (ui::Control* control = pick(form); control != nullptr) {
        onControl(form, *control);
    }
}

ui::Control* Hands::pick(const ui::Form& form) {
    std::vector<ui::Control*> candidates = withinReach(form);
    std::vector<ui::Control*> likely;
    const int dice = chance_.between(1, 100);
    const auto isLikely = [dice](Kind kind) {
        if (dice <= 15) return kind == Kind::Toolbar;
        if (dice <= 28) return kind == Kind::VerticalMenu;
        if (dice <= 36) return kind == Kind::CommandButton || kind == Kind::DataGrid;
        return dice <= 95 && kind != Kind::Label && kind != Kind::Frame && kind != Kind::Line;
    };
    std::ranges::copy_if(candidates, std::back_inserter(likely),
                         [&](const ui::Control* control) { return isLikely(control->kind()); });
    if (!likely.empty()) candidates = likely;
    return candidates.empty() ? nullptr : chance_.pick(candidates);
}

void Hands::resize(ui::Form& form) {
    const int width = chance_.between(-200, 40000);
    const int height = chance_.between(-200, 30000);
    perform(nullptr, "resize " + std::to_string(width) + " " + std::to_string(height),
            [&] { form.resizeByPerson(width, height); });
}

void Hands::onControl(ui::Form& form, ui::Control& control) {
    if (chance_.chance(2)) {
        perform(&control, "mouse", [&] { form.moveMouse(control, chance_.between(0, 2)); });
        return;
    }
    if (isEntry(control.kind())) {
        onEntry(form, control);
    } else if (control.kind() == Kind::Toolbar || control.kind() == Kind::VerticalMenu) {
        onMenuOrToolbar(control);
    } else if (chance_.chance(15)) {
        perform(&control, "double click", [&] { form.doubleClick(control); });
    } else if (chance_.chance(5)) {
        perform(&control, "right click", [&] { form.click(control, ui::mouse::Right); });
    } else if (control.kind() == Kind::CommandButton || control.kind() == Kind::CheckBox) {
        perform(&control, "click", [&] { form.click(control); });
    } else {
        onListOrTree(form, control);
    }
}

void Hands::onEntry(ui::Form& form, ui::Control& control) {
    const int dice = chance_.between(1, 100);
    if (dice <= 15) {
        perform(&control, "double click", [&] { form.doubleClick(control); });
        return;
    }
    perform(&control, "focus", [&] { form.moveFocus(control); });
    if (!form.isOpen() || form.ActiveControl() != &control) return;
    if (chance_.chance(50)) form.selectAll();
    if (control.kind() != Kind::MaskEdBox || chance_.chance(40))
        enterText(form);
    else if (chance_.chance(50))
        enterMonth(form);
    else
        enterDigits(form, 8);
    if (chance_.chance(15))
        perform(&control, "Enter", [&] { form.pressKey({ui::key::Enter, ui::shift::None}); });
}

void Hands::enterDigits(ui::Form& form, int most) {
    std::string digits;
    for (int i = chance_.between(0, most); i > 0; --i)
        digits += static_cast<char>('0' + chance_.between(0, 9));
    type(form, digits);
}

void Hands::enterMonth(ui::Form& form) {
    type(form, std::to_string(chance_.between(1950, 2030)) + "0" + std::to_string(chance_.between(1, 9)));
}

void Hands::type(ui::Form& form, const std::string& text) {
    perform(form.ActiveControl(), "type " + shown(text), [&] {
        for (const char32_t character : text::decode(text))
            form.typeCharacter(character);
    });
}

void Hands::enterText(ui::Form& form) {
    const int dice = chance_.between(1, 100);
    if (dice <= 50) {
        const std::string text = oddText(chance_);
        perform(form.ActiveControl(), "paste " + shown(text), [&] { form.paste(text); });
    } else if (dice <= 80) {
        std::string typed;
        for (int i = chance_.between(1, 6); i > 0; --i)
            typed += text::encode(oddCharacter(chance_));
        type(form, typed);
    } else {
        enterDigits(form, 12);
    }
}

void Hands::onListOrTree(ui::Form& form, ui::Control& control) {
    if (auto* grid = dynamic_cast<ui::DataGrid*>(&control); grid != nullptr) {
        const int row = chance_.between(0, static_cast<int>(grid->rowCount()) + 1);
        perform(&control, "row " + std::to_string(row), [&] { grid->clickRow(row); });
    } else if (auto* list = dynamic_cast<ui::ListBox*>(&control); list != nullptr) {
        const int row = chance_.between(-1, list->ListCount() - 1);
        perform(&control, "list row " + std::to_string(row), [&] {
            form.perform([&] {
                list->setRowUnderPointer(row);
                if (form.requestFocus(*list)) list->setListIndex(row);
            });
        });
    } else if (auto* tree = dynamic_cast<ui::TreeView*>(&control);
               tree != nullptr && !tree->nodes().empty()) {
        ui::TreeView::Node& node = *chance_.pick(tree->nodes());
        const bool twice = chance_.chance(60);
        perform(&control, "node " + node.text, [&] {
            form.perform([&] {
                if (!form.requestFocus(*tree)) return;
                tree->setSelectedItem(&node);
                twice ? form.doubleClick(*tree) : form.click(*tree);
            });
        });
    } else if (auto* tabs = dynamic_cast<ui::TabStrip*>(&control); tabs != nullptr) {
        const int page = chance_.between(0, static_cast<int>(tabs->captions().size()) - 1);
        perform(&control, "page " + std::to_string(page), [&] {
            form.perform([&] {
                if (form.requestFocus(*tabs)) tabs->setTab(page);
            });
        });
    } else {
        perform(&control, "click", [&] { form.click(control); });
    }
}

void Hands::onMenuOrToolbar(ui::Control& control) {
    if (auto* bar = dynamic_cast<ui::Toolbar*>(&control); bar != nullptr) {
        ui::Toolbar::Button& button = *chance_.pick(bar->buttons());
        // A clerk who left by every sixth click would never get anywhere.
        if (button.Key() == "Exit" && chance_.chance(80)) return;
        perform(&control, button.Key(), [&] { bar->clickButton(button); });
        return;
    }
    auto& menu = static_cast<ui::VerticalMenu&>(control);
    const int group = chance_.between(1, static_cast<int>(menu.groups().size()));
    const auto items = static_cast<int>(menu.groups()[static_cast<std::size_t>(group) - 1].items.size());
    if (chance_.chance(10)) {
        perform(&control, "group " + std::to_string(group), [&] { menu.openByPerson(group); });
        return;
    }
    const int item = chance_.between(0, items + 1);
    perform(&control, "item " + std::to_string(group) + "." + std::to_string(item),
            [&] { menu.clickItem(group, item); });
}

void Hands::pressAnyKey(ui::Form& form) {
    static constexpr int codes[] = {
        ui::key::Tab,       ui::key::Tab,      ui::key::Tab,   ui::key::Enter, ui::key::Enter,
        ui::key::Backspace, ui::key::Escape,   ui::key::Space, ui::key::Home,  ui::key::End,
        ui::key::Left,      ui::key::Right,    ui::key::Up,    ui::key::Down,  ui::key::Delete,
        ui::key::PageUp,    ui::key::PageDown, ui::key::F2,
    };
    static constexpr int panelCodes[] = {'N', 'S', ui::key::Comma, ui::key::Period};
    ui::KeyStroke stroke{codes[chance_.below(std::size(codes))], 0};
    if (chance_.chance(30)) {
        stroke = {panelCodes[chance_.below(std::size(panelCodes))], ui::shift::Ctrl};
    } else if (chance_.chance(25)) {
        stroke.shift = chance_.between(1, 7);
    }
    perform(form.ActiveControl(), "key " + std::to_string(stroke.code) + "/" + std::to_string(stroke.shift),
            [&] { form.pressKey(stroke); });
}

void Hands::fillIn(ui::Form& form) {
    diary_.write(form.name() + " filled in");
    std::vector<std::string> names;
    for (const ui::Control* control : withinReach(form))
        if (isEntry(control->kind())) names.push_back(control->name());
    for (const std::string& name : names) {
        // What came before may have replaced the panel.
        ui::Control* control = form.findDeep(name);
        if (control == nullptr || !form.isOpen() || !form.moveFocus(*control)) continue;
        form.selectAll();
        if (control->kind() == Kind::MaskEdBox) {
            enterMonth(form);
        } else if (static_cast<ui::TextBox*>(control)->Locked()) {
            perform(control, "double click", [&] { form.doubleClick(*control); });
        } else if (chance_.chance(20)) {
            enterText(form);
        } else {
            // The one or the other is what the box takes.
            form.paste("测试");
            form.selectAll();
            enterDigits(form, 4);
        }
    }
    store(form);
}

void Hands::store(ui::Form& form) {
    for (ui::Control* control : withinReach(form)) {
        if (auto* bar = dynamic_cast<ui::Toolbar*>(control); bar != nullptr) {
            perform(control, "Save", [&] { bar->clickButton(bar->Buttons("Save")); });
            return;
        }
        if (control->name().starts_with("cmdOK")) {
            perform(control, "click", [&] { form.click(*control); });
            return;
        }
    }
}

} // namespace quillmere::test

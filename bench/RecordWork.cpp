#include "RecordWork.h"

#include "Comparison.h"
#include "StatementsOf.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quillmere::bench {

namespace {

constexpr int rounds = 200;

void open(frmPersonWh& window, std::string_view caption) {
    const auto& groups = window.menu().groups();
    for (std::size_t group = 0; group < groups.size(); ++group) {
        for (std::size_t item = 0; item < groups[group].items.size(); ++item) {
            if (groups[group].items[item].caption != caption) continue;
            if (window.menu().clickItem(static_cast<int>(group) + 1, static_cast<int>(item) + 1)) return;
        }
    }
    throw std::runtime_error("the menu has no item " + std::string(caption));
}

void enter(frmPersonWh& window, std::string_view widget, std::u32string_view text) {
    ui::Control* control = window.findDeep(widget);
    if (control == nullptr || !window.moveFocus(*control))
        throw std::runtime_error("nothing can be entered in " + std::string(widget));
    window.selectAll();
    for (const char32_t character : text)
        window.typeCharacter(character);
}

void save(frmPersonWh& window) {
    if (!window.toolbar().clickButton(window.toolbarButton("Save")))
        throw std::runtime_error("nothing can be saved");
}

std::ptrdiff_t countStarting(const std::vector<std::string>& statements, std::string_view beginning) {
    return std::ranges::count_if(statements,
                                 [&](const std::string& sql) { return sql.starts_with(beginning); });
}

} // namespace

void measureGrid(frmPersonWh& window, data::RecordingConnection& connection, BareEngine& engine) {
    const auto show = [&window] { open(window, "主要学习经历"); };
    const auto statements = statementsOf(connection, show);
    const ui::Control* mode = window.findDeep("labOpt");
    if (mode == nullptr || mode->property("Caption") != "当前操作：修改")
        throw std::runtime_error("the person has no studies");
    print("opening a list with its grid", statements.size(),
          compare(rounds, show, [&] { engine.run(statements); }));
}

void measureSave(frmPersonWh& window, data::RecordingConnection& connection, BareEngine& engine) {
    open(window, "创新点及主要业绩");
    enter(window, "A10_A1001_v", U"新工法");
    const auto press = [&window] { save(window); };
    press();
    const auto statements = statementsOf(connection, press);
    if (countStarting(statements, "delete from A10") != 1 ||
        countStarting(statements, "insert into A10") != 1)
        throw std::runtime_error("a save is not one removal and one insert");
    print("saving a record, with its reload", statements.size(),
          compare(rounds, press, [&] { engine.run(statements); }));
}

} // namespace quillmere::bench

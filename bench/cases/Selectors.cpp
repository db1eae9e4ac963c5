#include "BenchData.h"
#include "Case.h"
#include "ChosenDesktop.h"
#include "Comparison.h"
#include "Require.h"
#include "StatementsOf.h"
#include "binding/fmGrpCod.h"
#include "metadata/Globals.h"

// The dialog that picks a code, over small and large code tables.

namespace quillmere::bench {

namespace {

/// Works on the selector once and closes it by its frame.
class Clerk final : public ui::ScreenlessPerson {
public:
    using Work = std::function<void(fmGrpCod& selector)>;

    explicit Clerk(Work work) : work_(std::move(work)) {}

    ui::Answer answer(const ui::MessageBox& box) override { throw std::runtime_error(box.text); }
    std::string choose(const ui::FileDialog& /*dialog*/) override { return {}; }
    void work(ui::Form& form) override {
        work_(dynamic_cast<fmGrpCod&>(form));
        form.closeByFrame();
    }

private:
    Work work_;
};

template <class T>
T& find(const ui::Form& form, const char* name) {
    return dynamic_cast<T&>(*form.findDeep(name));
}

void show(const char* table, const Clerk::Work& work) {
    Clerk clerk(work);
    const ChosenDesktop desktop(clerk);
    fmGrpCod selector;
    selector.CodeTable = table;
    ui::desktop().showModal(selector);
}

void open(benchmark::State& state, const Register& from, const CodeTable& table) {
    publishConnection(from.connection);
    const std::string name(table.name);
    const std::size_t levels = from.count("select count(*) from s_CodeLevDefine where dmgrp='" + name + "'");
    const auto onceThrough = [&] {
        show(table.name, [&](const fmGrpCod& selector) {
            require(find<ui::TreeView>(selector, "tvGrpCod").nodes().size(), table.codes, "nodes of " + name);
        });
    };
    auto statements = statementsOf(*from.connection, onceThrough);
    require(statements.size(), 2 + levels, "statements of the selector over " + name);
    compare(state, *from.engine, {.turns = {{onceThrough, std::move(statements)}}});
}

/// For a character that one name in ten or so has.
void search(benchmark::State& state, const Register& from, const CodeTable& table) {
    publishConnection(from.connection);
    show(table.name, [&](fmGrpCod& selector) {
        find<ui::TabStrip>(selector, "Tab1").setTab(1);
        auto& box = find<ui::TextBox>(selector, "txtDm");
        const char* const text = std::string_view(table.name) == "DM_XZQH" ? "山" : "7";
        const auto begin = [&] {
            require(selector.moveFocus(box), "nothing can be searched");
            box.setText(text);
        };
        const auto enter = [&selector] { selector.typeCharacter(ui::key::Enter); };
        begin();
        auto statements = statementsOf(*from.connection, enter);
        require(statements.size(), 1, "statements of a search");
        require(find<ui::ListBox>(selector, "lstDmCpt").ListCount() > 0, "nothing was found");
        compare(state, *from.engine, {.turns = {{enter, std::move(statements)}}, .before = begin});
    });
}

} // namespace

std::vector<Case> selectorCases() {
    std::vector<Case> cases;
    for (const CodeTable& table : codeTables) {
        const std::string suffix = std::to_string(table.codes) + "-codes";
        const int rounds = table.codes > 10'000 ? 10 : 100;
        cases.push_back({"selector-open/" + suffix, rounds,
                         [&table](benchmark::State& state, Register& from) { open(state, from, table); },
                         Sizes::Smallest});
        cases.push_back({"selector-search/" + suffix, rounds,
                         [&table](benchmark::State& state, Register& from) { search(state, from, table); },
                         Sizes::Smallest});
    }
    return cases;
}

} // namespace quillmere::bench

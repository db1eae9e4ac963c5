#include "QtPanels.h"

#include "adapters/qt/Companion.h"
#include "adapters/sqlite/SqliteConnection.h"
#include "platform/data/Recordset.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/TreeView.h"
#include "quillmere/IUserCtrl.h"
#include "quillmere/Qt.h"
#include "sample/SampleRegister.h"
#include "shell/frmPersonWh.h"

#include <QApplication>
#include <QLineEdit>
#include <QTableView>
#include <QTreeView>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <stdexcept>
#include <vector>

namespace quillmere::bench {

namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;
using Work = std::function<void()>;

/// Works on each form as it opens, the outermost first, and closes it.
class Clerk final : public qt::Companion {
public:
    std::function<void(ui::Form&)> work;

    void formOpened(ui::Form& form) override {
        work(form);
        if (form.isOpen()) form.closeByFrame();
    }
    std::optional<ui::Answer> messageOpened(const ui::MessageBox& box) override {
        throw std::runtime_error(box.text);
    }
};

void require(bool holds, const char* what) {
    if (!holds) throw std::runtime_error(what);
}

/// Works off what is due, painting included.
void settle() {
    for (int round = 0; round < 3; ++round) {
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }
}

double once(const Work& work) {
    const auto begun = std::chrono::steady_clock::now();
    work();
    return Milliseconds(std::chrono::steady_clock::now() - begun).count();
}

double median(int rounds, const Work& work) {
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i)
        times.push_back(once(work));
    std::ranges::nth_element(times, times.begin() + rounds / 2);
    return times[static_cast<std::size_t>(rounds / 2)];
}

template <class T>
T& widgetIn(const char* name) {
    T* found = QApplication::activeWindow() == nullptr
                   ? nullptr
                   : QApplication::activeWindow()->findChild<T*>(QString::fromLatin1(name));
    if (found == nullptr) throw std::runtime_error(std::string("not on the screen: ") + name);
    return *found;
}

void open(ui::VerticalMenu& menu, int item) {
    require(menu.clickItem(1, item), "no such item of the menu");
    settle();
}

/// The basic data of a person, 35 fields, and the list of studies.
void measurePanels(frmPersonWh& window) {
    constexpr int rounds = 15;
    const double building = median(rounds, [&] { open(window.menu(), 1); });
    std::printf("panel of the basic data, %lld boxes, built anew and painted: %.1f ms\n",
                static_cast<long long>(QApplication::activeWindow()->findChildren<QLineEdit*>().size()),
                building);
    const double there = median(rounds, [&] {
        open(window.menu(), 2);
        open(window.menu(), 1);
    });
    require(widgetIn<QLineEdit>("A01_A0101_v").isVisible(), "the panel is not back");
    std::printf("to another panel and back: %.1f ms\n", there);
}

std::shared_ptr<data::Recordset> rowsOf(data::Connection& connection, int count) {
    auto rows = std::make_shared<data::Recordset>();
    rows->open("with recursive n(i) as (select 1 union all select i+1 from n where i<" +
                   std::to_string(count) + ") select i as no, '姓名'||i as name, '单位'||i as unit from n",
               connection);
    return rows;
}

double measureGrid(frmPersonWh& window, data::Connection& connection, int count) {
    constexpr int rounds = 5;
    constexpr int steps = 200;
    auto& grid = dynamic_cast<ui::DataGrid&>(*window.findDeep("DGItems"));
    const auto rows = rowsOf(connection, count);
    const double filling = median(rounds, [&] {
        grid.setDataSource(nullptr);
        grid.setDataSource(rows);
        settle();
    });
    const auto& table = widgetIn<QTableView>("DGItems");
    require(table.model()->rowCount() == count, "rows are missing from the list");
    const double moving = once([&] {
        for (int row = 1; row <= steps; ++row)
            grid.clickRow(row * (count / steps));
        settle();
    });
    require(table.currentIndex().row() == steps * (count / steps) - 1, "the row is not the current one");
    std::printf("list of %d rows: %.1f ms to fill, %.1f us a step\n", count, filling, 1000 * moving / steps);
    return moving / steps;
}

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

double measureTree(ui::Desktop& desktop, Clerk& clerk, int count) {
    constexpr int steps = 1000;
    TreeForm form(count);
    double opening = 0;
    double step = 0;
    const auto begun = std::chrono::steady_clock::now();
    clerk.work = [&](ui::Form&) {
        settle();
        opening = Milliseconds(std::chrono::steady_clock::now() - begun).count();
        form.tree.SetFocus();
        form.tree.setExpanded(*form.tree.roots().front(), true);
        step = once([&] {
                   for (int i = 0; i < steps; ++i)
                       form.pressKey({i % 100 < 50 ? ui::key::Down : ui::key::Up});
                   settle();
               }) /
               steps;
        const auto& view = widgetIn<QTreeView>("tvCodes");
        require(view.isExpanded(view.model()->index(0, 0)), "the first code is not open");
        require(form.tree.SelectedItem() == form.tree.roots().front(), "the keys do not lead back");
    };
    desktop.showModal(form);
    std::printf("tree of %d codes: %.1f ms to open, %.1f us a key\n", count, opening, 1000 * step);
    return step;
}

void printFlatness(const char* what, double few, double many) {
    std::printf("  %s: %.2f times as long with ten times as many\n", what, many / few);
}

} // namespace

void measureQtPanels(const std::string& platform) {
    const auto connection = sqlite::openInMemory();
    sample::build(*connection, {.persons = 40, .units = 0});
    Clerk clerk;
    qt::Toolkit toolkit({.applicationName = "quillmere-bench-qt", .platform = platform, .companion = &clerk});
    clerk.work = [&](ui::Form& form) {
        auto& window = dynamic_cast<frmPersonWh&>(form);
        settle();
        measurePanels(window);
        open(window.menu(), 2);
        const double few = measureGrid(window, *connection, 1'000);
        const double many = measureGrid(window, *connection, 10'000);
        printFlatness("a step", few, many);
    };
    IUserCtrl host;
    host.setConnection(connection);
    host.setOperationType(4);
    host.setZZtype(1);
    host.setPersonID(connection->query("select A00 from A02 order by A00").at(0, std::size_t{0}).toText());
    (void)host.ShowPersonWh();
    const double few = measureTree(toolkit.desktop(), clerk, 10'000);
    const double many = measureTree(toolkit.desktop(), clerk, 100'000);
    printFlatness("a key", few, many);
}

} // namespace quillmere::bench

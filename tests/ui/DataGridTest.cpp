#include "platform/ui/DataGrid.h"

#include "../platform/FakeConnection.h"
#include "platform/ui/Form.h"
#include "platform/ui/TextBox.h"
#include "support/FailureNumber.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace quillmere::ui {
namespace {

using data::MoveStatus;
using data::Recordset;
using data::Value;

class DataGridTest : public testing::Test {
protected:
    static std::shared_ptr<Recordset> recordset(int rows) {
        data::RowSet answer({"A0299", "单位"});
        for (int i = 1; i <= rows; ++i)
            answer.addRow({i, i == 2 ? Value() : Value("单位" + std::to_string(i))});
        data::FakeConnection connection(std::move(answer));
        auto source = std::make_shared<Recordset>();
        source->open("select", connection);
        return source;
    }

    /// Binds three rows and works on the open form with the focus in the text box.
    void work(const std::function<void()>& what) {
        grid.setDataSource(source);
        person.show(form, [&](Form&) {
            ASSERT_TRUE(form.moveFocus(box));
            what();
        });
    }

    std::shared_ptr<Recordset> source = recordset(3);
    test::ScriptedPerson person;
    Form form{"frm", "frm"};
    TextBox& box = form.add<TextBox>("box");
    DataGrid& grid = form.add<DataGrid>("grid");
};

TEST_F(DataGridTest, WithoutASourceThereIsNothing) {
    EXPECT_EQ(grid.rowCount(), 0U);
    EXPECT_EQ(grid.currentRow(), 0);
    EXPECT_TRUE(grid.columns().empty());
    EXPECT_EQ(grid.cellText(0, 0), "");
    EXPECT_FALSE(grid.canTakeFocus());
}

TEST_F(DataGridTest, ShowsColumnsAndRowsOfItsSource) {
    grid.setDataSource(source);
    ASSERT_EQ(grid.columns().size(), 2U);
    EXPECT_EQ(grid.columns()[1].heading, "单位");
    EXPECT_TRUE(grid.columns()[1].visible);
    EXPECT_EQ(grid.rowCount(), 3U);
    EXPECT_EQ(grid.currentRow(), 1);
    EXPECT_EQ(grid.cellText(2, 0), "3");
    EXPECT_EQ(grid.cellText(0, 1), "单位1");
}

TEST_F(DataGridTest, ANullShowsNothing) {
    grid.setDataSource(source);
    EXPECT_EQ(grid.cellText(1, 1), "");
}

TEST_F(DataGridTest, ACellThatIsNotThereIsAFailure) {
    grid.setDataSource(source);
    EXPECT_EQ(failureOf([&] { (void)grid.cellText(3, 0); }), number(Failure::SubscriptOutOfRange));
    EXPECT_EQ(failureOf([&] { (void)grid.cellText(0, 2); }), number(Failure::ItemNotFound));
}

TEST_F(DataGridTest, ARowsetWithoutRowsShowsItsColumns) {
    grid.setDataSource(recordset(0));
    EXPECT_EQ(grid.columns().size(), 2U);
    EXPECT_EQ(grid.rowCount(), 0U);
    EXPECT_EQ(grid.currentRow(), 0);
    person.show(form, [&](Form&) {
        EXPECT_FALSE(grid.clickRow(1));
        EXPECT_TRUE(form.moveFocus(grid));
        form.pressKey({key::Down, shift::None});
        form.pressKey({key::End, shift::None});
        EXPECT_EQ(grid.currentRow(), 0);
    });
}

TEST_F(DataGridTest, AFilterLeavesTheRowsThatPass) {
    grid.setDataSource(source);
    source->setFilter("单位<>''");
    EXPECT_EQ(grid.rowCount(), 2U);
    EXPECT_EQ(grid.cellText(1, 0), "3");
}

TEST_F(DataGridTest, AClosedSourceShowsNothing) {
    grid.setDataSource(source);
    source->close();
    EXPECT_EQ(grid.rowCount(), 0U);
    EXPECT_EQ(grid.currentRow(), 0);
    EXPECT_EQ(grid.cellText(0, 0), "");
}

TEST_F(DataGridTest, ColumnsAreHiddenSizedAndNamedOneByOne) {
    grid.setDataSource(source);
    grid.setColumnVisible(0, false);
    grid.setColumnWidth(1, 3000);
    grid.setColumnHeading(1, "工作单位");
    EXPECT_FALSE(grid.columns()[0].visible);
    EXPECT_TRUE(grid.columns()[1].visible);
    EXPECT_EQ(grid.columns()[1].width, 3000);
    EXPECT_EQ(grid.columns()[1].heading, "工作单位");
}

TEST_F(DataGridTest, AColumnThatIsNotThereIsAFailure) {
    grid.setDataSource(source);
    const auto missing = number(Failure::SubscriptOutOfRange);
    EXPECT_EQ(failureOf([&] { grid.setColumnVisible(2, false); }), missing);
    EXPECT_EQ(failureOf([&] { grid.setColumnWidth(2, 1); }), missing);
    EXPECT_EQ(failureOf([&] { grid.setColumnHeading(2, ""); }), missing);
}

TEST_F(DataGridTest, AClickedRowBecomesTheCursorWithItsMoveEvents) {
    std::string log;
    source->onWillMove([&](MoveStatus&) { log += "will;"; });
    source->onMoveComplete([&] { log += "at " + std::to_string(source->AbsolutePosition()) + ";"; });
    work([&] {
        EXPECT_TRUE(grid.clickRow(3));
        EXPECT_EQ(source->AbsolutePosition(), 3);
        EXPECT_EQ(grid.currentRow(), 3);
        EXPECT_TRUE(grid.hasFocus());
        EXPECT_EQ(log, "will;at 3;");
    });
}

TEST_F(DataGridTest, AClickOnTheCurrentRowMovesNothing) {
    int moves = 0;
    source->onWillMove([&](MoveStatus&) { ++moves; });
    work([&] {
        EXPECT_TRUE(grid.clickRow(1));
        EXPECT_EQ(moves, 0);
    });
}

TEST_F(DataGridTest, ACancelledMoveStaysOnItsRow) {
    source->onWillMove([](MoveStatus& status) { status = MoveStatus::Cancel; });
    work([&] {
        EXPECT_TRUE(grid.clickRow(2));
        EXPECT_EQ(grid.currentRow(), 1);
    });
}

TEST_F(DataGridTest, ARefusedFocusMovesNoRow) {
    box.Validate.connect([](bool& cancel) { cancel = true; });
    work([&] {
        EXPECT_FALSE(grid.clickRow(2));
        EXPECT_EQ(grid.currentRow(), 1);
    });
}

TEST_F(DataGridTest, ARowThatIsNotThereIsNotClicked) {
    work([&] {
        EXPECT_FALSE(grid.clickRow(0));
        EXPECT_FALSE(grid.clickRow(4));
        EXPECT_TRUE(box.hasFocus());
    });
}

TEST_F(DataGridTest, ARowThatGoesWhileTheFocusMovesIsNotGoneTo) {
    box.LostFocus.connect([&] { source->setFilter("单位<>''"); });
    work([&] {
        EXPECT_TRUE(grid.clickRow(3));
        EXPECT_EQ(grid.currentRow(), 1);
    });
}

TEST_F(DataGridTest, TakingTheSourceAwayDropsTheFocus) {
    work([&] {
        ASSERT_TRUE(form.moveFocus(grid));
        grid.setDataSource(nullptr);
        EXPECT_EQ(form.ActiveControl(), nullptr);
    });
}

TEST_F(DataGridTest, KeysMoveTheRowAndStopAtTheEnds) {
    struct Row {
        int code;
        int row;
    };
    work([&] {
        ASSERT_TRUE(form.moveFocus(grid));
        for (const Row& step : {Row{key::Down, 2}, Row{key::Down, 3}, Row{key::Down, 3}, Row{key::Up, 2},
                                Row{key::Home, 1}, Row{key::Up, 1}, Row{key::End, 3}, Row{key::Left, 3}}) {
            form.pressKey({step.code, shift::None});
            EXPECT_EQ(grid.currentRow(), step.row) << step.code;
        }
    });
}

class Recorder : public ControlView {
public:
    void changed(Property property) override { seen.push_back(property); }
    std::vector<Property> seen;
};

TEST_F(DataGridTest, ItsViewIsToldOfMovesOfTheSource) {
    grid.setDataSource(source);
    Recorder recorder;
    grid.setView(&recorder);
    source->MoveNext();
    EXPECT_EQ(recorder.seen, std::vector<Property>{Property::Current});
    source->close();
    EXPECT_EQ(recorder.seen.back(), Property::Rows);
}

TEST_F(DataGridTest, TheSourceMayOutliveTheGrid) {
    grid.setDataSource(source);
    form.removeAll();
    source->MoveNext();
    EXPECT_EQ(source->AbsolutePosition(), 2);
}

TEST_F(DataGridTest, OutsideAFormItIsNotClicked) {
    DataGrid alone("DGItems");
    alone.setDataSource(source);
    EXPECT_FALSE(alone.clickRow(2));
    EXPECT_EQ(source->AbsolutePosition(), 1);
}

} // namespace
} // namespace quillmere::ui

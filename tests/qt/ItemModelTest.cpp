#include "adapters/qt/GridModel.h"
#include "adapters/qt/TreeModel.h"
#include "platform/FakeConnection.h"
#include "platform/data/Recordset.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/TreeView.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

namespace quillmere::test {

namespace {

// The tester's own failures go through Qt's log; a fatal one would take the program along.
constexpr auto reporting = QAbstractItemModelTester::FailureReportingMode::Fatal;

std::shared_ptr<data::Recordset> people(int count) {
    data::RowSet rows({"序号", "姓名"});
    for (int i = 1; i <= count; ++i)
        rows.addRow({data::Value(std::int64_t{i}), data::Value("人" + std::to_string(i))});
    data::FakeConnection connection(rows);
    auto recordset = std::make_shared<data::Recordset>();
    recordset->open("select", connection);
    return recordset;
}

QString shown(const QAbstractItemModel& model, int row, int column) {
    return model.data(model.index(row, column), Qt::DisplayRole).toString();
}

} // namespace

TEST(GridModelTest, IsAProperModelThroughEveryChangeOfItsGrid) {
    ui::DataGrid grid("DGItems");
    qt::GridModel model(grid);
    const QAbstractItemModelTester tester(&model, reporting);
    EXPECT_EQ(0, model.rowCount());
    grid.setDataSource(people(3));
    model.reload();
    EXPECT_EQ(3, model.rowCount());
    EXPECT_EQ(2, model.columnCount());
    grid.setDataSource(people(0));
    model.reload();
    EXPECT_EQ(0, model.rowCount());
    EXPECT_EQ(2, model.columnCount());
    grid.setDataSource(nullptr);
    model.reload();
    EXPECT_EQ(0, model.columnCount());
    model.detach();
    EXPECT_EQ(0, model.rowCount());
}

TEST(GridModelTest, ShowsHeadingsAndCellsWithNumbersAtTheRight) {
    ui::DataGrid grid("DGItems");
    grid.setDataSource(people(2));
    grid.setColumnHeading(1, "名字");
    const qt::GridModel model(grid);
    EXPECT_EQ("名字", model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString().toStdString());
    EXPECT_EQ("人2", shown(model, 1, 1).toStdString());
    const auto sideOf = [&](int column) {
        return model.data(model.index(0, column), Qt::TextAlignmentRole).toInt();
    };
    EXPECT_TRUE(sideOf(0) & Qt::AlignRight);
    EXPECT_TRUE(sideOf(1) & Qt::AlignLeft);
}

TEST(GridModelTest, AColumnOfNumbersThatAreStoredAsTextStandsAtTheRightTooAndSoDoesItsHeading) {
    ui::DataGrid grid("DGItems");
    grid.setDataSource(people(2));
    grid.setColumnAlignment(1, ui::Alignment::Right);
    const qt::GridModel model(grid);
    EXPECT_TRUE(model.data(model.index(0, 1), Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
    EXPECT_TRUE(model.headerData(1, Qt::Horizontal, Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
}

TEST(GridModelTest, ShowsNothingOfARecordsetThatChangedUnderIt) {
    ui::DataGrid grid("DGItems");
    auto source = people(3);
    grid.setDataSource(source);
    const qt::GridModel model(grid);
    source->close();
    EXPECT_TRUE(model.isStale());
    EXPECT_EQ("", shown(model, 2, 1).toStdString());
}

TEST(TreeModelTest, IsAProperModelThroughEveryChangeOfItsTree) {
    ui::TreeView tree("tvGrpCod");
    QObject owner;
    auto& model = *new qt::TreeModel(tree, &owner);
    const QAbstractItemModelTester tester(&model, reporting);
    auto& north = tree.add(nullptr, "k1", "北京市");
    tree.add(nullptr, "k2", "天津市");
    tree.add(&north, "k11", "东城区");
    tree.add(&tree.add(&north, "k12", "西城区"), "k121", "西单");
    model.reload();
    EXPECT_EQ(2, model.rowCount());
    const QModelIndex first = model.index(0, 0);
    EXPECT_EQ(2, model.rowCount(first));
    EXPECT_EQ("西城区", model.data(model.index(1, 0, first), Qt::DisplayRole).toString().toStdString());
    EXPECT_EQ(first, model.parent(model.index(1, 0, first)));
    tree.clear();
    model.reload();
    EXPECT_EQ(0, model.rowCount());
}

TEST(TreeModelTest, FindsTheIndexOfANodeAndTheNodeOfAnIndex) {
    ui::TreeView tree("tvGrpCod");
    auto& root = tree.add(nullptr, "k1", "北京市");
    auto& leaf = tree.add(&root, "k11", "东城区");
    QObject owner;
    const auto& model = *new qt::TreeModel(tree, &owner);
    EXPECT_EQ(&leaf, qt::TreeModel::nodeOf(model.indexOf(&leaf)));
    EXPECT_FALSE(model.indexOf(nullptr).isValid());
}

TEST(TreeModelTest, IsEmptyBetweenTheClearingOfTheTreeAndTheReload) {
    ui::TreeView tree("tvGrpCod");
    tree.add(nullptr, "k1", "北京市");
    QObject owner;
    auto& model = *new qt::TreeModel(tree, &owner);
    tree.clear();
    EXPECT_EQ(0, model.rowCount());
    model.reload();
    EXPECT_FALSE(model.index(0, 0).isValid());
}

} // namespace quillmere::test

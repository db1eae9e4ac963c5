#include "RowGridBench.h"

namespace quillmere {
namespace {

struct LayoutCase {
    std::int32_t type;
    int leftBySubject;
    int leftByPurpose;
    const char* title;
};

// What no layout is for stays as it was designed.
constexpr LayoutCase layouts[] = {
    {0, -10000, 240, "申请资助经费预算"},     {1, 235, -10000, "申请资助经费预算"},
    {2, 235, -10000, "申请资助经费预算"},     {3, 235, -10000, "申请资助经费预算"},
    {4, -10000, 235, "项目总体经费使用安排"}, {5, 235, -10000, "申请资助经费预算"},
    {6, -10000, 240, "申请资助经费预算"},     {7, -10000, 235, "项目总体经费使用安排"},
    {8, -10000, 240, "申请资助经费预算"},
};

class BudgetGridLayoutTest : public test::RowGridBench, public testing::WithParamInterface<LayoutCase> {
protected:
    BudgetGridLayoutTest() { gZZType = GetParam().type; }
};

INSTANTIATE_TEST_SUITE_P(Types, BudgetGridLayoutTest, testing::ValuesIn(layouts),
                         [](const auto& testCase) { return std::to_string(testCase.param.type); });

TEST_P(BudgetGridLayoutTest, OneFrameStandsOnTheScreenAndTheTitleFollows) {
    const A1ctrlUser& panel = open("A1ctrlUserP03");
    EXPECT_EQ(panel.find("frmABCE")->geometry().left, GetParam().leftBySubject);
    EXPECT_EQ(panel.find("frmDG")->geometry().left, GetParam().leftByPurpose);
    EXPECT_EQ(test::controlOf<ui::Label>(window, "Title").Caption(), GetParam().title);
    EXPECT_EQ(panel.find("DGItems_1")->isShown(), GetParam().leftBySubject > 0);
    EXPECT_EQ(panel.find("DGItems_q")->isShown(), GetParam().leftByPurpose > 0);
}

TEST_P(BudgetGridLayoutTest, BothGridsAreThereAndBoundUnderEveryType) {
    db.run("insert into P03 values('p1','a','1','b',1)");
    open("A1ctrlUserP03");
    EXPECT_EQ(test::controlOf<ui::DataGrid>(window, "DGItems_1").rowCount(), 1U);
    EXPECT_EQ(test::controlOf<ui::DataGrid>(window, "DGItems_q").rowCount(), 1U);
    ASSERT_EQ(db.statements().size(), 2U);
    EXPECT_TRUE(db.statements().front().starts_with("select P0399 as 序号,P0301 as 预算支出科目"));
    EXPECT_TRUE(db.statements().back().starts_with("select P0399 as 序号,P0301 as 用途"));
}

} // namespace
} // namespace quillmere

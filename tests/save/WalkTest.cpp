#include "save/WalkBench.h"

namespace quillmere {
namespace {

using WalkTest = test::WalkBench;

TEST_F(WalkTest, TheColumnsStandInTheOrderOfTheWidgets) {
    build("A01", {{field::text("A0103", "x"), "varchar"},
                  {field::check("A0105", "x"), "bit"},
                  {field::month("A0104", "x"), "datetime"},
                  {field::text("A0102", "x"), "int"}});
    write("A0103", "三");
    write("A0104", "2020年05月");
    write("A0102", "7");
    expectStored(",A0103,A0105,A0104,A0102", ",'三','0','2020-05','7'");
}

TEST_F(WalkTest, OtherWidgetsOfThatEndingArePassedOverButMustHaveTheirField) {
    buildText("varchar");
    panel().add<ui::Label>("A01_A0177_v", "x");
    expectFailure("无效的过程调用或参数");
    EXPECT_EQ(db.statements().size(), 1U);
    addItem(*panel().FieldItems, "A0177", "varchar").IsNUll = false;
    expectStored(",A0102", ",''");
}

TEST_F(WalkTest, AValueWidgetWithoutAFieldIsAFailure) {
    buildText("varchar");
    panel().FieldItems->remove("A01_A0102");
    expectFailure("无效的过程调用或参数");
    EXPECT_EQ(db.statements().size(), 1U);
}

TEST_F(WalkTest, WidgetsOfOtherNamesArePassedOverAndTheCaseOfTheEndingMatters) {
    buildText("varchar");
    panel().add<ui::TextBox>("A01_A0178_V").setText("x");
    panel().add<ui::TextBox>("search").setText("x");
    expectStored(",A0102", ",''");
}

TEST_F(WalkTest, ThreeFailedFieldsGiveThreeLinesInWidgetOrderAndNothingIsWritten) {
    build("A01", {{field::text("A0103", "x"), "int"},
                  {field::month("A0104", "x"), "varchar"},
                  {field::text("A0102", "x"), "varchar"}});
    write("A0103", "x");
    write("A0104", "1___年__月");
    write("A0102", characters(256));
    expectRefusal("栏A0103 数据应该输入数字\r\n栏A0104 数据数据填写不完整\r\n栏A0102 "
                  "数据应该小于256个字符长度");
    ASSERT_EQ(person.boxes().size(), 1U);
    EXPECT_EQ(person.boxes()[0].buttons, ui::Buttons::Ok);
    EXPECT_EQ(db.cell("select count(*) from A01"), "0");
    EXPECT_EQ(db.cell("select count(*) from P01"), "0");
}

TEST_F(WalkTest, TheSecondOutOfRangeIntNamesAnotherRange) {
    build("A01", {{field::text("A0102", "x"), "int"}, {field::text("A0103", "x"), "int"}});
    write("A0102", "-1");
    write("A0103", "1000001");
    expectRefusal("栏A0102 数据应该在 0到1000000范围内\r\n栏A0103 数据应该在 -32768到32767范围内");
}

TEST_F(WalkTest, ARuleAndTheRequiredCheckBothComplainAboutAnEmptyField) {
    buildText("varchar");
    item("A0102").Check = "L 15,18";
    item("A0102").IsNUll = false;
    expectRefusal("栏A0102长度应该为15或18位。\r\n栏A0102  为必填项");
}

TEST_F(WalkTest, TheSaveChangesNothingOnThePanel) {
    buildText("varchar");
    write("A0102", "x");
    panel().WhInfo.IsChange = true;
    panel().WhInfo.id = 5;
    EXPECT_TRUE(save());
    EXPECT_TRUE(panel().WhInfo.IsChange);
    EXPECT_EQ(panel().WhInfo.id, 5);
    EXPECT_EQ(widget<ui::TextBox>("A0102").Text(), "x");
}

} // namespace
} // namespace quillmere

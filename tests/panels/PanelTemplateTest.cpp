#include "panels/PanelBench.h"
#include "panels/PanelFactory.h"
#include "support/FailureNumber.h"

#include "platform/ui/Frame.h"

#include <algorithm>

namespace quillmere {
namespace {

/// What all panels share, held on each of them.
class EveryPanelTest : public testing::TestWithParam<std::string> {
protected:
    const PanelRow& row = *findPanel(GetParam());
    test::StandInWindow window;
    A1ctrlUser& panel = window.place(row);

    [[nodiscard]] const ui::Label& label(std::string_view name) const {
        const auto* found = dynamic_cast<const ui::Label*>(panel.find(name));
        if (found == nullptr) throw Error(Failure::ItemNotFound, std::string(name));
        return *found;
    }
};

std::vector<std::string> allClasses() {
    std::vector<std::string> names;
    for (const PanelRow& row : panelCatalogue())
        names.emplace_back(row.className);
    return names;
}

INSTANTIATE_TEST_SUITE_P(Catalogue, EveryPanelTest, testing::ValuesIn(allClasses()),
                         [](const auto& panel) { return panel.param; });

TEST_P(EveryPanelTest, ShowsItsTitleAndBlankLabels) {
    EXPECT_EQ(label("Title").Caption(), row.title);
    EXPECT_EQ(label("labOpt").Caption(), "");
    EXPECT_EQ(label("labExplain").Caption(), "");
}

TEST_P(EveryPanelTest, ShowsTheLegendInThreeLines) {
    EXPECT_EQ(label("LabInterFace").Caption(), "加粗标题为必填项\r\n\r\n蓝色文本框可双击鼠标左键选择代码");
}

TEST_P(EveryPanelTest, FramesHelpAndLegend) {
    const auto* help = dynamic_cast<ui::Frame*>(panel.find("Frm1"));
    const auto* legend = dynamic_cast<ui::Frame*>(panel.find("Frm2"));
    ASSERT_NE(help, nullptr);
    ASSERT_NE(legend, nullptr);
    EXPECT_EQ(help->Caption(), "填表说明");
    EXPECT_EQ(legend->Caption(), "界面说明");
    EXPECT_EQ(label("labExplain").Container(), help);
    EXPECT_EQ(label("LabInterFace").Container(), legend);
}

TEST_P(EveryPanelTest, HasACaptionAndAValueWidgetForEachField) {
    for (const FieldRow& field : row.fields) {
        const std::string stem = std::string(row.widgetTable) + "_" + std::string(field.code);
        EXPECT_EQ(label(stem + "_c").Caption(), field.caption);
        EXPECT_NE(panel.find(stem + "_v"), nullptr) << stem;
    }
}

TEST_P(EveryPanelTest, HasNoOtherFieldWidgets) {
    const auto& controls = panel.Controls();
    const auto fields =
        std::ranges::count_if(controls, [](const auto& control) { return isValueWidget(control->name()); });
    const auto captions =
        std::ranges::count_if(controls, [](const auto& control) { return isCaptionWidget(control->name()); });
    EXPECT_EQ(static_cast<std::size_t>(fields), row.fields.size());
    EXPECT_EQ(static_cast<std::size_t>(captions), row.fields.size());
}

TEST_P(EveryPanelTest, TabsThroughItsFieldsInTheirOrder) {
    int last = -1;
    for (const FieldRow& field : row.fields) {
        const std::string name = std::string(row.widgetTable) + "_" + std::string(field.code) + "_v";
        EXPECT_GT(panel.find(name)->TabIndex(), last) << name;
        last = panel.find(name)->TabIndex();
    }
}

TEST_P(EveryPanelTest, HasNoTwoWidgetsOfOneName) {
    for (const auto& control : panel.Controls())
        EXPECT_EQ(panel.find(control->name()), control.get()) << control->name();
}

TEST_P(EveryPanelTest, HasAGridUnlessItBringsItsOwn) {
    const bool own = row.className == "A1ctrlUserP03" || row.className == "A1ctrlUserP02_DG" ||
                     row.className == "A1ctrlUserC04";
    const auto* grid = dynamic_cast<ui::DataGrid*>(panel.find("DGItems"));
    EXPECT_EQ(grid == nullptr, own);
}

TEST_P(EveryPanelTest, IsCreatedByItsNameWithoutRegardToCase) {
    std::string capitals = GetParam();
    std::ranges::transform(capitals, capitals.begin(), [](unsigned char c) { return std::toupper(c); });
    const auto made = createPanel(capitals, window);
    EXPECT_EQ(&made->row(), &row);
    EXPECT_EQ(made->name(), capitals);
}

class WidgetKindTest : public test::PanelBench {
protected:
    static constexpr FieldRow kinds[] = {
        field::text("T01", "文本").max(10),
        field::longText("T02", "长文"),
        field::month("T03", "年月"),
        field::day("T04", "日期"),
        field::number("T05", "年度"),
        field::check("T06", "勾选"),
        field::text("T07", "人数").digits(),
        field::text("T08", "电话").phone(),
        field::text("T09", "金额").decimal().in("万元"),
    };
    static constexpr PanelRow kindsRow{
        .className = "A1ctrlUserKinds", .widgetTable = "T", .title = "种类", .fields = kinds};

    void expectMask(std::string_view name, std::string_view mask, std::string_view format) {
        const auto& box = on<ui::MaskEdBox>(panel, name);
        EXPECT_EQ(box.MaskText(), mask);
        EXPECT_EQ(box.Format(), format);
        EXPECT_EQ(box.PromptChar(), U'_');
    }

    std::string typed(std::string_view name) {
        auto& box = on<ui::TextBox>(panel, name);
        panel.setCtrl(items);
        panel.FieldItems = items;
        person.show(window, [&](ui::Form& form) {
            form.moveFocus(box);
            test::typeText(form, "a1-2. ，3");
        });
        return box.Text();
    }

    A1ctrlUser& panel = window.place(kindsRow);
    std::shared_ptr<cFieldItems> items = test::itemsOf(kindsRow);
};

TEST_F(WidgetKindTest, TheMaskedKindsHaveTheirMaskFormatAndPrompt) {
    expectMask("T_T03_v", "####年##月", "yyyy年mm月");
    expectMask("T_T04_v", "####年##月##日", "yyyy年mm月dd日");
    expectMask("T_T05_v", "####", "####");
}

TEST_F(WidgetKindTest, TextIsOnOneLineAndLongTextOnMany) {
    EXPECT_FALSE(on<ui::TextBox>(panel, "T_T01_v").MultiLine());
    EXPECT_TRUE(on<ui::TextBox>(panel, "T_T02_v").MultiLine());
    EXPECT_EQ(panel.find("T_T06_v")->kind(), ui::Kind::CheckBox);
}

TEST_F(WidgetKindTest, TheDesignedLimitHoldsUntilTheFirstRecord) {
    EXPECT_EQ(on<ui::TextBox>(panel, "T_T01_v").MaxLength(), 10U);
    EXPECT_EQ(on<ui::TextBox>(panel, "T_T02_v").MaxLength(), 0U);
}

TEST_F(WidgetKindTest, TheUnitStandsRightBehindItsWidget) {
    const auto& controls = panel.Controls();
    const auto widget =
        std::ranges::find_if(controls, [](const auto& control) { return control->name() == "T_T09_v"; });
    ASSERT_NE(widget, controls.end());
    const auto* unit = dynamic_cast<const ui::Label*>((widget + 1)->get());
    ASSERT_NE(unit, nullptr);
    EXPECT_EQ(unit->Caption(), "万元");
}

TEST_F(WidgetKindTest, FieldsWithoutAFilterTakeEverything) { EXPECT_EQ(typed("T_T01_v"), "a1-2. ，3"); }
TEST_F(WidgetKindTest, DigitFieldsTakeDigits) { EXPECT_EQ(typed("T_T07_v"), "123"); }
TEST_F(WidgetKindTest, PhoneFieldsTakeDigitsBlanksHyphensAndPoints) { EXPECT_EQ(typed("T_T08_v"), "1-2. 3"); }
TEST_F(WidgetKindTest, DecimalFieldsTakeDigitsAndPoints) { EXPECT_EQ(typed("T_T09_v"), "12.3"); }

TEST_F(WidgetKindTest, EnterInAFilteredFieldGoesToTheNextField) {
    panel.setCtrl(items);
    panel.FieldItems = items;
    person.show(window, [&](ui::Form& form) {
        form.moveFocus(*panel.find("T_T07_v"));
        form.pressKey({ui::key::Enter, ui::shift::None});
        EXPECT_EQ(form.ActiveControl(), panel.find("T_T08_v"));
    });
}

TEST(PanelCreationTest, AnUnknownClassCannotBeCreated) {
    test::StandInWindow window;
    EXPECT_EQ(failureOf([&] { (void)createPanel("A1ctrlUserZ99", window); }),
              number(Failure::CannotCreateObject));
}

TEST(PanelCreationTest, M08IsFoundThoughItsClassIsSpeltWithALowerCaseU) {
    test::StandInWindow window;
    EXPECT_EQ(createPanel("A1ctrlUserM08", window)->row().className, "A1ctrluserM08");
}

using LoadingTest = test::PanelBench;

TEST_F(LoadingTest, FromCreationUntilTheFirstFillingChangesAreNoEdits) {
    A1ctrlUser& panel = prepare(setRow);
    on<ui::TextBox>(panel, "T_T01_v").setText("x");
    EXPECT_FALSE(panel.WhInfo.IsChange);
    panel.setCtrl(test::itemsOf(setRow));
    on<ui::TextBox>(panel, "T_T01_v").setText("y");
    EXPECT_TRUE(panel.WhInfo.IsChange);
}

TEST_F(LoadingTest, ANewPanelHasAnEmptyContextAndNoGridRecordset) {
    const A1ctrlUser& panel = window.place(setRow);
    EXPECT_EQ(panel.WhInfo.id, 0);
    EXPECT_EQ(panel.WhInfo.TabId, "");
    EXPECT_FALSE(panel.WhInfo.IsMult);
    EXPECT_FALSE(panel.WhInfo.IsChange);
    EXPECT_EQ(panel.AdodcRs(), nullptr);
    EXPECT_EQ(panel.FieldItems->Count(), 0);
}

TEST_F(LoadingTest, ANewPanelAsksNothingOfTheDatabase) {
    window.place(setRow);
    EXPECT_TRUE(db.statements().empty());
}

TEST_F(LoadingTest, ResizingRaisesTheEventAndMovesNothing) {
    A1ctrlUser& panel = window.place(setRow);
    int resized = 0;
    panel.Resize.connect([&] { ++resized; });
    panel.moveTo({100, 200, 3000, 4000});
    EXPECT_EQ(resized, 1);
    for (const auto& control : panel.Controls())
        EXPECT_EQ(control->geometry(), ui::Rect{}) << control->name();
}

TEST_F(LoadingTest, EveryWidgetIsWrapped) {
    A1ctrlUser& panel = open(setRow);
    panel.FieldItems->Item("T_T02").FldExplain = "写明情况";
    person.show(window, [&](ui::Form& form) {
        form.moveFocus(*panel.find("T_T02_v"));
        EXPECT_EQ(on<ui::Label>(panel, "labExplain").Caption(), "写明情况");
        form.moveFocus(*panel.find("T_T03_v"));
        EXPECT_EQ(on<ui::Label>(panel, "labExplain").Caption(), "");
    });
}

TEST(DesignPropertiesTest, AreZeroAndDisabledAtFirst) {
    const DesignProperties design;
    EXPECT_EQ(design.BackColor(), 0U);
    EXPECT_EQ(design.ForeColor(), 0U);
    EXPECT_FALSE(design.Enabled());
    EXPECT_EQ(design.Font(), "");
    EXPECT_EQ(design.BackStyle(), 0);
    EXPECT_EQ(design.BorderStyle(), 0);
}

TEST(DesignPropertiesTest, AWriterStoresAndSignalsUnderThePropertysOwnName) {
    DesignProperties design;
    std::vector<std::string> signalled;
    design.PropertyChanged.connect([&](std::string_view name) { signalled.emplace_back(name); });
    design.setBackColor(1);
    design.setForeColor(2);
    design.setEnabled(true);
    design.setFont("宋体");
    design.setBackStyle(3);
    design.setBorderStyle(4);
    EXPECT_EQ(design.BackColor(), 1U);
    EXPECT_EQ(design.ForeColor(), 2U);
    EXPECT_TRUE(design.Enabled());
    EXPECT_EQ(design.Font(), "宋体");
    EXPECT_EQ(design.BackStyle(), 3);
    EXPECT_EQ(design.BorderStyle(), 4);
    EXPECT_EQ(signalled, (std::vector<std::string>{"BackColor", "ForeColor", "Enabled", "Font", "BackStyle",
                                                   "BorderStyle"}));
}

TEST(DesignPropertiesTest, TheStoreHoldsTheSixNames) {
    DesignProperties design;
    design.setFont("宋体");
    PropertyBag bag;
    design.writeTo(bag);
    std::vector<std::string> names;
    for (const auto& [name, value] : bag)
        names.push_back(name);
    EXPECT_EQ(names, (std::vector<std::string>{"BackColor", "BackStyle", "BorderStyle", "Enabled", "Font",
                                               "ForeColor"}));
    EXPECT_EQ(bag.at("Font"), data::Value("宋体"));
}

TEST(DesignPropertiesTest, WhatWasWrittenIsReadBack) {
    DesignProperties design;
    design.setBackColor(ui::colour::window);
    design.setForeColor(255);
    design.setEnabled(true);
    design.setFont("黑体");
    design.setBackStyle(1);
    design.setBorderStyle(-1);
    PropertyBag bag;
    design.writeTo(bag);
    DesignProperties read;
    read.readFrom(bag);
    EXPECT_EQ(read.BackColor(), ui::colour::window);
    EXPECT_EQ(read.ForeColor(), 255U);
    EXPECT_TRUE(read.Enabled());
    EXPECT_EQ(read.Font(), "黑体");
    EXPECT_EQ(read.BackStyle(), 1);
    EXPECT_EQ(read.BorderStyle(), -1);
}

TEST(DesignPropertiesTest, AnEmptyStoreGivesTheValuesOfANewPanel) {
    DesignProperties design;
    design.setEnabled(true);
    design.setBackStyle(5);
    design.readFrom({});
    EXPECT_FALSE(design.Enabled());
    EXPECT_EQ(design.BackStyle(), 0);
}

} // namespace
} // namespace quillmere

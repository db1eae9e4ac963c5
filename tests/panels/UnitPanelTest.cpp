#include "panels/FilterTable.h"
#include "panels/PanelBench.h"

#include <gtest/gtest.h>

namespace quillmere {
namespace {

class UnitPanelTest : public testing::Test {
protected:
    template <class Work>
    void on(A1ctrlUser& panel, Work work) {
        panel.FieldItems = test::itemsOf(panel.row());
        panels.person.show(panels.window, [&](ui::Form& form) { work(form); });
    }

    ui::TextBox& box(const A1ctrlUser& panel, std::string_view name) {
        return dynamic_cast<ui::TextBox&>(*panel.find(name));
    }

    test::CreatedPanels panels;
    A1ctrlUser& unit = panels.create("A1ctrlUserB01");

    const test::Filters unitFilters{
        {"B01_B0106_v", test::digits}, {"B01_B0109_v", test::phone},  {"B01_B0112_v", test::phone},
        {"B01_B0113_v", test::digits}, {"B01_B0114_v", test::digits}, {"B01_B0115_v", test::digits},
        {"B01_B0116_v", test::digits}, {"B01_B0117_v", test::digits}, {"B01_B0118_v", test::digits},
        {"B01_B0119_v", test::digits}, {"B01_B0120_v", test::digits}, {"B01_B0121_v", test::digits},
    };
};

TEST_F(UnitPanelTest, TheseFieldsFilterKeysAndNoOthers) {
    EXPECT_EQ(test::filtersOf(unit), unitFilters);
    EXPECT_EQ(test::filtersOf(panels.create("A1ctrlUserB02")),
              (test::Filters{{"B02_B0202_v", test::decimal}}));
}

TEST_F(UnitPanelTest, BackspaceWorksInEveryFilteredField) {
    on(unit, [&](ui::Form& form) {
        for (const auto& [name, accepted] : unitFilters) {
            form.moveFocus(box(unit, name));
            test::typeText(form, "12");
            form.pressKey({ui::key::Backspace, 0});
            EXPECT_EQ(box(unit, name).Text(), "1") << name;
        }
    });
}

TEST_F(UnitPanelTest, TheDesignedLimitOfFourGivesWayToTheCatalogue) {
    EXPECT_EQ(box(unit, "B01_B0117_v").MaxLength(), 4U);
    auto items = test::itemsOf(unit.row());
    items->Item("B01_B0117").FieldType = "Varchar";
    items->Item("B01_B0117").FieldLength = "6";
    unit.setCtrl(items);
    EXPECT_EQ(box(unit, "B01_B0117_v").MaxLength(), 6U);
    items->Item("B01_B0117").FieldType = "int";
    unit.setCtrl(items);
    EXPECT_EQ(box(unit, "B01_B0117_v").MaxLength(), 0U);
}

TEST_F(UnitPanelTest, SixHundredCharactersAreACaptionOnly) {
    ui::TextBox& results = box(unit, "B01_B0122_v");
    EXPECT_NE(unit.find("B01_B0122_c")->property("Caption").value().find("（限600字）"), std::string::npos);
    EXPECT_EQ(results.MaxLength(), 0U);
    EXPECT_TRUE(results.MultiLine());
    constexpr int tooMany = 601;
    std::string text;
    for (int i = 0; i < tooMany; ++i)
        text += "字";
    on(unit, [&](ui::Form& form) {
        form.moveFocus(results);
        form.paste(text);
    });
    EXPECT_EQ(results.Text(), text);
}

TEST_F(UnitPanelTest, HeadCountsAreNotRelatedToOneAnother) {
    on(unit, [&](ui::Form& form) {
        form.moveFocus(box(unit, "B01_B0113_v"));
        test::typeText(form, "5");
        form.moveFocus(box(unit, "B01_B0116_v"));
        test::typeText(form, "9");
        EXPECT_TRUE(form.moveFocus(box(unit, "B01_B0117_v")));
    });
    EXPECT_EQ(box(unit, "B01_B0113_v").Text(), "5");
    EXPECT_EQ(box(unit, "B01_B0116_v").Text(), "9");
    EXPECT_EQ(box(unit, "B01_B0118_v").Text(), "");
}

TEST_F(UnitPanelTest, HasNoButtonAndNoPhotoOfItsOwn) {
    for (const auto& control : unit.Controls()) {
        EXPECT_NE(control->kind(), ui::Kind::CommandButton) << control->name();
        EXPECT_NE(control->kind(), ui::Kind::Image) << control->name();
    }
}

} // namespace
} // namespace quillmere

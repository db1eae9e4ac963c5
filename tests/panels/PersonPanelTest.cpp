#include "panels/FilterTable.h"
#include "panels/PanelBench.h"
#include "support/BrokenFiles.h"
#include "support/PhotoFolder.h"

#include "platform/ui/CommandButton.h"
#include "platform/ui/Image.h"

#include <gtest/gtest.h>

#include <set>

namespace quillmere {
namespace {

/// The panel of a specialist, and that of a skilled worker, with the person p1.
class PersonPanelTest : public testing::TestWithParam<const char*> {
protected:
    PersonPanelTest() {
        panels.window.folder = folder.name();
        panel.WhInfo.personID = "p1";
        panel.WhInfo.TabId = "A01";
        panel.FieldItems = test::itemsOf(panel.row());
        image().setView(&view);
    }
    ~PersonPanelTest() override { image().setView(nullptr); }

    ui::Image& image() { return dynamic_cast<ui::Image&>(*panel.find("imgPerson")); }
    [[nodiscard]] std::string photoPath() const { return folder.name() + "\\p1.jpg"; }

    /// Works on the panel while its window is open.
    template <class Work>
    void work(Work work) {
        panels.person.show(panels.window, [&](ui::Form&) { work(); });
    }
    void pressUpdate() { panels.window.click(*panel.find("cmdAddPhoto")); }
    /// What a person does in the preview dialog when it opens next.
    void inPreview(std::string chosen, std::string button) {
        if (!chosen.empty()) panels.person.chooseFile(chosen);
        panels.person.onForm(
            [chosen, button](ui::Form& form) {
                if (!chosen.empty()) form.click(test::controlOf<ui::CommandButton>(form, "cmdSelPic"));
                form.click(test::controlOf<ui::CommandButton>(form, button));
            },
            "frmPicturePreview");
    }

    struct View final : ui::ControlView {
        void changed(ui::Property property) override { loads += property == ui::Property::Picture ? 1 : 0; }
        int loads = 0;
    } view;

    test::PhotoFolder folder;
    test::CreatedPanels panels;
    A1ctrlUser& panel = panels.create(GetParam());
    const std::string oldPicture = test::jpegOf(1000);
    const std::string newPicture = test::jpegOf(2000);
};

INSTANTIATE_TEST_SUITE_P(Panels, PersonPanelTest, testing::Values("A1ctrlUserA01", "A1ctrlUserG01"),
                         [](const auto& name) { return std::string(name.param); });

TEST_P(PersonPanelTest, HasAPhotoItsCaptionItsButtonAndAFileDialog) {
    EXPECT_EQ(panel.find("imgPerson")->kind(), ui::Kind::Image);
    EXPECT_EQ(test::controlOf<ui::Label>(panels.window, "lblPhoto").Caption(), "照 片");
    EXPECT_EQ(test::controlOf<ui::CommandButton>(panels.window, "cmdAddPhoto").Caption(), "更新照片");
    EXPECT_EQ(panel.find("dlgSelPic")->kind(), ui::Kind::CommonDialog);
}

TEST_P(PersonPanelTest, TheContactFieldsFilterKeys) {
    test::Filters expected{{"A01_A0125_v", test::digits},
                           {"A01_A0126_v", test::phone},
                           {"A01_A0127_v", test::phone},
                           {"A01_A0128_v", test::phone}};
    if (GetParam() == std::string("A1ctrlUserG01")) expected["A01_A0141_v"] = test::decimal;
    EXPECT_EQ(test::filtersOf(panel), expected);
}

TEST_P(PersonPanelTest, EnterInThePostalCodeMovesToTheNextField) {
    work([&] {
        panels.window.moveFocus(*panel.find("A01_A0125_v"));
        panels.window.pressKey({ui::key::Enter, 0});
        EXPECT_EQ(panels.window.ActiveControl(), panel.find("A01_A0116_v"));
    });
}

TEST_P(PersonPanelTest, PasteIsNotFiltered) {
    work([&] {
        panels.window.moveFocus(*panel.find("A01_A0125_v"));
        test::typeText(panels.window, "1a");
        panels.window.paste("0-x");
    });
    EXPECT_EQ(panel.find("A01_A0125_v")->property("Text"), "10-x");
}

TEST_P(PersonPanelTest, SetCtrlShowsThePhotoOfThePerson) {
    folder.write("p1.jpg", oldPicture);
    panel.setCtrl(panel.FieldItems);
    EXPECT_EQ(image().Picture(), photoPath());
}

TEST_P(PersonPanelTest, WithoutAPhotoFileSetCtrlLeavesThePictureThatTheImageHolds) {
    folder.write("p1.jpg", oldPicture);
    panel.setCtrl(panel.FieldItems);
    panel.WhInfo.personID = "p2";
    panel.setCtrl(panel.FieldItems);
    EXPECT_EQ(image().Picture(), photoPath());
    EXPECT_EQ(view.loads, 1);
}

TEST_P(PersonPanelTest, ABrokenPhotoDoesNotKeepTheRecordFromBeingShown) {
    folder.write("p1.jpg", "no image");
    image().setPicture("earlier");
    panel.WhInfo.IsChange = true;
    panel.FieldItems->Item("A01_A0118").Dmcod = "化学";
    panel.setCtrl(panel.FieldItems);
    EXPECT_EQ(image().Picture(), "earlier");
    EXPECT_EQ(panel.find("A01_A0118_v")->property("Text"), "化学");
    EXPECT_FALSE(panel.WhInfo.IsChange);
    EXPECT_TRUE(panels.person.boxes().empty());
}

TEST_P(PersonPanelTest, WithoutAnIdentityTheButtonRefuses) {
    panel.WhInfo.personID.clear();
    panels.person.expectBox("请选择需要更新照片的人员！", "更新照片");
    work([&] { pressUpdate(); });
    EXPECT_EQ(panels.person.opened(), std::vector<std::string>{"window"});
    EXPECT_EQ(panels.person.boxes()[0].icon, ui::Icon::Information);
    EXPECT_EQ(panels.person.boxes()[0].buttons, ui::Buttons::Ok);
}

TEST_P(PersonPanelTest, ANewPhotoShowsAtOnceAndIsNoEdit) {
    inPreview(folder.write("new.jpg", newPicture), "cmdOK");
    work([&] { pressUpdate(); });
    EXPECT_EQ(folder.content("p1.jpg"), newPicture);
    EXPECT_EQ(image().Picture(), photoPath());
    EXPECT_EQ(view.loads, 1);
    EXPECT_FALSE(panel.WhInfo.IsChange);
    EXPECT_TRUE(panels.person.boxes().empty());
}

TEST_P(PersonPanelTest, AReplacedPhotoIsLoadedAnewUnderItsPath) {
    folder.write("p1.jpg", oldPicture);
    panel.setCtrl(panel.FieldItems);
    panels.person.expectBox("确定替换现有照片文件吗？", "照片预览", ui::Answer::Yes);
    inPreview(folder.write("new.jpg", newPicture), "cmdOK");
    work([&] { pressUpdate(); });
    EXPECT_EQ(folder.content("p1.jpg"), newPicture);
    EXPECT_EQ(view.loads, 2);
}

TEST_P(PersonPanelTest, OkWithoutAChoiceLoadsTheImageAnew) {
    folder.write("p1.jpg", oldPicture);
    inPreview("", "cmdOK");
    work([&] { pressUpdate(); });
    EXPECT_EQ(view.loads, 1);
    EXPECT_EQ(image().Picture(), photoPath());
}

TEST_P(PersonPanelTest, ACancelledPreviewLeavesTheImage) {
    folder.write("p1.jpg", oldPicture);
    inPreview("", "cmdCancel");
    work([&] { pressUpdate(); });
    EXPECT_EQ(view.loads, 0);
}

TEST_P(PersonPanelTest, AFailureIsToldAndTheRecordIsAsItWas) {
    panel.setCtrl(panel.FieldItems);
    work([&] {
        panels.window.moveFocus(*panel.find("A01_A0118_v"));
        test::typeText(panels.window, "化学");
        panels.person.expectBox("更新照片出错！原因是：文件未找到", "更新照片");
        panels.person.chooseFile(folder.name() + "/missing.jpg");
        panels.person.onForm(
            [](ui::Form& form) { form.click(test::controlOf<ui::CommandButton>(form, "cmdSelPic")); });
        pressUpdate();
    });
    EXPECT_EQ(panels.person.boxes()[0].icon, ui::Icon::Information);
    EXPECT_EQ(panels.person.boxes()[0].buttons, ui::Buttons::Ok);
    EXPECT_EQ(panel.find("A01_A0118_v")->property("Text"), "化学");
    EXPECT_TRUE(panel.WhInfo.IsChange);
}

TEST_P(PersonPanelTest, APhotoThatIsNoImageIsAFailureWhenItIsLoadedAnew) {
    folder.write("p1.jpg", "no image");
    inPreview("", "cmdOK");
    panels.person.expectBox("更新照片出错！原因是：无效图片", "更新照片");
    work([&] { pressUpdate(); });
    EXPECT_EQ(image().Picture(), "");
}

TEST(PersonPanelsTest, TheDesignedLengthOfTheNameGivesWayToTheCatalogue) {
    test::CreatedPanels panels;
    A1ctrlUser& panel = panels.create("A1ctrlUserA01");
    auto& name = dynamic_cast<ui::TextBox&>(*panel.find("A01_A0101_v"));
    EXPECT_EQ(name.MaxLength(), 10U);
    auto items = test::itemsOf(panel.row());
    items->Item("A01_A0101").FieldType = "Varchar";
    items->Item("A01_A0101").FieldLength = "30";
    panel.setCtrl(items);
    EXPECT_EQ(name.MaxLength(), 30U);
}

TEST(PersonPanelsTest, TheFieldSetsDifferInTheseFields) {
    const auto codes = [](std::string_view name) {
        std::set<std::string_view> all;
        for (const FieldRow& field : findPanel(name)->fields)
            all.insert(field.code);
        return all;
    };
    const auto only = [&](std::string_view one, std::string_view other) {
        std::set<std::string_view> left = codes(one);
        for (const std::string_view code : codes(other))
            left.erase(code);
        return left;
    };
    EXPECT_EQ(
        only("A1ctrlUserA01", "A1ctrlUserG01"),
        (std::set<std::string_view>{"A0119", "A0120", "A0122", "A0131", "A0132", "A0133", "A0134", "A0135"}));
    EXPECT_EQ(only("A1ctrlUserG01", "A1ctrlUserA01"),
              (std::set<std::string_view>{"A0139", "A0140", "A0141", "A0142", "A0143", "A0144", "A0145",
                                          "A0146", "A0147", "A0148"}));
}

TEST(PersonPanelsTest, OneColumnIsNamedTwoWaysInTwoPlaces) {
    test::CreatedPanels panels;
    const auto caption = [&](const char* panel, const char* name) {
        return panels.create(panel).find(name)->property("Caption").value();
    };
    EXPECT_EQ(caption("A1ctrlUserA01", "A01_A0115_c"), "参加工作时间");
    EXPECT_EQ(caption("A1ctrlUserG01", "A01_A0115_c"), "参加工作日期");
    EXPECT_EQ(caption("A1ctrlUserA01", "A01_A0138_c"), "职    级");
    EXPECT_EQ(caption("A1ctrlUserG01", "A01_A0138_c"), "职务级别");
}

} // namespace
} // namespace quillmere

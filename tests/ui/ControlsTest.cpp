#include "platform/ui/CheckBox.h"
#include "platform/ui/CommandButton.h"
#include "platform/ui/CoolBar.h"
#include "platform/ui/Frame.h"
#include "platform/ui/Image.h"
#include "platform/ui/Label.h"
#include "platform/ui/Skin.h"
#include "platform/ui/TabStrip.h"
#include "support/FailureNumber.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace quillmere::ui {
namespace {

class Recorder final : public ControlView {
public:
    void changed(Property property) override { seen.push_back(property); }
    std::vector<Property> seen;
};

class ControlsTest : public testing::Test {
protected:
    void onOpenForm(const std::function<void()>& work) {
        person.show(form, [&](Form&) { work(); });
    }

    int clicksOf(Control& control) {
        int& count = counts.emplace_back(0);
        control.Click.connect([&count] { ++count; });
        return static_cast<int>(counts.size()) - 1;
    }

    test::ScriptedPerson person;
    Form form{"frmControls", "controls"};
    std::deque<int> counts;
};

TEST_F(ControlsTest, APersonsClickTogglesACheckBox) {
    auto& check = form.add<CheckBox>("check");
    const auto clicks = static_cast<std::size_t>(clicksOf(check));
    onOpenForm([&] {
        EXPECT_TRUE(form.click(check));
        EXPECT_EQ(check.Value(), 1);
        EXPECT_TRUE(form.click(check));
        EXPECT_EQ(check.Value(), 0);
        form.pressKey({key::Space});
        EXPECT_EQ(check.Value(), 1);
        form.typeCharacter(U'x');
        EXPECT_EQ(check.Value(), 1);
        EXPECT_EQ(counts[clicks], 3);
    });
}

TEST_F(ControlsTest, ADisabledCheckBoxIsNotToggledByAPerson) {
    auto& check = form.add<CheckBox>("check");
    const auto clicks = static_cast<std::size_t>(clicksOf(check));
    check.setEnabled(false);
    onOpenForm([&] {
        EXPECT_FALSE(form.click(check));
        EXPECT_FALSE(form.doubleClick(check));
        EXPECT_EQ(check.Value(), 0);
        EXPECT_EQ(counts[clicks], 0);
    });
}

TEST_F(ControlsTest, ACheckBoxSetByProgramRaisesClickOnlyWhenTheValueDiffers) {
    CheckBox check("check");
    const auto clicks = static_cast<std::size_t>(clicksOf(check));
    check.setValue(0);
    check.setValue(1);
    check.setValue(1);
    EXPECT_EQ(counts[clicks], 1);
    EXPECT_EQ(check.property("value"), "1");
}

TEST_F(ControlsTest, AButtonIsClickedByMouseSpaceAndEnter) {
    auto& button = form.add<CommandButton>("cmdOk", "&OK");
    const auto clicks = static_cast<std::size_t>(clicksOf(button));
    onOpenForm([&] {
        form.click(button);
        form.pressKey({key::Space});
        form.pressKey({key::Enter});
        form.typeCharacter(U'o');
        EXPECT_EQ(counts[clicks], 3);
    });
    EXPECT_EQ(button.property("Caption"), "&OK");
}

TEST_F(ControlsTest, APageThatIsNotThereIsOutOfRange) {
    TabStrip tabs("tabs", {"one", "two"});
    for (const int page : {-1, 2})
        EXPECT_EQ(failureOf([&] { tabs.setTab(page); }), number(Failure::SubscriptOutOfRange)) << page;
    EXPECT_EQ(tabs.Tab(), 0);
}

TEST_F(ControlsTest, TurningAPageRaisesClickOnlyWhenItDiffers) {
    TabStrip tabs("tabs", {"one", "two"});
    const auto clicks = static_cast<std::size_t>(clicksOf(tabs));
    tabs.setTab(0);
    tabs.setTab(1);
    tabs.setTab(1);
    EXPECT_EQ(counts[clicks], 1);
    EXPECT_EQ(tabs.property("tab"), "1");
}

TEST_F(ControlsTest, LeftAndRightTurnThePagesWithinTheStrip) {
    auto& tabs = form.add<TabStrip>("tabs", std::vector<std::string>{"one", "two"});
    onOpenForm([&] {
        form.moveFocus(tabs);
        for (const auto& [code, page] : std::vector<std::pair<int, int>>{
                 {key::Left, 0}, {key::Right, 1}, {key::Right, 1}, {key::Left, 0}}) {
            form.pressKey({code});
            EXPECT_EQ(tabs.Tab(), page);
        }
    });
}

TEST_F(ControlsTest, OnlyThePageInFrontIsOnShow) {
    auto& tabs = form.add<TabStrip>("tabs", std::vector<std::string>{"one", "two"});
    auto& back = form.add<Label>("back");
    back.setContainer(&tabs);
    back.setPage(1);
    EXPECT_FALSE(back.isShown());
    EXPECT_TRUE(back.Visible());
    tabs.setTab(1);
    EXPECT_TRUE(back.isShown());
}

TEST_F(ControlsTest, AnImageIsToldAnewUnderThePathThatItShows) {
    Image image("photo");
    Recorder view;
    image.setView(&view);
    image.setPicture("photos/1.jpg");
    image.setPicture("photos/1.jpg");
    EXPECT_EQ(view.seen, (std::vector<Property>{Property::Picture, Property::Picture}));
    EXPECT_EQ(image.property("picture"), "photos/1.jpg");
}

TEST_F(ControlsTest, ALabelTellsItsViewOfWhatDiffers) {
    Label label("label", "caption");
    Recorder view;
    label.setView(&view);
    label.setCaption("caption");
    label.setFontBold(false);
    EXPECT_TRUE(view.seen.empty());
    label.setCaption("other");
    label.setFontBold(true);
    EXPECT_EQ(view.seen, (std::vector<Property>{Property::Caption, Property::Font}));
}

TEST_F(ControlsTest, LabelPropertiesAreRead) {
    Label label("label", "姓名");
    label.setFontBold(true);
    label.setFontName("SimSun");
    EXPECT_EQ(label.property("CAPTION"), "姓名");
    EXPECT_EQ(label.property("FontBold"), "true");
    EXPECT_EQ(label.property("FontName"), "SimSun");
}

TEST_F(ControlsTest, PropertiesThatEveryControlHasAreReadWithoutRegardToCase) {
    struct Row {
        const char* name;
        const char* value;
    };
    Frame frame("frame", "group");
    frame.setGeometry({1, 2, 3, 4});
    frame.setTabIndex(7);
    frame.setTabStop(false);
    frame.setEnabled(false);
    frame.setToolTip("tip");
    for (const Row& row :
         {Row{"name", "frame"}, Row{"VISIBLE", "true"}, Row{"Enabled", "false"}, Row{"TabIndex", "7"},
          Row{"TabStop", "false"}, Row{"ToolTipText", "tip"}, Row{"Left", "1"}, Row{"Top", "2"},
          Row{"Width", "3"}, Row{"Height", "4"}, Row{"Caption", "group"}}) {
        EXPECT_EQ(frame.property(row.name), row.value) << row.name;
    }
    EXPECT_EQ(frame.property("Colour"), std::nullopt);
    EXPECT_EQ(frame.property(""), std::nullopt);
}

TEST_F(ControlsTest, EveryKindHasItsName) {
    EXPECT_EQ(nameOf(Kind::Form), "Form");
    EXPECT_EQ(nameOf(Kind::MaskEdBox), "MaskEdBox");
    EXPECT_EQ(nameOf(Kind::CommandButton), "CommandButton");
    EXPECT_EQ(nameOf(Kind::VerticalMenu), "VerticalMenu");
    EXPECT_EQ(nameOf(Kind::Skin), "Skin");
    EXPECT_EQ(nameOf(Kind::CommonDialog), "CommonDialog");
}

TEST_F(ControlsTest, ABandsControlStandsInTheBar) {
    auto& bar = form.add<CoolBar>("bar");
    auto& label = form.add<Label>("label");
    bar.addBand(label);
    bar.setMinHeight(0, 600);
    ASSERT_EQ(bar.bands().size(), 1U);
    EXPECT_EQ(bar.bands()[0].child, &label);
    EXPECT_EQ(bar.bands()[0].minHeight, 600);
    EXPECT_EQ(label.Container(), &bar);
}

TEST_F(ControlsTest, ASkinIsAppliedWhenTold) {
    Skin skin("Skin1");
    Recorder view;
    skin.setView(&view);
    skin.LoadSkin("blue.skn");
    EXPECT_FALSE(skin.isApplied());
    skin.ApplySkin();
    EXPECT_TRUE(skin.isApplied());
    EXPECT_EQ(skin.path(), "blue.skn");
    EXPECT_EQ(view.seen.size(), 1U);
    EXPECT_FALSE(skin.Visible());
}

TEST_F(ControlsTest, TheMouseIsFeltOnlyWhereItCanReach) {
    auto& label = form.add<Label>("label");
    std::vector<int> moves;
    label.MouseMove.connect([&](int button) { moves.push_back(button); });
    onOpenForm([&] {
        form.moveMouse(label, mouse::Left);
        label.setEnabled(false);
        form.moveMouse(label);
        label.setEnabled(true);
        label.setVisible(false);
        form.moveMouse(label);
        EXPECT_EQ(moves, std::vector<int>{mouse::Left});
    });
}

// A click runs handlers that may take its control away.

TEST_F(ControlsTest, NobodyClicksAClosedForm) {
    auto& label = form.add<Label>("label");
    auto& button = form.add<CommandButton>("button");
    const auto clicks = static_cast<std::size_t>(clicksOf(label));
    EXPECT_FALSE(form.click(label));
    EXPECT_FALSE(form.click(button));
    EXPECT_EQ(counts[clicks], 0);
}

TEST_F(ControlsTest, AButtonThatIsDisabledAsItGetsTheFocusIsNotClicked) {
    auto& button = form.add<CommandButton>("button");
    int events = 0;
    button.GotFocus.connect([&] { button.setEnabled(false); });
    button.MouseDown.connect([&](int) { ++events; });
    button.Click.connect([&] { ++events; });
    onOpenForm([&] {
        EXPECT_FALSE(form.click(button));
        EXPECT_EQ(events, 0);
    });
}

TEST_F(ControlsTest, AControlThatItsMouseDownDisablesIsNotClicked) {
    auto& button = form.add<CommandButton>("button");
    int events = 0;
    button.MouseDown.connect([&](int) { button.setEnabled(false); });
    button.Click.connect([&] { ++events; });
    button.DblClick.connect([&] { ++events; });
    onOpenForm([&] {
        form.doubleClick(button);
        EXPECT_EQ(events, 0);
    });
}

TEST_F(ControlsTest, AButtonWhoseClickClosesTheFormIsNotDoubleClicked) {
    auto& button = form.add<CommandButton>("button");
    int doubles = 0;
    button.Click.connect([&] { form.unload(); });
    button.DblClick.connect([&] { ++doubles; });
    onOpenForm([&] {
        form.doubleClick(button);
        EXPECT_EQ(doubles, 0);
    });
}

} // namespace
} // namespace quillmere::ui

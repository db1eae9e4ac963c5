#include "platform/ui/CoolBar.h"
#include "platform/ui/Form.h"
#include "platform/ui/Frame.h"
#include "platform/ui/Image.h"
#include "platform/ui/Label.h"
#include "platform/ui/Skin.h"
#include "platform/ui/TabStrip.h"
#include "platform/ui/TextBox.h"
#include "platform/ui/UserControl.h"
#include "support/FailureNumber.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere::ui {
namespace {

class Recorder : public ControlView {
public:
    explicit Recorder(Control& control) { control.setView(this); }
    void changed(Property property) override { seen.push_back(property); }
    std::vector<Property> seen;
};

using Seen = std::vector<Property>;

TEST(ControlTest, TheViewIsToldOfWhatDiffersOnly) {
    TextBox box("box");
    Recorder recorder(box);
    for (int i = 0; i < 2; ++i) {
        box.setVisible(false);
        box.setEnabled(false);
        box.setGeometry({1, 2, 3, 4});
        box.setLocked(true);
        box.setMaxLength(5);
        box.setBackColor(colour::codedField);
        box.setText("张");
    }
    EXPECT_EQ(recorder.seen, (Seen{Property::Visible, Property::Enabled, Property::Geometry, Property::Locked,
                                   Property::MaxLength, Property::BackColor, Property::Text}));
}

TEST(ControlTest, TheViewIsToldBeforeTheHandlersOfChange) {
    TextBox box("box");
    Recorder recorder(box);
    std::size_t told = 0;
    box.Change.connect([&] { told = recorder.seen.size(); });
    box.setText("张");
    EXPECT_EQ(told, 1U);
}

TEST(ControlTest, EveryPropertyIsNamedWithoutRegardToCase) {
    Label label("lab", "姓名");
    label.setFontBold(true);
    label.setToolTip("提示");
    label.setGeometry({10, 20, 300, 400});
    const std::vector<std::pair<const char*, const char*>> rows{
        {"NAME", "lab"},     {"caption", "姓名"}, {"FontBold", "true"}, {"Visible", "true"},
        {"Enabled", "true"}, {"TabIndex", "0"},   {"TabStop", "true"},  {"tooltiptext", "提示"},
        {"Left", "10"},      {"Top", "20"},       {"Width", "300"},     {"Height", "400"}};
    for (const auto& [name, value] : rows)
        EXPECT_EQ(label.property(name), value) << name;
    EXPECT_EQ(label.property("Text"), std::nullopt);
}

TEST(ControlTest, WhatItsContainersAreDeniedItIsDenied) {
    Form form("frm", "frm");
    auto& outer = form.add<Frame>("outer");
    auto& inner = form.add<Frame>("inner");
    auto& box = form.add<TextBox>("box");
    inner.setContainer(&outer);
    box.setContainer(&inner);
    EXPECT_TRUE(box.isShown());
    outer.setVisible(false);
    EXPECT_FALSE(box.isShown());
    EXPECT_TRUE(box.Visible());
    outer.setVisible(true);
    outer.setEnabled(false);
    EXPECT_FALSE(box.isUsable());
    EXPECT_TRUE(box.Enabled());
    EXPECT_FALSE(box.canTakeFocus());
}

TEST(ControlTest, WhatAPanelIsDeniedItsControlsAreDenied) {
    Form form("frm", "frm");
    auto& panel = form.add<UserControl>("panel");
    auto& box = panel.add<TextBox>("box");
    EXPECT_FALSE(box.isShown());
    panel.setVisible(true);
    EXPECT_TRUE(box.isShown());
    EXPECT_EQ(box.form(), &form);
    panel.setEnabled(false);
    EXPECT_FALSE(box.isUsable());
}

TEST(ControlTest, APictureIsShownAnewAlsoUnderTheSamePath) {
    Image image("img");
    Recorder recorder(image);
    image.setPicture("a.jpg");
    image.setPicture("a.jpg");
    EXPECT_EQ(recorder.seen, (Seen{Property::Picture, Property::Picture}));
    EXPECT_EQ(image.Picture(), "a.jpg");
}

TEST(ControlTest, TabsTurnByProgramAndByKeysAndTellOnlyARealTurn) {
    test::ScriptedPerson person;
    Form form("frm", "frm");
    auto& tabs = form.add<TabStrip>("tabs", std::vector<std::string>{"一", "二"});
    int turns = 0;
    tabs.Click.connect([&] { ++turns; });
    tabs.setTab(1);
    tabs.setTab(1);
    EXPECT_EQ(turns, 1);
    EXPECT_EQ(failureOf([&] { tabs.setTab(2); }), number(Failure::SubscriptOutOfRange));
    EXPECT_EQ(failureOf([&] { tabs.setTab(-1); }), number(Failure::SubscriptOutOfRange));
    person.show(form, [&](Form&) {
        form.moveFocus(tabs);
        form.pressKey({key::Right, shift::None});
        EXPECT_EQ(tabs.Tab(), 1);
        form.pressKey({key::Left, shift::None});
        EXPECT_EQ(tabs.Tab(), 0);
        form.pressKey({key::Left, shift::None});
        EXPECT_EQ(tabs.Tab(), 0);
        EXPECT_EQ(turns, 2);
    });
}

TEST(ControlTest, ABandOfACoolBarHoldsItsChild) {
    Form form("frm", "frm");
    auto& bar = form.add<CoolBar>("cool");
    auto& box = form.add<TextBox>("box");
    bar.addBand(box);
    bar.setMinHeight(0, 600);
    EXPECT_EQ(box.Container(), &bar);
    EXPECT_EQ(bar.bands()[0].child, &box);
    EXPECT_EQ(bar.bands()[0].minHeight, 600);
}

TEST(ControlTest, WhatStoodInARemovedFrameStandsOnTheForm) {
    Form form("frm", "frm");
    auto& frame = form.add<Frame>("frame");
    auto& box = form.add<TextBox>("box");
    box.setContainer(&frame);
    form.remove(0);
    EXPECT_EQ(box.Container(), nullptr);
}

TEST(ControlTest, ASkinIsInvisibleAndAppliedWhenTold) {
    Skin skin("skin");
    EXPECT_FALSE(skin.Visible());
    skin.LoadSkin("a.skn");
    EXPECT_FALSE(skin.isApplied());
    skin.ApplySkin();
    EXPECT_TRUE(skin.isApplied());
    EXPECT_EQ(skin.path(), "a.skn");
}

} // namespace
} // namespace quillmere::ui

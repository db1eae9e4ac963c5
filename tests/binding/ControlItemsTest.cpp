#include "binding/ControlItems.h"

#include "platform/ui/CheckBox.h"
#include "platform/ui/CommandButton.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/Frame.h"
#include "platform/ui/Image.h"
#include "platform/ui/Label.h"
#include "platform/ui/MaskEdBox.h"
#include "platform/ui/TextBox.h"
#include "support/FailureNumber.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillmere {
namespace {

using Names = std::vector<std::string>;
using ui::key::Enter;

/// A window with a widget of each kind, all wrapped, that keeps what the collection raises.
class ControlItemsTest : public testing::Test {
protected:
    ControlItemsTest()
        : label(form.add<ui::Label>("label"))
        , box(form.add<ui::TextBox>("box"))
        , masked(form.add<ui::MaskEdBox>("masked", "####-##", "yyyy-MM"))
        , next(form.add<ui::TextBox>("next"))
        , check(form.add<ui::CheckBox>("check"))
        , last(form.add<ui::TextBox>("last"))
        , image(form.add<ui::Image>("image"))
        , button(form.add<ui::CommandButton>("button", "b"))
        , frame(form.add<ui::Frame>("frame", "f"))
        , line(form.add<ui::Line>("line"))
        , grid(form.add<ui::DataGrid>("grid")) {
        for (const auto& control : form.Controls())
            items.AddControl(*control);
        items.Change.connect([this](ui::Control& control) { note("Change", control); });
        items.GotFocus.connect([this](ui::Control& control) { note("GotFocus", control); });
        items.LostFocus.connect([this](ui::Control& control) { note("LostFocus", control); });
        items.DblClick.connect([this](ui::Control& control) { note("DblClick", control); });
        items.MouseMove.connect([this](ui::Control& control) { note("MouseMove", control); });
        items.ColResize.connect([this](ui::Control& control) { note("ColResize", control); });
        items.LButtonDown.connect(
            [this](ui::Control& control, PropertyBag&) { note("LButtonDown", control); });
        items.RButtonDown.connect(
            [this](ui::Control& control, PropertyBag&) { note("RButtonDown", control); });
        items.Validate.connect([this](ui::Control& control, bool& cancel) {
            note("Validate", control);
            cancel = cancel || refuse;
        });
    }

    void note(const std::string& event, const ui::Control& control) {
        raised.push_back(event + " " + control.name());
    }

    ControlItem& itemOf(const ui::Control& control) {
        for (int i = 1; i <= items.Count(); ++i)
            if (items.Item(i).Ctrl == &control) return items.Item(i);
        throw std::logic_error("not wrapped");
    }

    ui::Form form{"form", "form"};
    ui::Label& label;
    ui::TextBox& box;
    ui::MaskEdBox& masked;
    ui::TextBox& next;
    ui::CheckBox& check;
    ui::TextBox& last;
    ui::Image& image;
    ui::CommandButton& button;
    ui::Frame& frame;
    ui::Line& line;
    ui::DataGrid& grid;
    ControlItems items;
    Names raised;
    bool refuse = false;
    test::ScriptedPerson person;
};

TEST_F(ControlItemsTest, EachKindHasItsSlot) {
    EXPECT_EQ(itemOf(box).ControlKind, "controlt");
    EXPECT_EQ(itemOf(label).ControlKind, "controll");
    EXPECT_EQ(itemOf(check).ControlKind, "controlc");
    EXPECT_EQ(itemOf(image).ControlKind, "controli");
    EXPECT_EQ(itemOf(masked).ControlKind, "controlMe");
}

TEST_F(ControlItemsTest, AWidgetOfAnUnlistedKindIsAcceptedWithoutASlot) {
    EXPECT_EQ(itemOf(frame).ControlKind, "");
    EXPECT_EQ(itemOf(line).ControlKind, "");
    EXPECT_EQ(itemOf(button).ControlKind, "");
    EXPECT_EQ(itemOf(grid).ControlKind, "");
}

TEST_F(ControlItemsTest, NoEventArrivesFromAWidgetOfAnUnlistedKind) {
    for (ui::Control* control : {static_cast<ui::Control*>(&frame), static_cast<ui::Control*>(&line),
                                 static_cast<ui::Control*>(&button), static_cast<ui::Control*>(&grid)}) {
        control->MouseDown.raise(ui::mouse::Left);
        control->MouseMove.raise(0);
        control->DblClick.raise();
        control->GotFocus.raise();
        control->LostFocus.raise();
        bool cancel = false;
        control->Validate.raise(cancel);
    }
    EXPECT_EQ(raised, Names{});
}

TEST_F(ControlItemsTest, ATextBoxHandsOnAllItsEvents) {
    box.setText("a");
    box.GotFocus.raise();
    box.LostFocus.raise();
    box.DblClick.raise();
    box.MouseMove.raise(0);
    box.MouseDown.raise(ui::mouse::Left);
    box.MouseDown.raise(ui::mouse::Right);
    EXPECT_EQ(raised, (Names{"Change box", "GotFocus box", "LostFocus box", "DblClick box", "MouseMove box",
                             "LButtonDown box", "RButtonDown box"}));
}

TEST_F(ControlItemsTest, AMaskedBoxHandsOnChangeAndFocusButNoMouse) {
    masked.setText("1990-01");
    masked.GotFocus.raise();
    masked.LostFocus.raise();
    masked.DblClick.raise();
    masked.MouseMove.raise(0);
    masked.MouseDown.raise(ui::mouse::Left);
    EXPECT_EQ(raised, (Names{"Change masked", "GotFocus masked", "LostFocus masked"}));
}

TEST_F(ControlItemsTest, ACheckBoxHandsOnTheMouseOnly) {
    check.setValue(1);
    check.GotFocus.raise();
    check.LostFocus.raise();
    check.MouseMove.raise(0);
    check.MouseDown.raise(ui::mouse::Left);
    EXPECT_EQ(raised, (Names{"MouseMove check", "LButtonDown check"}));
}

TEST_F(ControlItemsTest, LabelsAndImagesHandOnAMouseDownOnly) {
    for (ui::Control* control : {static_cast<ui::Control*>(&label), static_cast<ui::Control*>(&image)}) {
        control->MouseMove.raise(0);
        control->DblClick.raise();
        control->MouseDown.raise(ui::mouse::Left);
    }
    EXPECT_EQ(raised, (Names{"LButtonDown label", "LButtonDown image"}));
}

TEST_F(ControlItemsTest, ARightButtonPressOnALabelRaisesRButtonDown) {
    person.show(form, [&](ui::Form& open) { open.click(label, ui::mouse::Right); });
    EXPECT_EQ(raised, (Names{"RButtonDown label"}));
}

TEST_F(ControlItemsTest, AMiddleButtonPressRaisesNothing) {
    person.show(form, [&](ui::Form& open) { open.click(label, ui::mouse::Middle); });
    EXPECT_EQ(raised, Names{});
}

TEST_F(ControlItemsTest, AMouseDownBringsTheItemsOwnProperties) {
    itemOf(label).Properties["tip"] = "bag";
    std::string seen;
    items.LButtonDown.connect([&](ui::Control&, PropertyBag& bag) { seen = bag.at("tip").toText(); });
    label.MouseDown.raise(ui::mouse::Left);
    EXPECT_EQ(seen, "bag");
}

TEST_F(ControlItemsTest, ARefusedValidateKeepsTheFocusInTheWidget) {
    person.show(form, [&](ui::Form& open) {
        open.moveFocus(box);
        refuse = true;
        EXPECT_FALSE(open.moveFocus(next));
        EXPECT_TRUE(box.hasFocus());
        refuse = false;
        EXPECT_TRUE(open.moveFocus(next));
    });
}

TEST_F(ControlItemsTest, EnterInAMaskedBoxMovesOnAndSelectsAllOfTheNextWidget) {
    next.setText("content");
    person.show(form, [&](ui::Form& open) {
        open.moveFocus(masked);
        open.pressKey({Enter});
        EXPECT_TRUE(next.hasFocus());
        EXPECT_EQ(next.SelStart(), 0U);
        EXPECT_EQ(next.SelLength(), 7U);
    });
    EXPECT_EQ(masked.Text(), "____-__");
    EXPECT_EQ(next.Text(), "content");
}

TEST_F(ControlItemsTest, EnterInAMaskedBoxIsSwallowed) {
    char32_t character = Enter;
    masked.KeyPress.raise(character);
    EXPECT_EQ(character, U'\0');
}

TEST_F(ControlItemsTest, EnterInACheckBoxMovesOnAndLeavesItsValue) {
    last.setText("abc");
    person.show(form, [&](ui::Form& open) {
        open.moveFocus(check);
        open.pressKey({Enter});
        EXPECT_TRUE(last.hasFocus());
        EXPECT_EQ(last.SelLength(), 3U);
    });
    EXPECT_EQ(check.Value(), 0);
}

TEST_F(ControlItemsTest, EnterInAPlainTextBoxDoesNotMoveTheFocus) {
    box.setText("abc");
    person.show(form, [&](ui::Form& open) {
        open.moveFocus(box);
        open.pressKey({Enter});
        EXPECT_TRUE(box.hasFocus());
    });
    EXPECT_EQ(box.Text(), "abc");
}

TEST_F(ControlItemsTest, EveryOtherKeyPassesUnchanged) {
    for (const char32_t key : {U'1', U'\b', U'汉', U'\t'}) {
        char32_t character = key;
        masked.KeyPress.raise(character);
        check.KeyPress.raise(character);
        EXPECT_EQ(character, key);
    }
}

TEST_F(ControlItemsTest, AnUnknownEventNameRaisesNothing) {
    items.RaiseFor(itemOf(box), itemOf(box).Properties, "Resize");
    items.RaiseFor(itemOf(box), itemOf(box).Properties, "change");
    items.RaiseFor(itemOf(box), itemOf(box).Properties, "");
    EXPECT_EQ(raised, Names{});
}

TEST_F(ControlItemsTest, AColumnResizeCanBeRaisedByNameAlone) {
    items.RaiseFor(itemOf(grid), itemOf(grid).Properties, "ColResize");
    EXPECT_EQ(raised, (Names{"ColResize grid"}));
}

TEST_F(ControlItemsTest, AnItemWithoutAWidgetRaisesNothing) {
    ControlItem empty;
    bool cancel = false;
    items.RaiseFor(empty, empty.Properties, "Change");
    items.RaiseValidate(empty, cancel);
    EXPECT_EQ(raised, Names{});
}

TEST_F(ControlItemsTest, ItemsStandInTheOrderOfAddingFromOne) {
    EXPECT_EQ(items.Count(), 11);
    EXPECT_EQ(items.Item(1).Ctrl, &label);
    EXPECT_EQ(items.Item(11).Ctrl, &grid);
    EXPECT_EQ(failureOf([&] { (void)items.Item(0); }), number(Failure::SubscriptOutOfRange));
    EXPECT_EQ(failureOf([&] { (void)items.Item(12); }), number(Failure::SubscriptOutOfRange));
}

TEST_F(ControlItemsTest, ARemovedItemHearsItsWidgetNoMore) {
    items.remove(2);
    EXPECT_EQ(items.Count(), 10);
    box.setText("a");
    EXPECT_EQ(raised, Names{});
    EXPECT_EQ(failureOf([&] { items.remove(11); }), number(Failure::SubscriptOutOfRange));
}

TEST_F(ControlItemsTest, ClearingEndsAllListening) {
    items.Clear();
    EXPECT_EQ(items.Count(), 0);
    box.setText("a");
    label.MouseDown.raise(ui::mouse::Left);
    EXPECT_EQ(raised, Names{});
}

TEST_F(ControlItemsTest, AHandlerMayClearTheItemsFromInsideAnEvent) {
    items.Change.connect([&](ui::Control&) { items.Clear(); });
    box.setText("a");
    box.setText("b");
    EXPECT_EQ(raised, (Names{"Change box"}));
}

TEST_F(ControlItemsTest, AnItemGivenToAnotherWidgetHearsThatOneOnly) {
    ControlItem& item = itemOf(box);
    item.Init(label, items);
    box.setText("a");
    label.MouseDown.raise(ui::mouse::Left);
    EXPECT_EQ(item.ControlKind, "controll");
    EXPECT_EQ(raised, (Names{"LButtonDown label", "LButtonDown label"}));
}

TEST_F(ControlItemsTest, APropertyReadsAsStoredElseAsTheDefaultElseAsEmpty) {
    ControlItem& item = itemOf(box);
    item.Properties["width"] = 12;
    EXPECT_EQ(item.GetProperty("width"), data::Value(12));
    EXPECT_EQ(item.GetProperty("width", data::Value(7)), data::Value(12));
    EXPECT_EQ(item.GetProperty("height", data::Value(7)), data::Value(7));
    EXPECT_TRUE(item.GetProperty("height").isNull());
}

} // namespace
} // namespace quillmere

#include "ui/FocusBench.h"

namespace quillmere::ui {
namespace {

using FocusOrderTest = FocusBench;

TEST_F(FocusOrderTest, AMoveAsksThenLeavesThenArrives) {
    work([&] {
        EXPECT_TRUE(form.moveFocus(b));
        EXPECT_EQ(log, moveFromAToB);
    });
}

TEST_F(FocusOrderTest, TheFirstFocusOfAFormAsksNobody) {
    person.show(form, [&](Form&) {
        EXPECT_EQ(form.ActiveControl(), nullptr);
        EXPECT_TRUE(form.moveFocus(a));
        EXPECT_EQ(log, Texts{"got a"});
    });
}

TEST_F(FocusOrderTest, ARefusalKeepsTheFocus) {
    refusing = "a";
    work([&] {
        EXPECT_FALSE(form.moveFocus(b));
        EXPECT_EQ(log, Texts{"validate a"});
        EXPECT_EQ(focused(), "a");
        EXPECT_EQ(tabs(1), Texts{"a"});
        b.SetFocus();
        EXPECT_EQ(focused(), "a");
    });
}

TEST_F(FocusOrderTest, AMoveToWhereTheFocusIsRaisesNothing) {
    work([&] {
        EXPECT_TRUE(form.moveFocus(a));
        EXPECT_EQ(log, Texts{});
    });
}

TEST_F(FocusOrderTest, SetFocusByProgramAsksToo) {
    work([&] {
        b.SetFocus();
        EXPECT_EQ(log, moveFromAToB);
        EXPECT_TRUE(b.hasFocus());
        EXPECT_FALSE(a.hasFocus());
    });
}

TEST_F(FocusOrderTest, SetFocusOnAFormThatIsNotOpenDoesNothing) {
    a.SetFocus();
    EXPECT_EQ(focused(), "");
    EXPECT_EQ(log, Texts{});
}

TEST_F(FocusOrderTest, AHandlerOfValidateCannotMoveTheFocusItself) {
    a.Validate.connect([this](bool&) { c.SetFocus(); });
    work([&] {
        EXPECT_TRUE(form.moveFocus(b));
        EXPECT_EQ(log, moveFromAToB);
    });
}

TEST_F(FocusOrderTest, AHandlerOfLostFocusHasTheLastWord) {
    a.LostFocus.connect([this] { c.SetFocus(); });
    work([&] {
        EXPECT_FALSE(form.moveFocus(b));
        EXPECT_EQ(focused(), "c");
        EXPECT_EQ(log, (Texts{"validate a", "lost a", "got c"}));
    });
}

TEST_F(FocusOrderTest, AHandlerOfValidateThatDisablesTheTargetKeepsTheFocus) {
    a.Validate.connect([this](bool&) { b.setEnabled(false); });
    work([&] {
        EXPECT_FALSE(form.moveFocus(b));
        EXPECT_EQ(log, Texts{"validate a"});
        EXPECT_EQ(focused(), "a");
    });
}

TEST_F(FocusOrderTest, AFormThatClosesWhileTheFocusLeavesGivesItToNobody) {
    a.LostFocus.connect([this] { form.unload(); });
    work([&] {
        EXPECT_FALSE(form.moveFocus(b));
        EXPECT_EQ(log, (Texts{"validate a", "lost a"}));
    });
}

TEST_F(FocusOrderTest, AFailureInValidateKeepsTheFocusAndLaterMovesWork) {
    bool fails = true;
    a.Validate.connect([&](bool&) {
        if (std::exchange(fails, false)) throw Error(Failure::Overflow);
    });
    work([&] {
        EXPECT_THROW(form.moveFocus(b), Error);
        EXPECT_EQ(focused(), "a");
        EXPECT_TRUE(form.moveFocus(b));
        EXPECT_EQ(focused(), "b");
    });
}

TEST_F(FocusOrderTest, AFormThatIsShownAgainBeginsWithoutFocus) {
    work([&] { EXPECT_EQ(focused(), "a"); });
    person.show(form, [&](Form&) {
        EXPECT_EQ(focused(), "");
        log.clear();
        EXPECT_TRUE(form.moveFocus(a));
        EXPECT_EQ(log, Texts{"got a"});
    });
}

} // namespace
} // namespace quillmere::ui

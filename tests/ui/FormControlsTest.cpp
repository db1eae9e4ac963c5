#include "ui/FormBench.h"

#include "platform/ui/TextBox.h"
#include "platform/ui/UserControl.h"

namespace quillmere::ui {
namespace {

using FormControlsTest = FormBench;

// ---- controls that leave

TEST_F(FormControlsTest, ARemovedControlLivesUntilTheOperationEnds) {
    bool alive = false;
    auto& box = form.add<MortalBox>("box", alive);
    bool removed = false;
    bool aliveInside = false;
    box.KeyPress.connect([&](char32_t&) {
        form.remove(0);
        removed = box.isRemoved();
        aliveInside = alive;
    });
    person.show(form, [&](Form&) {
        form.moveFocus(box);
        form.typeCharacter(U'x');
        EXPECT_TRUE(removed);
        EXPECT_TRUE(aliveInside);
        EXPECT_FALSE(alive);
        EXPECT_EQ(form.Count(), 0U);
    });
}

TEST_F(FormControlsTest, OutsideAnyOperationARemovedControlIsDestroyedAtOnce) {
    bool alive = false;
    form.add<MortalBox>("box", alive);
    form.removeAll();
    EXPECT_FALSE(alive);
}

TEST_F(FormControlsTest, ARemovedControlIsDestroyedAlsoWhenTheOperationFails) {
    bool alive = false;
    auto& box = form.add<MortalBox>("box", alive);
    box.Change.connect([&] {
        form.remove(0);
        throw Error(Failure::Overflow);
    });
    person.show(form, [&](Form&) {
        EXPECT_THROW(form.perform([&] { box.setText("x"); }), Error);
        EXPECT_FALSE(alive);
    });
}

TEST_F(FormControlsTest, WhatStandsOnARemovedPanelIsRemovedToo) {
    auto& panel = form.add<UserControl>("panel");
    auto& inner = panel.add<TextBox>("inner");
    panel.setVisible(true);
    EXPECT_FALSE(inner.isRemoved());
    form.perform([&] {
        form.remove(0);
        EXPECT_TRUE(inner.isRemoved());
        EXPECT_FALSE(inner.isShown());
    });
}

// ---- finding

TEST_F(FormControlsTest, ControlsAreFoundByNameWithoutRegardToCase) {
    auto& own = form.add<TextBox>("txtName");
    auto& panel = form.add<UserControl>("panel");
    auto& inner = panel.add<TextBox>("A02_A0201_v");
    EXPECT_EQ(form.find("TXTNAME"), &own);
    EXPECT_EQ(form.find("A02_A0201_v"), nullptr);
    EXPECT_EQ(form.findDeep("a02_a0201_V"), &inner);
    EXPECT_EQ(form.findDeep("nothing"), nullptr);
}

TEST_F(FormControlsTest, TabIndexIsThePlaceInTheListOfControls) {
    EXPECT_EQ(form.add<TextBox>("a").TabIndex(), 0);
    EXPECT_EQ(form.add<TextBox>("b").TabIndex(), 1);
}

} // namespace
} // namespace quillmere::ui

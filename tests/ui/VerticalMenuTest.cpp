#include "platform/ui/VerticalMenu.h"

#include "platform/ui/Form.h"
#include "support/FailureNumber.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmere::ui {
namespace {

class VerticalMenuTest : public testing::Test {
protected:
    VerticalMenuTest() {
        menu.addGroup("基本情况", 2);
        menu.addGroup("项目", 0);
        menu.addGroup("验收", 1);
        menu.ItemClick.connect([this](int& group, int& item) {
            clicked += std::to_string(group) + "." + std::to_string(item) + " open " +
                       std::to_string(menu.OpenGroup()) + ";";
        });
    }

    test::ScriptedPerson person;
    Form form{"frm", "frm"};
    VerticalMenu& menu = form.add<VerticalMenu>("menu");
    std::string clicked;
};

TEST_F(VerticalMenuTest, BeginsAtTheFirstGroupAndItem) {
    EXPECT_EQ(menu.AddressedGroup(), 1);
    EXPECT_EQ(menu.AddressedItem(), 1);
    EXPECT_EQ(menu.OpenGroup(), 1);
    ASSERT_EQ(menu.groups().size(), 3U);
    EXPECT_EQ(menu.groups()[0].caption, "基本情况");
    EXPECT_EQ(menu.groups()[0].items.size(), 2U);
}

TEST_F(VerticalMenuTest, ItemOperationsReferToTheAddressedItem) {
    menu.setAddressedGroup(3);
    menu.setItemCount(2);
    menu.setAddressedItem(2);
    menu.setItemCaption("验收报告");
    menu.setItemKey("P09");
    EXPECT_EQ(menu.ItemCaption(), "验收报告");
    EXPECT_EQ(menu.ItemKey(), "P09");
    EXPECT_EQ(menu.groups()[2].items[1].caption, "验收报告");
    EXPECT_EQ(menu.groups()[2].items[0].caption, "");
}

TEST_F(VerticalMenuTest, AddressingRaisesNoEventAndOpensNothing) {
    menu.setAddressedGroup(3);
    menu.setAddressedItem(1);
    EXPECT_EQ(clicked, "");
    EXPECT_EQ(menu.OpenGroup(), 1);
}

TEST_F(VerticalMenuTest, AnAddressWithoutAnItemIsAFailure) {
    const auto missing = number(Failure::SubscriptOutOfRange);
    menu.setAddressedGroup(2);
    EXPECT_EQ(failureOf([&] { static_cast<void>(menu.ItemCaption()); }), missing);
    EXPECT_EQ(failureOf([&] { menu.setItemCaption("x"); }), missing);
    menu.setAddressedGroup(4);
    EXPECT_EQ(failureOf([&] { static_cast<void>(menu.ItemKey()); }), missing);
    EXPECT_EQ(failureOf([&] { menu.setItemKey("x"); }), missing);
    EXPECT_EQ(failureOf([&] { menu.setItemCount(1); }), missing);
    menu.setAddressedGroup(1);
    menu.setAddressedItem(0);
    EXPECT_EQ(failureOf([&] { static_cast<void>(menu.ItemCaption()); }), missing);
}

TEST_F(VerticalMenuTest, AClickOpensTheGroupBeforeItsEvent) {
    person.show(form, [&](Form&) {
        EXPECT_TRUE(menu.clickItem(3, 1));
        EXPECT_EQ(clicked, "3.1 open 3;");
    });
}

TEST_F(VerticalMenuTest, AClickDoesNotChangeTheAddress) {
    person.show(form, [&](Form&) {
        EXPECT_TRUE(menu.clickItem(3, 1));
        EXPECT_EQ(menu.AddressedGroup(), 1);
    });
}

TEST_F(VerticalMenuTest, WhatIsNotThereOrDisabledIsNotClicked) {
    person.show(form, [&](Form&) {
        EXPECT_FALSE(menu.clickItem(2, 1));
        EXPECT_FALSE(menu.clickItem(0, 1));
        EXPECT_FALSE(menu.clickItem(4, 1));
        EXPECT_FALSE(menu.clickItem(1, 3));
        menu.setEnabled(false);
        EXPECT_FALSE(menu.clickItem(1, 1));
        EXPECT_EQ(clicked, "");
        EXPECT_EQ(menu.OpenGroup(), 1);
    });
}

TEST_F(VerticalMenuTest, OpeningAGroupClicksNothing) {
    menu.openByPerson(3);
    EXPECT_EQ(menu.OpenGroup(), 3);
    EXPECT_EQ(clicked, "");
}

TEST(VerticalMenuAloneTest, OutsideAFormItIsNotClicked) {
    VerticalMenu menu("VMenu1");
    menu.addGroup("基本信息", 1);
    EXPECT_FALSE(menu.clickItem(1, 1));
}

} // namespace
} // namespace quillmere::ui

#include "metadata/Globals.h"
#include "shell/RegisterTest.h"

#include <gtest/gtest.h>

// A run with an OperationType that stands for nothing.

namespace quillmere::test {

namespace {

using OtherOperationTypes = RegisterTest;

TEST_F(OtherOperationTypes, OperationType7OpensTheWindowOnAMenuWithoutAPanel) {
    addPerson(somePerson, "秦志明");
    run(7, somePerson, 6, [](frmPersonWh& shown) {
        EXPECT_TRUE(shown.isOpen());
        EXPECT_EQ(gZZType, 6);
        ASSERT_EQ(shown.menu().groups().size(), 5U);
        EXPECT_EQ(shown.menu().groups()[0].items[0].key, "B01");
        EXPECT_EQ(shown.GetUserCtrl(), nullptr);
        EXPECT_EQ(shown.nameLabel().Caption(), "");
        EXPECT_EQ(shown.menu().OpenGroup(), 1);
    });
    EXPECT_EQ(journal.count("SQL select a0101 from a01"), 0);
    EXPECT_EQ(journal.count("OpenGroup"), 0);
    EXPECT_EQ(journal.count("name "), 0);
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(OtherOperationTypes, OperationType7LeavesTheToolbarWithoutEffect) {
    run(7, somePerson, 2, [this](frmPersonWh& shown) {
        journal.clear();
        for (const char* key : {"Add", "Delete", "Save", "Cancel", "Exit"}) {
            press(key);
            EXPECT_TRUE(shown.isOpen()) << key;
        }
        EXPECT_TRUE(journal.lines().empty());
        EXPECT_EQ(shown.GetUserCtrl(), nullptr);
    });
}

TEST_F(OtherOperationTypes, OperationType7LeavesTheWorkStateOfTheRunBefore) {
    addPerson(somePerson, "秦志明");
    run(3, somePerson, 2);
    run(7, somePerson, 2, [](frmPersonWh& shown) { EXPECT_EQ(shown.WhState(), 3); });
    run(-1, somePerson, 2, [](frmPersonWh& shown) { EXPECT_EQ(shown.WhState(), 3); });
}

TEST_F(OtherOperationTypes, OperationType7AppliesTheSkinAllTheSame) {
    IUserCtrl host;
    give(host, 7, somePerson);
    host.setSkinPath("blue.skn");
    run(host);
    EXPECT_EQ(journal.count("skin blue.skn"), 1);
}

TEST_F(OtherOperationTypes, OperationType7GivesTheMenuAPersonMayThenUse) {
    addPerson(somePerson, "秦志明");
    run(4, somePerson, 2);
    run(7, somePerson, 2, [](frmPersonWh& shown) {
        EXPECT_TRUE(shown.menu().clickItem(1, 2));
        EXPECT_EQ(panelName(), "A1ctrlUserA02");
    });
}

} // namespace

} // namespace quillmere::test

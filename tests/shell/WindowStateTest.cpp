#include "panels/A1ctrlUser.h"
#include "platform/ui/TextBox.h"
#include "shell/RegisterTest.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <algorithm>

// What the window locks and opens as items are loaded and records begun.

namespace quillmere::test {

namespace {

constexpr auto addMode = "当前操作：增加";
constexpr auto modifyMode = "当前操作：修改";

class WindowState : public RegisterTest {
protected:
    WindowState() { addPerson(somePerson, "秦志明"); }

    void addRecord(int number) {
        database.run("insert into A02 (A00,A0299,A0201,A0203) values ('" + id + "'," +
                     std::to_string(number) + ",'200" + std::to_string(number) + "-07','第" +
                     std::to_string(number) + "')");
    }
    /// Opens the person's item of a table in group 1.
    void open(frmPersonWh& shown, std::string_view table) {
        const auto& items = shown.menu().groups()[0].items;
        const auto found = std::ranges::find(items, table, &ui::VerticalMenu::Item::key);
        ASSERT_NE(found, items.end());
        ASSERT_TRUE(shown.menu().clickItem(1, static_cast<int>(found - items.begin()) + 1));
    }
    void expectState(bool frame, bool addAndDelete, const std::string& operation) {
        EXPECT_EQ(window().panelFrame().Enabled(), frame);
        EXPECT_EQ(enabled("Add"), addAndDelete);
        EXPECT_EQ(enabled("Delete"), addAndDelete);
        EXPECT_TRUE(enabled("Save"));
        EXPECT_TRUE(enabled("Cancel"));
        EXPECT_TRUE(enabled("Exit"));
        EXPECT_EQ(labOpt(), operation);
    }

    const std::string id{somePerson};
};

TEST_F(WindowState, APersonThatIsStoredCanBeEditedAddedToAndDeleted) {
    run(4, id, 2, [this](frmPersonWh&) { expectState(true, true, modifyMode); });
}

TEST_F(WindowState, AMultiRecordSetWithRowsCanBeEditedAddedToAndDeleted) {
    addRecord(1);
    run(4, id, 2, [this](frmPersonWh& shown) {
        open(shown, "A02");
        expectState(true, true, modifyMode);
    });
}

TEST_F(WindowState, AnotherSingleRecordSetWithItsRowCanBeEditedOnly) {
    database.run("insert into A10 (A00,A1001) values ('" + id + "','创新')");
    run(4, id, 2, [this](frmPersonWh& shown) {
        open(shown, "A10");
        expectState(true, false, modifyMode);
    });
}

TEST_F(WindowState, AMultiRecordSetWithoutRowsOpensAsANewRecord) {
    run(4, id, 2, [this](frmPersonWh& shown) {
        open(shown, "A02");
        expectState(true, false, addMode);
        EXPECT_EQ(shown.GetUserCtrl()->WhInfo.id, 1);
    });
}

TEST_F(WindowState, ASingleRecordSetWithoutItsRowOpensAsANewRecord) {
    run(4, id, 2, [this](frmPersonWh& shown) {
        open(shown, "A10");
        expectState(true, false, addMode);
        EXPECT_EQ(shown.GetUserCtrl()->WhInfo.id, 0);
    });
}

TEST_F(WindowState, ASetWithoutRowsIsLockedBeforeItIsOpenedAsANewRecord) {
    run(4, id, 2, [this](frmPersonWh& shown) {
        journal.clear();
        open(shown, "A02");
        auto lines = journal.lines();
        std::erase_if(lines, [](const std::string& line) {
            return line.starts_with("SQL ") || line.starts_with("OpenGroup ");
        });
        EXPECT_EQ(lines,
                  (std::vector<std::string>{"- A1ctrlUserA01", "+ A1ctrlUserA02", "frmCtrl off", "frmCtrl on",
                                            "toolbar Add off, Delete on", "toolbar Add off, Delete off"}));
    });
}

TEST_F(WindowState, AfterAddTheRecordCanBeEditedOnly) {
    addRecord(1);
    run(4, id, 2, [this](frmPersonWh& shown) {
        open(shown, "A02");
        press("Add");
        expectState(true, false, addMode);
        EXPECT_EQ(shown.GetUserCtrl()->WhInfo.id, 2);
    });
}

TEST_F(WindowState, CancelWithWorkState0EnablesAdd) {
    run(0, "{8A1C44E0-5B7D-4F13-9A60-27D1C3E5F901}", 2, [this](frmPersonWh& shown) {
        EXPECT_EQ(shown.WhState(), 0);
        expectState(true, false, addMode);
        press("Cancel");
        EXPECT_TRUE(enabled("Add"));
        EXPECT_FALSE(enabled("Delete"));
        EXPECT_EQ(labOpt(), addMode);
    });
}

TEST_F(WindowState, ClickingTheItemOnShowRebuildsThePanelAndLosesTheGridsPosition) {
    addRecord(1);
    addRecord(2);
    run(4, id, 2, [this](frmPersonWh& shown) {
        open(shown, "A02");
        shown.GetUserCtrl()->AdodcRs()->MoveNext();
        EXPECT_EQ(shown.GetUserCtrl()->WhInfo.id, 2);
        journal.clear();
        open(shown, "A02");
        EXPECT_EQ(shown.GetUserCtrl()->AdodcRs()->AbsolutePosition(), 1);
        EXPECT_EQ(shown.GetUserCtrl()->WhInfo.id, 1);
        EXPECT_EQ(journal.count("- A1ctrlUserA02"), 1);
        EXPECT_EQ(journal.count("+ A1ctrlUserA02"), 1);
    });
}

TEST_F(WindowState, ArrivingAtARowEnablesAddAndDeleteAgain) {
    addRecord(1);
    addRecord(2);
    run(4, id, 2, [this](frmPersonWh& shown) {
        open(shown, "A02");
        press("Add");
        EXPECT_FALSE(enabled("Add"));
        shown.GetUserCtrl()->AdodcRs()->MoveNext();
        EXPECT_TRUE(enabled("Add"));
        EXPECT_TRUE(enabled("Delete"));
    });
}

// A new person.

TEST_F(WindowState, ANewPersonTakesAFreshIdentityAndClearsTheWindow) {
    run(4, id, 2, [this](frmPersonWh& shown) {
        const int item = shown.menu().AddressedItem();
        journal.clear();
        press("Add");
        const std::string made = shown.personID;
        EXPECT_EQ(journal.lines(),
                  (std::vector<std::string>{
                      "toolbar Add off, Delete on", "toolbar Add off, Delete off", "SQL  delete from S_GUID ",
                      "SQL insert into S_GUID(val) values('a')", "SQL select id from S_GUID where val='a'",
                      "SQL  select * from s_infoitem  where tblname ='A01'",
                      "SQL select * from A01 where a00 ='" + made + "'", "name "}));
        EXPECT_EQ(made.size(), 36U);
        EXPECT_NE(made, id);
        const cWhInfo& info = shown.GetUserCtrl()->WhInfo;
        EXPECT_EQ(info.TabId, "A01");
        EXPECT_EQ(info.id, 0);
        EXPECT_EQ(info.personID, made);
        EXPECT_FALSE(info.IsMult);
        EXPECT_FALSE(info.IsChange);
        EXPECT_EQ(shown.WhState(), 0);
        EXPECT_EQ(shown.nameLabel().Caption(), "");
        EXPECT_EQ(shown.menu().AddressedItem(), item);
        EXPECT_EQ(controlOf<ui::TextBox>(shown, "A01_A0101_v").Text(), "");
        EXPECT_EQ(shown.GetUserCtrl()->FieldItems->Item("A01_A0101").code(), "");
        expectState(true, false, addMode);
    });
}

TEST_F(WindowState, ANewPersonUnlocksARecordThatTheStageHadLocked) {
    database.run("update P01 set P0123='02'");
    run(4, id, 2, [this](frmPersonWh& shown) {
        EXPECT_FALSE(shown.panelFrame().Enabled());
        press("Add");
        EXPECT_TRUE(shown.panelFrame().Enabled());
    });
}

TEST_F(WindowState, ANewPersonLeavesTheOldOneAsStored) {
    run(4, id, 2, [](frmPersonWh&) { press("Add"); });
    EXPECT_EQ(database.column("select A00 from A01"), std::vector<std::string>{id});
}

TEST_F(WindowState, ANewPersonWithoutAnIdentityToBeHadFails) {
    database.failing().failOn("select id from S_GUID", "断线");
    EXPECT_EQ(failureOf([&] { run(4, id, 2, [](frmPersonWh&) { press("Add"); }); }),
              number(Failure::StatementFailed));
    EXPECT_EQ(window().personID, id);
}

// Failures while a panel is loaded.

TEST_F(WindowState, AnItemWithoutAPanelClassFailsWithTheOldPanelGone) {
    database.run(
        "insert into s_infotable (tblname,tbldesc,OtherProp,Property) values ('F99','无此面板',1,true)");
    database.run("create table F99 (A00 text)");
    std::string gone;
    EXPECT_EQ(failureOf([&] {
                  run(4, id, 2, [&](frmPersonWh& shown) {
                      journal.clear();
                      try {
                          shown.menu().clickItem(5, 1);
                      } catch (...) {
                          gone = panelName();
                          throw;
                      }
                  });
              }),
              number(Failure::CannotCreateObject));
    EXPECT_EQ(gone, "(none)");
    EXPECT_EQ(journal.count("- A1ctrlUserA01"), 1);
    EXPECT_EQ(journal.count("+ A1ctrlUser"), 0);
    EXPECT_FALSE(window().isLoaded());
}

TEST_F(WindowState, AFailureInTheMiddleOfAClickLeavesNoTraceInTheNextRun) {
    addRecord(1);
    std::vector<std::string> whole;
    run(4, id, 2, [&](frmPersonWh& shown) {
        journal.clear();
        open(shown, "A02");
        whole = journal.statements();
    });
    ASSERT_GT(whole.size(), 8U);
    for (std::size_t k = 1; k <= whole.size(); ++k) {
        EXPECT_EQ(failureOf([&] {
                      run(4, id, 2, [&](frmPersonWh& shown) {
                          journal.clear();
                          database.failing().failAfter(static_cast<int>(k), "断线");
                          open(shown, "A02");
                      });
                  }),
                  number(Failure::StatementFailed))
            << whole[k - 1];
        EXPECT_EQ(journal.statements().back(), whole[k - 1]);
        EXPECT_FALSE(window().isLoaded());
        EXPECT_EQ(window().GetUserCtrl(), nullptr);
    }
    EXPECT_TRUE(person.boxes().empty());
    run(4, id, 2, [&](frmPersonWh& shown) {
        journal.clear();
        open(shown, "A02");
        EXPECT_EQ(journal.statements(), whole);
    });
}

} // namespace

} // namespace quillmere::test

#include "panels/A1ctrlUser.h"
#include "platform/ui/TextBox.h"
#include "shell/RegisterTest.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <algorithm>

// How the window prepares a panel for a table.

namespace quillmere::test {

namespace {

using Names = std::vector<std::string>;

class Preparing : public RegisterTest {
protected:
    Preparing() {
        addPerson(somePerson, "秦志明");
        addRecord(1, "2001-07");
        addRecord(2, "1996-09");
        database.run("insert into A10 (A00,A1001) values ('" + id + "','创新')");
    }

    void addRecord(int number, const std::string& from) {
        database.run("insert into A02 (A00,A0299,A0201,A0203) values ('" + id + "'," +
                     std::to_string(number) + ",'" + from + "','第" + std::to_string(number) + "')");
    }
    /// Loads the panel of a table on the open window and prepares it.
    void prepare(const std::string& table, std::int32_t state,
                 const std::function<void(A1ctrlUser& panel)>& check) {
        run(4, id, 2, [&](frmPersonWh& shown) {
            A1ctrlUser& panel = shown.LoadUCtrl("A1ctrlUser" + table);
            panel.WhInfo.id = 77;
            journal.clear();
            shown.IniUCtrl(panel, table, state);
            check(panel);
        });
    }
    [[nodiscard]] std::string orderQuery(const std::string& table) const {
        return "select iif(orderfield is null , '',orderfield) as orderfield  from s_infotable where tblname "
               "='" +
               table + "'  and orderfield<>'' ";
    }
    [[nodiscard]] std::ptrdiff_t placeOf(std::string_view beginning) const {
        const auto said = journal.statements();
        const auto found =
            std::ranges::find_if(said, [&](const std::string& sql) { return sql.starts_with(beginning); });
        return found == said.end() ? -1 : found - said.begin();
    }

    const std::string id{somePerson};
};

TEST_F(Preparing, ASingleRecordSetTakesFourStatementsInOrder) {
    prepare("A10", 4, [this](A1ctrlUser& panel) {
        EXPECT_EQ(journal.statements(),
                  (Names{" select Property from s_infotable  where TblName ='A10'",
                         " select * from s_infoitem  where tblname ='A10'",
                         "select * from A10 where a00 ='" + id + "'", orderQuery("A10")}));
        EXPECT_EQ(panel.WhInfo.personID, id);
        EXPECT_EQ(panel.WhInfo.TabId, "A10");
        EXPECT_FALSE(panel.WhInfo.IsMult);
        EXPECT_EQ(panel.WhInfo.id, 0);
        EXPECT_EQ(panel.WhInfo.FldOrder, "");
        EXPECT_FALSE(panel.WhInfo.IsChange);
    });
}

TEST_F(Preparing, ASingleRecordSetFillsTheWidgetsAndKeepsTheCollection) {
    prepare("A10", 4, [](A1ctrlUser& panel) {
        ASSERT_NE(panel.FieldItems, nullptr);
        EXPECT_EQ(panel.FieldItems->Item("A10_A1001").code(), "创新");
        EXPECT_EQ(controlOf<ui::TextBox>(window(), "A10_A1001_v").Text(), "创新");
        EXPECT_EQ(panel.AdodcRs(), nullptr);
    });
}

TEST_F(Preparing, AMultiRecordSetReadsTheOrderBeforeTheGrid) {
    prepare("A02", 4, [this](A1ctrlUser& panel) {
        EXPECT_TRUE(panel.WhInfo.IsMult);
        EXPECT_EQ(panel.WhInfo.FldOrder, "A0201");
        const auto said = journal.statements();
        ASSERT_GE(said.size(), 7U);
        EXPECT_EQ(said[0], " select Property from s_infotable  where TblName ='A02'");
        EXPECT_EQ(said[1], " select * from s_infoitem  where tblname ='A02'");
        EXPECT_TRUE(said[2].starts_with("select * from A02 where ")) << said[2];
        // The one coded field of the set is looked up by the loader.
        EXPECT_TRUE(said[3].starts_with("select dmcpt from DM_XW")) << said[3];
        EXPECT_EQ(said[4], orderQuery("A02"));
        EXPECT_EQ(placeOf("select itemname,itemdesc,"), 5);
        EXPECT_TRUE(said[6].ends_with("order by A0201")) << said[6];
    });
}

TEST_F(Preparing, AMultiRecordSetStandsOnTheFirstRowOfItsOrder) {
    prepare("A02", 4, [](A1ctrlUser& panel) {
        ASSERT_NE(panel.AdodcRs(), nullptr);
        EXPECT_EQ(panel.AdodcRs()->AbsolutePosition(), 1);
        EXPECT_EQ(panel.WhInfo.id, 2);
        EXPECT_EQ(controlOf<ui::TextBox>(window(), "A02_A0203_v").Text(), "第2");
        EXPECT_FALSE(panel.WhInfo.IsChange);
    });
}

TEST_F(Preparing, AMultiRecordSetWithoutRowsStandsOnRecord1) {
    database.run("delete from A02");
    prepare("A02", 4, [this](A1ctrlUser& panel) {
        EXPECT_EQ(panel.WhInfo.id, 1);
        EXPECT_TRUE(journal.statements()[2].ends_with("A0299=1")) << journal.statements()[2];
    });
}

TEST_F(Preparing, AMultiRecordSetIsLeftWithTheCollectionOfRecord1) {
    prepare("A02", 4,
            [](A1ctrlUser& panel) { EXPECT_EQ(panel.FieldItems->Item("A02_A0203").code(), "第1"); });
}

TEST_F(Preparing, State0OnAMultiRecordSetGivesMetadataOnlyAndStillFillsTheGrid) {
    prepare("A02", 0, [this](A1ctrlUser& panel) {
        ASSERT_NE(panel.AdodcRs(), nullptr);
        EXPECT_EQ(panel.AdodcRs()->RecordCount(), 2);
        EXPECT_EQ(panel.FieldItems->Item("A02_A0203").code(), "");
        EXPECT_EQ(panel.FieldItems->Item("A02_A0203").ItemDesc, "就读院校（系）");
        EXPECT_EQ(placeOf("select * from A02 where "), placeOf("select * from A02 where a00 ='" + id + "'"));
        EXPECT_GT(placeOf("select * from A02 where "), placeOf("select itemname,itemdesc,"));
    });
}

TEST_F(Preparing, State0OnASingleRecordSetReadsNoRow) {
    prepare("A10", 0, [this](A1ctrlUser& panel) {
        EXPECT_EQ(journal.statements(),
                  (Names{" select Property from s_infotable  where TblName ='A10'",
                         " select * from s_infoitem  where tblname ='A10'", orderQuery("A10")}));
        EXPECT_EQ(panel.FieldItems->Item("A10_A1001").code(), "");
        EXPECT_EQ(controlOf<ui::TextBox>(window(), "A10_A1001_v").Text(), "");
    });
}

TEST_F(Preparing, States1To4AllReadTheStoredValues) {
    for (const std::int32_t state : {1, 2, 3, 4}) {
        prepare("A10", state,
                [](A1ctrlUser& panel) { EXPECT_EQ(panel.FieldItems->Item("A10_A1001").code(), "创新"); });
    }
}

TEST_F(Preparing, AnyOtherStateLoadsNoFields) {
    for (const std::int32_t state : {-1, 5}) {
        prepare("A02", state, [this](A1ctrlUser& panel) {
            EXPECT_EQ(panel.FieldItems->Count(), 0);
            EXPECT_EQ(placeOf(orderQuery("A02")), 1);
            EXPECT_EQ(panel.AdodcRs()->RecordCount(), 2);
        });
    }
}

TEST_F(Preparing, AnyOtherStateFailsAtTheFirstWidgetOfASingleRecordSet) {
    run(4, id, 2, [](frmPersonWh& shown) {
        A1ctrlUser& panel = shown.LoadUCtrl("A1ctrlUserA10");
        EXPECT_EQ(failureOf([&] { shown.IniUCtrl(panel, "A10", 5); }), number(Failure::InvalidCall));
    });
}

TEST_F(Preparing, TheOrderIsTheSequenceFieldWhereTheCatalogueNamesNone) {
    for (const char* none : {"null", "''"}) {
        database.run(std::string("update s_infotable set orderfield=") + none + " where tblname='A02'");
        prepare("A02", 4, [this](A1ctrlUser& panel) {
            EXPECT_EQ(panel.WhInfo.FldOrder, "A0299");
            EXPECT_TRUE(journal.statements()[6].ends_with("order by A0299"));
            EXPECT_EQ(panel.WhInfo.id, 1);
        });
    }
}

TEST_F(Preparing, TheOrderOfASingleRecordSetIsTheCataloguesToo) {
    database.run("update s_infotable set orderfield='A1001' where tblname='A10'");
    prepare("A10", 4, [](A1ctrlUser& panel) { EXPECT_EQ(panel.WhInfo.FldOrder, "A1001"); });
}

TEST_F(Preparing, ATableThatTheCatalogueDoesNotHoldIsASingleRecordSetWithoutAnOrder) {
    database.run("delete from s_infotable where tblname='A02'");
    prepare("A02", 4, [](A1ctrlUser& panel) {
        EXPECT_FALSE(panel.WhInfo.IsMult);
        EXPECT_EQ(panel.WhInfo.id, 0);
        EXPECT_EQ(panel.WhInfo.FldOrder, "");
        EXPECT_EQ(panel.AdodcRs(), nullptr);
    });
}

TEST_F(Preparing, ClearsTheChangeMarkLast) {
    run(4, id, 2, [](frmPersonWh& shown) {
        A1ctrlUser& panel = shown.LoadUCtrl("A1ctrlUserA10");
        panel.WhInfo.IsChange = true;
        shown.IniUCtrl(panel, "A10", 4);
        EXPECT_FALSE(panel.WhInfo.IsChange);
    });
}

} // namespace

} // namespace quillmere::test

#include "panels/PanelFactory.h"
#include "shell/ControlsByPrefix.h"
#include "shell/frmPersonWh.h"
#include "support/FailureNumber.h"
#include "support/ScriptedPerson.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

// How the window creates a panel, finds it again, names the operation on it and limits its records.

namespace quillmere::test {

namespace {

/// A window that is not shown; panels can be put on it all the same.
class PanelHosting : public testing::Test {
protected:
    [[nodiscard]] std::vector<std::string> panels() const {
        std::vector<std::string> names;
        for (const auto& control : window.Controls()) {
            if (control->kind() == ui::Kind::UserControl) names.push_back(control->name());
        }
        return names;
    }

    TestDatabase database;
    frmPersonWh window;
};

using Names = std::vector<std::string>;

TEST_F(PanelHosting, LoadUCtrlPutsAVisiblePanelOfTheClassIntoItsFrame) {
    A1ctrlUser& panel = window.LoadUCtrl("A1ctrlUserA02");
    EXPECT_EQ(panel.name(), "A1ctrlUserA02");
    EXPECT_EQ(panel.row().className, "A1ctrlUserA02");
    EXPECT_EQ(panel.Container(), &window.panelFrame());
    EXPECT_TRUE(panel.Visible());
    EXPECT_EQ(panel.geometry(), (ui::Rect{300, 300, 13000, 9800}));
    EXPECT_EQ(window.GetUserCtrl(), &panel);
    EXPECT_TRUE(database.statements().empty());
}

TEST_F(PanelHosting, LoadUCtrlLeavesOnePanel) {
    (void)window.LoadUCtrl("A1ctrlUserA02");
    (void)window.LoadUCtrl("A1ctrlUserA02");
    (void)window.LoadUCtrl("A1ctrlUserP02_DG");
    EXPECT_EQ(panels(), Names{"A1ctrlUserP02_DG"});
}

TEST_F(PanelHosting, LoadUCtrlOfAnUnknownClassFailsWithTheOldPanelGone) {
    (void)window.LoadUCtrl("A1ctrlUserA02");
    EXPECT_EQ(failureOf([&] { (void)window.LoadUCtrl("A1ctrlUserX99"); }),
              number(Failure::CannotCreateObject));
    EXPECT_EQ(window.GetUserCtrl(), nullptr);
    EXPECT_EQ(panels(), Names{});
}

TEST_F(PanelHosting, LoadUCtrlRemovesEveryControlOfThePrefix) {
    window.add<ui::Label>("A1ctrlUser");
    window.add<ui::Label>("a1CTRLuserOld");
    window.add<ui::Label>("A1ctrlUse");
    (void)window.LoadUCtrl("A1ctrlUserA02");
    EXPECT_EQ(window.find("A1ctrlUser"), nullptr);
    EXPECT_EQ(window.find("a1CTRLuserOld"), nullptr);
    EXPECT_NE(window.find("A1ctrlUse"), nullptr);
}

TEST_F(PanelHosting, RemoveCtrlByPrefixGoesFromTheLastControlToTheFirst) {
    class Leavers final : public ui::HostView {
    public:
        void added(ui::Control&) override {}
        void removed(ui::Control& control) override { names.push_back(control.name()); }
        Names names;
    } leavers;
    ui::Form form("frm", "");
    for (const char* name : {"ABx", "other", "abY", "AB"})
        form.add<ui::Label>(name);
    form.setHostView(&leavers);
    RemoveCtrlByPrefix(form, "aB");
    EXPECT_EQ(leavers.names, (Names{"AB", "abY", "ABx"}));
    EXPECT_EQ(form.Count(), 1U);
    form.setHostView(nullptr);
}

TEST_F(PanelHosting, AControlNamedAsThePrefixAloneIsNoPanelYetRemoved) {
    window.add<ui::Label>("A1ctrlUser");
    EXPECT_EQ(window.GetUserCtrl(), nullptr);
    RemoveCtrlByPrefix(window, "A1ctrlUser");
    EXPECT_EQ(window.find("A1ctrlUser"), nullptr);
}

TEST_F(PanelHosting, GetUserCtrlPassesOverAControlNamedAsThePrefixAlone) {
    window.add<ui::Label>("A1ctrlUser");
    window.place(createPanel("A1ctrlUserA02", window));
    ASSERT_NE(window.GetUserCtrl(), nullptr);
    EXPECT_EQ(window.GetUserCtrl()->name(), "A1ctrlUserA02");
}

TEST_F(PanelHosting, GetUserCtrlComparesThePrefixExactly) {
    window.place(createPanel("a1ctrlusera02", window));
    EXPECT_EQ(window.GetUserCtrl(), nullptr);
    window.place(createPanel("A1ctrlUsera02", window));
    ASSERT_NE(window.GetUserCtrl(), nullptr);
    EXPECT_EQ(window.GetUserCtrl()->name(), "A1ctrlUsera02");
}

TEST_F(PanelHosting, GetUserCtrlReturnsTheFirstPanel) {
    window.place(createPanel("A1ctrlUserA02", window));
    window.place(createPanel("A1ctrlUserA03", window));
    ASSERT_NE(window.GetUserCtrl(), nullptr);
    EXPECT_EQ(window.GetUserCtrl()->name(), "A1ctrlUserA02");
}

TEST_F(PanelHosting, IsCtrlChangedIsFalseWithoutAPanel) { EXPECT_FALSE(IsCtrlChanged(window, "A1ctrlUser")); }

TEST_F(PanelHosting, IsCtrlChangedAsksTheLastControlOfThePrefix) {
    window.place(createPanel("A1ctrlUserA02", window));
    window.place(createPanel("a1CTRLUSERa03", window));
    auto& first = controlOf<A1ctrlUser>(window, "A1ctrlUserA02");
    auto& last = controlOf<A1ctrlUser>(window, "A1ctrlUserA03");
    first.WhInfo.IsChange = true;
    EXPECT_FALSE(IsCtrlChanged(window, "A1ctrlUser"));
    last.WhInfo.IsChange = true;
    first.WhInfo.IsChange = false;
    EXPECT_TRUE(IsCtrlChanged(window, "A1CTRLuser"));
    EXPECT_FALSE(IsCtrlChanged(window, "A1ctrlUserX"));
}

// The label that names the operation.

class OperationLabel : public PanelHosting {
protected:
    OperationLabel() : panel(window.LoadUCtrl("A1ctrlUserA02")) {}

    [[nodiscard]] std::string caption() const { return controlOf<ui::Label>(window, "labOpt").Caption(); }
    void removeLabel() {
        for (std::size_t index = panel.Count(); index-- > 0;) {
            if (panel.Controls(index).name() == "labOpt") panel.remove(index);
        }
    }

    A1ctrlUser& panel;
};

TEST_F(OperationLabel, NamesAddAndModify) {
    EXPECT_EQ(caption(), "");
    window.SetLabOpt(panel, "Add");
    EXPECT_EQ(caption(), "当前操作：增加");
    window.SetLabOpt(panel, "Mod");
    EXPECT_EQ(caption(), "当前操作：修改");
}

TEST_F(OperationLabel, IsLeftAloneByAnyOtherModeSinceTheModeIsComparedExactly) {
    window.SetLabOpt(panel, "Add");
    for (const char* mode : {"mod", "MOD", "add", "", "Mod ", "Modify"}) {
        window.SetLabOpt(panel, mode);
        EXPECT_EQ(caption(), "当前操作：增加") << mode;
    }
}

TEST_F(OperationLabel, IsFoundInAnyCaseOfLetters) {
    removeLabel();
    auto& other = panel.add<ui::Label>("LABopt");
    window.SetLabOpt(panel, "Add");
    EXPECT_EQ(other.Caption(), "当前操作：增加");
}

TEST_F(OperationLabel, IsTheFirstOfItsName) {
    auto& second = panel.add<ui::Label>("LABOPT", "那个");
    window.SetLabOpt(panel, "Mod");
    EXPECT_EQ(caption(), "当前操作：修改");
    EXPECT_EQ(second.Caption(), "那个");
}

TEST_F(OperationLabel, MissingOnAPanelIsNoFailure) {
    removeLabel();
    std::vector<std::string> before;
    for (const auto& control : panel.Controls())
        before.push_back(control->property("Caption").value_or(""));
    window.SetLabOpt(panel, "Add");
    window.SetLabOpt(panel, "Mod");
    std::vector<std::string> after;
    for (const auto& control : panel.Controls())
        after.push_back(control->property("Caption").value_or(""));
    EXPECT_EQ(after, before);
}

// The limit of a set.

class RecordLimit : public PanelHosting {
protected:
    RecordLimit() {
        database.createCatalogue();
        database.createDataTable("A02", {"A0299 integer"});
        info.TabId = "A02";
        info.personID = "x";
        info.IsMult = true;
    }

    void limit(const std::optional<int>& maxNumber) {
        database.run("delete from s_infotable");
        database.addSet({.tblName = "A02", .maxNumber = maxNumber, .property = false});
    }
    void addRows(int count, const std::string& id = "x") {
        for (int row = 1; row <= count; ++row)
            database.addRow("A02", {id, std::to_string(row)});
    }

    cWhInfo info;
};

TEST_F(RecordLimit, OfNullZeroOrBelowIsNone) {
    addRows(5);
    for (const auto& none :
         {std::optional<int>(), std::optional(0), std::optional(-1), std::optional(-32768)}) {
        limit(none);
        database.clearStatements();
        EXPECT_EQ(window.IsMaxNumber(info), 0);
        EXPECT_EQ(database.statements(),
                  Names{"select iif(maxnumber is null,0,maxnumber) as maxnumber from  s_infotable  where "
                        "tblname ='A02'"});
    }
}

TEST_F(RecordLimit, OfThreeIsReachedByThreeStoredRowsAndNotByTwo) {
    limit(3);
    addRows(2);
    EXPECT_EQ(window.IsMaxNumber(info), 0);
    addRows(1);
    EXPECT_EQ(window.IsMaxNumber(info), 3);
    addRows(1);
    EXPECT_EQ(window.IsMaxNumber(info), 3);
}

TEST_F(RecordLimit, CountsTheIdentitysStoredRowsOnly) {
    limit(3);
    addRows(2);
    addRows(3, "y");
    database.clearStatements();
    EXPECT_EQ(window.IsMaxNumber(info), 0);
    EXPECT_EQ(database.statements().back(), "select count(*) from A02 where a00='x'");
    EXPECT_EQ(database.statements().size(), 2U);
}

TEST_F(RecordLimit, OfASingleRecordSetIsNotAskedFor) {
    limit(1);
    addRows(3);
    info.IsMult = false;
    EXPECT_EQ(window.IsMaxNumber(info), 0);
    EXPECT_TRUE(database.statements().empty());
}

TEST_F(RecordLimit, OfATableThatTheCatalogueDoesNotHoldIsNone) {
    addRows(3);
    EXPECT_EQ(window.IsMaxNumber(info), 0);
    EXPECT_EQ(database.statements().size(), 1U);
}

TEST_F(RecordLimit, BeyondA16BitNumberFails) {
    limit(32768);
    EXPECT_EQ(failureOf([&] { (void)window.IsMaxNumber(info); }), number(Failure::Overflow));
    limit(32767);
    EXPECT_EQ(window.IsMaxNumber(info), 0);
}

} // namespace

} // namespace quillmere::test

#include "panels/A1ctrlUser.h"
#include "platform/ui/TextBox.h"
#include "shell/NavigationTest.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

// Unsaved edits at a click on the menu.

namespace quillmere::test {

namespace {

class NavigationEdits : public NavigationTest {
protected:
    [[nodiscard]] std::string specialty() {
        return database.cell("select A0119 from A01 where A00='" + id + "'");
    }
    [[nodiscard]] static std::string shownText(std::string_view widget) {
        return controlOf<ui::TextBox>(window(), widget).Text();
    }
    [[nodiscard]] static bool edited() { return window().GetUserCtrl()->WhInfo.IsChange; }
    /// The panel with the person's edits is on show as if nothing had been clicked.
    void expectStayed() {
        EXPECT_EQ(panelName(), "A1ctrlUserA01");
        EXPECT_EQ(position(window()), "1.1");
        EXPECT_EQ(shownText("A01_A0119_v"), "桥梁");
        EXPECT_TRUE(edited());
        EXPECT_EQ(journal.count("- A1ctrlUser"), 0);
    }
};

TEST_F(NavigationEdits, NoneAskNothing) {
    maintain([this](frmPersonWh& shown) {
        click(shown, 1, "A02");
        click(shown, 1, "A02");
        click(shown, 1, "A01");
        EXPECT_EQ(panelName(), "A1ctrlUserA01");
    });
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(NavigationEdits, AreAskedAboutWithYesAndNoUnderTheWindowsCaption) {
    person.expectBox(editsQuestion, windowCaption, ui::Answer::No);
    maintain([this](frmPersonWh& shown) {
        type("A01_A0119_v", "桥梁");
        click(shown, 1, "A02");
    });
    ASSERT_EQ(person.boxes().size(), 1U);
    EXPECT_EQ(person.boxes()[0].buttons, ui::Buttons::YesNo);
    EXPECT_EQ(person.boxes()[0].icon, ui::Icon::None);
}

TEST_F(NavigationEdits, AreAskedAboutBeforeAnythingElse) {
    person.expectBox(editsQuestion, windowCaption, ui::Answer::No);
    maintain([this](frmPersonWh& shown) {
        type("A01_A0119_v", "桥梁");
        journal.clear();
        click(shown, 1, "A02");
        // Opening the group is the person's own doing.
        EXPECT_EQ(journal.before("BOX [信息维护] " + editsQuestion), std::vector<std::string>{"OpenGroup 1"});
    });
}

TEST_F(NavigationEdits, AreDroppedByANoWithoutAStatement) {
    person.expectBox(editsQuestion, windowCaption, ui::Answer::No);
    maintain([this](frmPersonWh& shown) {
        type("A01_A0119_v", "桥梁");
        journal.clear();
        click(shown, 1, "A02");
        EXPECT_EQ(panelName(), "A1ctrlUserA02");
        for (const std::string& statement : journal.statements())
            EXPECT_TRUE(statement.starts_with("select ") || statement.starts_with(" select ")) << statement;
        EXPECT_FALSE(edited());
        click(shown, 1, "A01");
        EXPECT_EQ(shownText("A01_A0119_v"), "");
    });
    EXPECT_EQ(specialty(), "(null)");
}

TEST_F(NavigationEdits, AreStoredByAYesAndTheClickGoesOn) {
    person.expectBox(editsQuestion, windowCaption, ui::Answer::Yes);
    maintain([this](frmPersonWh& shown) {
        type("A01_A0119_v", "桥梁");
        click(shown, 1, "A02");
        EXPECT_EQ(panelName(), "A1ctrlUserA02");
        EXPECT_EQ(position(shown), "1.2");
        EXPECT_FALSE(edited());
        EXPECT_FALSE(shown.IsSaved);
        EXPECT_EQ(shown.WhState(), 4);
    });
    EXPECT_EQ(specialty(), "桥梁");
}

TEST_F(NavigationEdits, AreStoredByAYesBeforeTheGateCounts) {
    person.expectBox(editsQuestion, windowCaption, ui::Answer::Yes);
    run(0, "{11111111-2222-3333-4444-555555555555}", 2, [this](frmPersonWh& shown) {
        type("A01_A0101_v", "李敏");
        click(shown, 1, "A02");
        EXPECT_EQ(panelName(), "A1ctrlUserA02");
        // Only the button of the toolbar ends the state of a new record.
        EXPECT_EQ(shown.WhState(), 0);
    });
    EXPECT_EQ(database.column("select A0101 from A01 order by A0199"),
              (std::vector<std::string>{"秦志明", "李敏"}));
}

TEST_F(NavigationEdits, OfANewPersonThatAreDroppedAtTheGateStayOnShow) {
    person.expectBox(editsQuestion, windowCaption, ui::Answer::No);
    person.expectBox(gateQuestion, windowCaption);
    run(0, "{11111111-2222-3333-4444-555555555555}", 2, [this](frmPersonWh& shown) {
        type("A01_A0101_v", "李敏");
        click(shown, 1, "A02");
        EXPECT_EQ(panelName(), "A1ctrlUserA01");
        EXPECT_EQ(shownText("A01_A0101_v"), "李敏");
        EXPECT_TRUE(edited());
    });
}

TEST_F(NavigationEdits, ThatAreRefusedEndTheClickWithThePositionUntouched) {
    person.expectBox(editsQuestion, windowCaption, ui::Answer::Yes);
    person.expectBox("姓名 为必填项", "错误信息");
    maintain([this](frmPersonWh& shown) {
        type("A01_A0119_v", "桥梁");
        controlOf<ui::TextBox>(shown, "A01_A0101_v").setText("");
        journal.clear();
        click(shown, 2, "P06");
        expectStayed();
        EXPECT_TRUE(journal.statements().empty());
    });
    EXPECT_EQ(specialty(), "(null)");
}

TEST_F(NavigationEdits, ThatCannotBeStoredEndTheClickWithThePositionUntouched) {
    person.expectBox(editsQuestion, windowCaption, ui::Answer::Yes);
    person.expectBox("断线", "信息保存");
    maintain([this](frmPersonWh& shown) {
        type("A01_A0119_v", "桥梁");
        journal.clear();
        database.failing().failOn("update A01", "断线");
        click(shown, 2, "P06");
        expectStayed();
    });
    EXPECT_EQ(specialty(), "(null)");
}

TEST_F(NavigationEdits, OfARecordAmongSeveralAreStoredUnderItsNumber) {
    database.run("insert into A02 (A00,A0299,A0201,A0203) values ('" + id + "',1,'1990-09','第二小学')");
    database.run("insert into A02 (A00,A0299,A0201,A0203) values ('" + id + "',2,'1996-09','第一中学')");
    person.expectBox(editsQuestion, windowCaption, ui::Answer::Yes);
    maintain([this](frmPersonWh& shown) {
        click(shown, 1, "A02");
        shown.GetUserCtrl()->AdodcRs()->MoveNext();
        type("A02_A0204_v", "物理");
        click(shown, 1, "A02");
        EXPECT_EQ(shown.GetUserCtrl()->WhInfo.id, 1);
    });
    EXPECT_EQ(database.column("select A0204 from A02 order by A0299").back(), "物理");
}

TEST_F(NavigationEdits, OnAWindowWithoutAPanelAreNone) {
    run(9, id, 2, [this](frmPersonWh& shown) {
        EXPECT_EQ(panelName(), "(none)");
        click(shown, 1, "A02");
        EXPECT_EQ(panelName(), "A1ctrlUserA02");
    });
    EXPECT_TRUE(person.boxes().empty());
}

} // namespace

} // namespace quillmere::test

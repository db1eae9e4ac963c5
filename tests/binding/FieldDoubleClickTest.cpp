#include "FieldEventsBench.h"

#include "binding/fmGrpCod.h"
#include "support/TestDatabase.h"

namespace quillmere {
namespace {

/// Double clicks, with a code table to pick from.
class FieldDoubleClickTest : public test::FieldEventsBench {
protected:
    void SetUp() override {
        db.createCatalogue();
        db.createCodeTable("ZW", "职务", {2}, {{"01", "主任"}, {"02", "书记"}});
        panel.loading = true;
        field.Dmcod = "02";
        field.Dmcpt = "书记";
        panel.coded.setText("书记");
        panel.coded.setLocked(true);
        panel.loading = false;
    }

    test::TestDatabase db;
    cFieldItem& field = panel.fields.Item("T_coded");
};

TEST_F(FieldDoubleClickTest, TheSelectorIsGivenTheFieldAsItIs) {
    person.onForm([&](ui::Form& open) {
        const auto& selector = dynamic_cast<fmGrpCod&>(open);
        EXPECT_EQ(selector.CodeTable, "ZW");
        EXPECT_EQ(selector.SearchText, "");
        EXPECT_TRUE(selector.IsCancelled);
        EXPECT_EQ(selector.Dmcod, "02");
        EXPECT_EQ(selector.Dmcpt, "书记");
    });
    panel.events.cItems_Dblclick(panel.coded);
}

TEST_F(FieldDoubleClickTest, APickedCodeGoesIntoTheFieldAndItsNameIntoTheWidget) {
    person.onForm([](ui::Form& open) { open.click(test::controlOf<ui::CommandButton>(open, "cmdOK")); });
    panel.events.cItems_Dblclick(panel.coded);
    EXPECT_EQ(field.Dmcod, data::Value("01"));
    EXPECT_EQ(field.Dmcpt, "主任");
    EXPECT_EQ(panel.coded.Text(), "主任");
    EXPECT_TRUE(panel.info.IsChange);
}

TEST_F(FieldDoubleClickTest, CancelLeavesValueAndTextAndDoesNotCountAsAChange) {
    person.onForm([](ui::Form& open) { open.click(test::controlOf<ui::CommandButton>(open, "cmdCancel")); });
    panel.events.cItems_Dblclick(panel.coded);
    EXPECT_EQ(field.code(), "02");
    EXPECT_EQ(field.Dmcpt, "书记");
    EXPECT_EQ(panel.coded.Text(), "书记");
    EXPECT_FALSE(panel.info.IsChange);
}

TEST_F(FieldDoubleClickTest, ClosingTheSelectorByItsFrameIsCancel) {
    person.onForm([](ui::Form& open) { open.closeByFrame(); });
    panel.events.cItems_Dblclick(panel.coded);
    EXPECT_EQ(field.code(), "02");
    EXPECT_FALSE(panel.info.IsChange);
}

TEST_F(FieldDoubleClickTest, ClearEmptiesValueAndTextAndCountsAsAChange) {
    person.onForm([](ui::Form& open) { open.click(test::controlOf<ui::CommandButton>(open, "cmdDel")); });
    panel.events.cItems_Dblclick(panel.coded);
    EXPECT_EQ(field.Dmcod, data::Value(""));
    EXPECT_EQ(field.Dmcpt, "");
    EXPECT_EQ(panel.coded.Text(), "");
    EXPECT_TRUE(panel.info.IsChange);
}

TEST_F(FieldDoubleClickTest, CancelOnACodeWithoutANameEmptiesTheField) {
    field.Dmcpt = "";
    person.onForm([](ui::Form& open) { open.closeByFrame(); });
    panel.events.cItems_Dblclick(panel.coded);
    EXPECT_EQ(field.code(), "");
    EXPECT_EQ(panel.coded.Text(), "");
}

TEST_F(FieldDoubleClickTest, TheWholeRoadFromTheMouseToTheField) {
    person.onForm(
        [&](ui::Form& open) {
            open.doubleClick(panel.coded);
            EXPECT_TRUE(panel.coded.hasFocus());
        },
        "panel");
    person.onForm([](ui::Form& open) { open.doubleClick(test::controlOf<ui::TreeView>(open, "tvGrpCod")); },
                  "fmGrpCod");
    person.desktop().showModal(panel);
    EXPECT_EQ(panel.coded.Text(), "主任");
}

TEST_F(FieldDoubleClickTest, AMaskedBoxWithACodeTableDoesNothing) {
    panel.fields.Item("T_date").CodeTable = "ZW";
    panel.events.cItems_Dblclick(panel.date);
    EXPECT_TRUE(person.opened().empty());
}

TEST_F(FieldDoubleClickTest, APlainTextBoxDoesNothing) {
    panel.events.cItems_Dblclick(panel.plain);
    EXPECT_TRUE(person.opened().empty());
}

TEST_F(FieldDoubleClickTest, ATextBoxThatIsNoFieldDoesNothing) {
    panel.events.cItems_Dblclick(panel.other);
    EXPECT_TRUE(person.opened().empty());
}

TEST_F(FieldDoubleClickTest, ALockedCodedBoxRefusesTypingAndPasting) {
    person.show(panel, [&](ui::Form& open) {
        open.moveFocus(panel.coded);
        test::typeText(open, "x");
        open.paste("y");
    });
    EXPECT_EQ(panel.coded.Text(), "书记");
    EXPECT_FALSE(panel.info.IsChange);
}

} // namespace
} // namespace quillmere

#include "save/SaveBench.h"

namespace quillmere {
namespace {

using Statements = std::vector<std::string>;

/// A project's save is always an update, and its only statement.
class AssignmentTest : public test::SaveBench {
protected:
    AssignmentTest() { db.run("drop table P01"); }

    void buildText(const std::string& type) { build("P01", {{field::text("P0150", "x"), type}}); }
    void buildMask(const std::string& type) { build("P01", {{field::month("P0150", "x"), type}}); }

    void expectAssigned(const std::string& assignments) {
        EXPECT_TRUE(save());
        EXPECT_EQ(db.statements(), Statements{"update P01 set " + assignments + " where A00='p1'"});
    }
    void expectNothingWritten() {
        EXPECT_TRUE(save());
        EXPECT_TRUE(db.statements().empty());
    }
};

TEST_F(AssignmentTest, AnEmptiedVarcharBecomesTheEmptyText) {
    buildText("varchar");
    expectAssigned("P0150 = ''");
    write("P0150", "x");
    expectAssigned("P0150 = 'x'");
}

TEST_F(AssignmentTest, ACodedVarcharWritesItsLoadedCodeBack) {
    buildText("varchar");
    item("P0150").CodeTable = "ZW";
    item("P0150").Dmcod = "01";
    write("P0150", "处长");
    expectAssigned("P0150 = '01'");
}

TEST_F(AssignmentTest, ACodeThatIsNoLongerInItsTableIsWrittenBackUnchanged) {
    buildText("varchar");
    item("P0150").CodeTable = "ZW";
    item("P0150").Dmcod = "99";
    // Without a caption the box shows the code itself.
    write("P0150", "99");
    expectAssigned("P0150 = '99'");
}

TEST_F(AssignmentTest, AnEmptiedOptionalIntKeepsTheStoredNumber) {
    buildText("int");
    expectNothingWritten();
}

TEST_F(AssignmentTest, AnEmptiedRequiredIntIsRefused) {
    buildText("int");
    item("P0150").IsNUll = false;
    expectRefusal("栏P0150 为必填项");
}

TEST_F(AssignmentTest, ADateInATextBoxIsAssignedAndAnEmptiedOneBecomesNull) {
    buildText("datetime");
    write("P0150", "1990-03-12");
    expectAssigned("P0150 = '1990-03-12'");
    write("P0150", "");
    expectAssigned("P0150 = null");
}

TEST_F(AssignmentTest, AMaskedDateIsAssignedAndAnUnfilledOneBecomesNull) {
    buildMask("datetime");
    write("P0150", "1990年03月");
    expectAssigned("P0150 = '1990-03'");
    write("P0150", "____年__月");
    expectAssigned("P0150 = null");
    write("P0150", "1990年__月");
    expectRefusal("栏P0150 数据应该是日期型，例如1990年03月");
}

TEST_F(AssignmentTest, ACheckBoxAssignsItsStateAsQuotedText) {
    build("P01", {{field::check("P0150", "x"), "bit"}});
    widget<ui::CheckBox>("P0150").setValue(1);
    expectAssigned("P0150 = '1'");
}

TEST_F(AssignmentTest, AssignmentsStandInTheOrderOfTheWidgets) {
    build("P01", {{field::text("P0152", "x"), "int"},
                  {field::text("P0151", "x"), "datetime"},
                  {field::text("P0150", "x"), "varchar"}});
    write("P0150", "x");
    expectAssigned("P0151 = null,P0150 = 'x'");
}

TEST_F(AssignmentTest, APanelWithoutValueWidgetsSavesWithoutAStatement) {
    build("P01", {});
    expectNothingWritten();
}

TEST_F(AssignmentTest, ARequiredFieldThatIsHiddenAndEmptyIsExempt) {
    build("P01", {{field::text("P0150", "x"), "varchar"}, {field::month("P0151", "x"), "varchar"}});
    for (const char* column : {"P0150", "P0151"}) {
        item(column).IsNUll = false;
        panel().find(std::string("P01_") + column + "_v")->setVisible(false);
    }
    expectAssigned("P0150 = '',P0151 = ''");
}

TEST_F(AssignmentTest, ARequiredFieldThatIsVisibleAndEmptyIsRefused) {
    build("P01", {{field::text("P0150", "x"), "varchar"}, {field::month("P0151", "x"), "varchar"}});
    item("P0150").IsNUll = false;
    item("P0151").IsNUll = false;
    expectRefusal("栏P0150 为必填项\r\n栏P0151  为必填项");
}

TEST_F(AssignmentTest, ASequenceIsNeverPartOfTheCondition) {
    buildText("varchar");
    panel().WhInfo.IsMult = true;
    panel().WhInfo.id = 3;
    expectAssigned("P0150 = ''");
}

TEST_F(AssignmentTest, AFailingUpdateIsShown) {
    buildText("varchar");
    db.failing().failAfter(1, "网络中断");
    expectFailure("网络中断");
}

/// Saves of persons and units that exist.
class MasterUpdateTest : public test::SaveBench {
protected:
    void buildPerson() {
        build("A01", {{field::text("A0101", "x"), "varchar"}, {field::text("A0130", "x"), "varchar"}});
        item("A0130").CodeTable = "DW";
        item("A0130").Dmcod = "U7";
        db.run("insert into A01 (A00,A0101,A0130) values ('p1','旧名','U7')");
        write("A0101", "新名");
        WhState = 4;
    }
};

TEST_F(MasterUpdateTest, APersonIsUpdatedThenTheNameIsShown) {
    buildPerson();
    EXPECT_TRUE(save());
    EXPECT_EQ(db.statements(), (Statements{"update A01 set A0101 = '新名',A0130 = 'U7' where A00='p1'",
                                           "select iif(a0101 is null,'',a0101) from a01 where a00='p1'"}));
    EXPECT_EQ(labPersonName.Caption(), "新名");
}

TEST_F(MasterUpdateTest, AUnitIsUpdatedThenTheNameIsShown) {
    build("B01", {{field::text("B0101", "x"), "varchar"}});
    db.run("insert into B01 (A00) values ('p1')");
    write("B0101", "某局");
    WhState = 4;
    EXPECT_TRUE(save());
    EXPECT_EQ(db.statements(), (Statements{"update B01 set B0101 = '某局' where A00='p1'",
                                           "select iif(B0101 is null,'',B0101) from B01 where a00='p1'"}));
    EXPECT_EQ(labPersonName.Caption(), "某局");
}

TEST_F(MasterUpdateTest, AMultiRecordSetAddsItsSequence) {
    buildPerson();
    db.run("update A01 set A0199 = 2");
    panel().WhInfo.IsMult = true;
    panel().WhInfo.id = 2;
    EXPECT_TRUE(save());
    EXPECT_EQ(db.statements()[0], "update A01 set A0101 = '新名',A0130 = 'U7' where A00='p1' and A0199 = 2");
}

TEST_F(MasterUpdateTest, ANameThatAnotherPersonBearsIsNotAskedAbout) {
    buildPerson();
    db.run("insert into A01 (A00,A0101) values ('p2','新名')");
    EXPECT_TRUE(save());
    EXPECT_TRUE(person.boxes().empty());
}

TEST_F(MasterUpdateTest, AnotherUnitThanTheHostsIsRefused) {
    buildPerson();
    UnitCode = "U8";
    expectRefusal("局级单位信息填写错误！请参照系统初始录入的局级单位信息。");
}

TEST_F(MasterUpdateTest, AFailingUpdateLeavesTheRow) {
    buildPerson();
    db.failing().failAfter(1, "网络中断");
    expectFailure("网络中断");
    EXPECT_EQ(db.cell("select A0101 from A01"), "旧名");
    EXPECT_EQ(labPersonName.Caption(), "before");
}

TEST_F(MasterUpdateTest, AFailingLabelQueryComesAfterTheRowIsWritten) {
    buildPerson();
    db.failing().failAfter(2, "网络中断");
    expectFailure("网络中断");
    EXPECT_EQ(db.cell("select A0101 from A01"), "新名");
    EXPECT_EQ(labPersonName.Caption(), "before");
}

TEST_F(MasterUpdateTest, ComplaintsEndTheSaveBeforeAnyStatement) {
    buildPerson();
    write("A0101", "O'Brien");
    expectRefusal("栏A0101输入存在非法字符 ” ' “，请您将其改为 “ ‘ ”，或者去掉。 ");
    EXPECT_TRUE(db.statements().empty());
}

TEST_F(MasterUpdateTest, WithoutAssignmentsNothingIsRefreshed) {
    build("A01", {});
    WhState = 4;
    EXPECT_TRUE(save());
    EXPECT_TRUE(db.statements().empty());
    EXPECT_EQ(labPersonName.Caption(), "before");
}

} // namespace
} // namespace quillmere

#include "RestoreBench.h"

#include "platform/ui/CommandButton.h"

// What a clerk loses in the maintenance window, brought back.

namespace quillmere::recovery {
namespace {

class WindowRestore : public RestoreBench {
protected:
    void work(const Work& deed, std::int16_t zzType = 2) { run(connectWithJournal(), deed, 4, zzType); }
    void requireSchool() {
        executeUnseen("update s_infoitem set \"IsNUll\"=false where tblname='A02' and itemname='A0203'");
    }
};

TEST_F(WindowRestore, AnEditThatWasGivenUpAfterAComplaint) {
    requireSchool();
    const Lines before = sortedRows();
    person.answerAnyBox(ui::Answer::No);
    work([](frmPersonWh& window) {
        open(window, test::studiesItem);
        ASSERT_TRUE(window.moveFocus(test::controlOf<ui::TextBox>(window, "A02_A0203_v")));
        window.selectAll();
        window.pressKey({ui::key::Backspace, ui::shift::None});
        press(window, "Save");
    });
    // The clerk was told what is missing, and went; the record was removed before.
    EXPECT_EQ(studies(), (Lines{"2:2|4:乙", "2:3|4:丙"}));
    const Outcome listed = list({"--table", "A02"});
    EXPECT_TRUE(contains(listed.out, "删除")) << listed.out;
    const Outcome restored = restore({entryThatDeleted("A02")});
    EXPECT_EQ(restored.status, Status::Done) << restored.complaints;
    EXPECT_EQ(sortedRows(), before);
}

TEST_F(WindowRestore, ARecordThatWasSavedOverStandsBesideTheNewOne) {
    person.answerAnyBox(ui::Answer::No);
    work([](frmPersonWh& window) {
        open(window, test::studiesItem);
        type(window, "A02_A0203_v", "丁");
        press(window, "Save");
    });
    EXPECT_EQ(studies(), (Lines{"2:1|4:丁", "2:2|4:乙", "2:3|4:丙"}));
    const Outcome restored = restore({entryThatDeleted("A02")});
    EXPECT_EQ(restored.status, Status::Done) << restored.complaints;
    EXPECT_EQ(studies(), (Lines{"2:1|4:丁", "2:2|4:乙", "2:3|4:丙", "2:4|4:甲"}));
}

TEST_F(WindowRestore, APersonWhoWasDeleted) {
    const Lines before = sortedRows();
    person.answerAnyBox(ui::Answer::Yes);
    work([](frmPersonWh& window) { press(window, "Delete"); });
    EXPECT_EQ(linesOf("select A00 from A01"), Lines());
    const Outcome restored = restore({entryThatDeleted("A01"), entryThatDeleted("P01")});
    EXPECT_EQ(restored.status, Status::Done) << restored.complaints;
    EXPECT_TRUE(contains(restored.out, "恢复了 2 行"));
    EXPECT_EQ(sortedRows(), before);
    // And can be maintained again.
    work([](frmPersonWh& window) {
        open(window, test::studiesItem);
        EXPECT_EQ(text(window, "A02_A0203_v"), "甲");
    });
}

TEST_F(WindowRestore, APersonWhoseDataWereChanged) {
    person.answerAnyBox(ui::Answer::No);
    work([](frmPersonWh& window) {
        type(window, "A01_A0101_v", "秦明");
        press(window, "Save");
    });
    EXPECT_EQ(linesOf("select A0101 from A01"), Lines{"4:秦明"});
    const journal::Journal journal = journal::readJournal(journalFile());
    ASSERT_EQ(journal.entries.size(), 1U);
    const Outcome shown = show(1);
    EXPECT_TRUE(contains(shown.out, "'秦志明' → '秦明'")) << shown.out;
    EXPECT_EQ(restore({1}).status, Status::Done);
    EXPECT_EQ(linesOf("select A0101 from A01"), Lines{"4:秦志明"});
}

TEST_F(WindowRestore, ARowOfASchedule) {
    executeUnseen("insert into P02 (A00,P0299,P0201,P0202,P0203,P0204) values ('" + id +
                  "',1,'2026-01','2026-06','试制','样机')");
    const Lines before = rows();
    person.answerAnyBox(ui::Answer::Yes);
    work(
        [](frmPersonWh& window) {
            open(window, "项目工作进度计划");
            ASSERT_TRUE(window.click(test::controlOf<ui::CommandButton>(window, "cmdDel")));
        },
        4);
    EXPECT_NE(rows(), before);
    EXPECT_EQ(restore({entryThatDeleted("P02")}).status, Status::Done);
    EXPECT_EQ(rows(), before);
}

} // namespace
} // namespace quillmere::recovery

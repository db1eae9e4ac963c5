#include "RestoreBench.h"

#include <filesystem>

namespace quillmere::recovery {
namespace {

class RestoreTest : public RestoreBench {
protected:
    const Lines all{"2:1|4:甲", "2:2|4:乙", "2:3|4:丙"};
    const std::string ofPerson = " where A00='" + id + "'";
};

TEST_F(RestoreTest, ADeletedRowComesBackWithEveryValue) {
    executeUnseen("update A02 set A0204='it''s \"𠮷\" ' || char(10) || '--x /*;', A0205='', A0202=null" +
                  ofPerson + " and A0299=2");
    const Lines before = sortedRows();
    execute("delete from A02" + ofPerson + " and A0299 = 2");
    EXPECT_NE(sortedRows(), before);
    const Outcome restored = restore({1});
    EXPECT_EQ(restored.status, Status::Done) << restored.complaints;
    EXPECT_TRUE(contains(restored.out, "  A02 " + id + " 序号 2：恢复\n")) << restored.out;
    EXPECT_TRUE(contains(restored.out, "恢复了 1 行，本来就在的 0 行，没有恢复的 0 行。\n"));
    EXPECT_EQ(sortedRows(), before);
}

TEST_F(RestoreTest, ALongTextComesBackWhole) {
    const std::string text(1U << 20U, '\'');
    executeUnseen("update A01 set A0111=null");
    executeUnseen("create table B77 (A00 text, B7799 integer, B7701 text)");
    executeUnseen("insert into B77 values ('k',1,'" + text + text + "')");
    execute("delete from B77");
    EXPECT_EQ(restore({1}).status, Status::Done);
    EXPECT_EQ(connect()->query("select B7701 from B77").at(0, 0), data::Value(text));
}

TEST_F(RestoreTest, WhatIsThereAlreadyIsLeftAsItIs) {
    execute("delete from A02" + ofPerson + " and A0299 = 2");
    EXPECT_EQ(restore({1}).status, Status::Done);
    const Outcome again = restore({1});
    EXPECT_EQ(again.status, Status::Done);
    EXPECT_TRUE(contains(again.out, "序号 2：登记库里已有，没有改动\n")) << again.out;
    EXPECT_TRUE(contains(again.out, "恢复了 0 行，本来就在的 1 行"));
    EXPECT_EQ(studies(), all);
}

TEST_F(RestoreTest, ANumberThatIsTakenGivesWayToTheNext) {
    execute("delete from A02" + ofPerson + " and A0299 = 2");
    executeUnseen("insert into A02 (A00,A0299,A0203) values ('" + id + "',2,'丁')");
    const Outcome restored = restore({1});
    EXPECT_EQ(restored.status, Status::Done);
    EXPECT_TRUE(contains(restored.out, "序号 2：原来的序号已被另一条记录占用，恢复为序号 4\n"))
        << restored.out;
    EXPECT_EQ(studies(), (Lines{"2:1|4:甲", "2:2|4:丁", "2:3|4:丙", "2:4|4:乙"}));
}

TEST_F(RestoreTest, ARecordUnderAnotherNumberIsBroughtBackOnlyWhenAskedFor) {
    execute("delete from A02" + ofPerson + " and A0299 = 2");
    executeUnseen("insert into A02 (A00,A0299,A0201,A0203) values ('" + id + "',7,'2003-09','乙')");
    const Outcome left = restore({1});
    EXPECT_EQ(left.status, Status::Done);
    EXPECT_TRUE(contains(left.out, "登记库里已有同样的记录，序号是 7，没有改动")) << left.out;
    EXPECT_EQ(studies().size(), 3U);
    EXPECT_EQ(restore({1}, {"--anyway"}).status, Status::Done);
    EXPECT_EQ(studies(), (Lines{"2:1|4:甲", "2:2|4:乙", "2:3|4:丙", "2:7|4:乙"}));
}

TEST_F(RestoreTest, RecordsThatDifferInTheirNumberAloneAllComeBack) {
    executeUnseen("insert into P03 (A00,P0399,P0301,P0302) values ('" + id + "',1,'材料','5'), ('" + id +
                  "',2,'材料','5')");
    execute("delete from P03");
    EXPECT_EQ(restore({1}).status, Status::Done);
    EXPECT_EQ(linesOf("select P0399 from P03 order by P0399"), (Lines{"2:1", "2:2"}));
}

TEST_F(RestoreTest, EverythingOfADeleteComesBack) {
    execute("delete from A02" + ofPerson);
    EXPECT_TRUE(studies().empty());
    EXPECT_EQ(restore({1}).status, Status::Done);
    EXPECT_EQ(studies(), all);
}

TEST_F(RestoreTest, ASetWithOneRecordTakesNoSecond) {
    execute("insert into A10 (A00,A1001) values ('" + id + "','旧')");
    execute("delete from A10" + ofPerson);
    execute("insert into A10 (A00,A1001) values ('" + id + "','新')");
    const Outcome refused = restore({2});
    EXPECT_EQ(refused.status, Status::Failed);
    EXPECT_TRUE(contains(refused.out, "没有恢复：登记库里已有另一条记录")) << refused.out;
    EXPECT_EQ(linesOf("select A1001 from A10"), Lines{"4:新"});
    executeUnseen("delete from A10");
    EXPECT_EQ(restore({2}).status, Status::Done);
    EXPECT_EQ(linesOf("select A1001 from A10"), Lines{"4:旧"});
}

TEST_F(RestoreTest, AnUpdateIsTakenBackWhereItChangedSomething) {
    execute("update A01 set A0101='秦明',A0103=null" + ofPerson);
    // By somebody else, since then.
    executeUnseen("update A01 set A0111='new'" + ofPerson);
    const Outcome restored = restore({1});
    EXPECT_EQ(restored.status, Status::Done);
    EXPECT_TRUE(contains(restored.out, "  A01 " + id + "：改回\n    A0101：'秦明' → '秦志明'\n"))
        << restored.out;
    EXPECT_EQ(linesOf("select A0101,A0111 from A01"), Lines{"4:秦志明|4:new"});
    const Outcome again = restore({1});
    EXPECT_EQ(again.status, Status::Done);
    EXPECT_TRUE(contains(again.out, "登记库里已是原来的内容，没有改动"));
}

TEST_F(RestoreTest, TheUpdatedRowIsFoundByItsNumber) {
    executeUnseen("insert into P02 (A00,P0299,P0203) values ('" + id + "',5,'五'), ('" + id + "',6,'六')");
    execute("update P02 set P0203='改' where A00='" + id + "' and P0299=6");
    EXPECT_EQ(restore({1}).status, Status::Done);
    EXPECT_EQ(linesOf("select P0299,P0203 from P02 order by P0299"), (Lines{"2:5|4:五", "2:6|4:六"}));
}

TEST_F(RestoreTest, AnUpdatedRowThatIsGoneComesBack) {
    execute("update A02 set A0203='改'" + ofPerson + " and A0299=3");
    executeUnseen("delete from A02 where A0299=3");
    const Outcome restored = restore({1});
    EXPECT_EQ(restored.status, Status::Done);
    EXPECT_TRUE(contains(restored.out, "序号 3：恢复\n")) << restored.out;
    EXPECT_EQ(studies(), all);
}

TEST_F(RestoreTest, SeveralEntriesAreTakenBackFromTheYoungest) {
    execute("update A01 set A0101='一'" + ofPerson);
    execute("update A01 set A0101='二'" + ofPerson);
    EXPECT_EQ(restore({1, 2}).status, Status::Done);
    EXPECT_EQ(linesOf("select A0101 from A01"), Lines{"4:秦志明"});
}

TEST_F(RestoreTest, ARestoringIsKeptTooAndCanBeTakenBack) {
    execute("update A01 set A0101='一'" + ofPerson);
    EXPECT_EQ(restore({1}).status, Status::Done);
    EXPECT_TRUE(contains(list().out, "quillmere-journal")) << list().out;
    EXPECT_EQ(restore({2}).status, Status::Done);
    EXPECT_EQ(linesOf("select A0101 from A01"), Lines{"4:一"});
}

TEST_F(RestoreTest, ADryRunTellsAndChangesNothing) {
    execute("delete from A02" + ofPerson);
    const std::string journal = journal::contents(journalFile());
    const Outcome tried = restore({1}, {"--dry-run"});
    EXPECT_EQ(tried.status, Status::Done);
    EXPECT_TRUE(contains(tried.out, "序号 2：恢复\n")) << tried.out;
    EXPECT_TRUE(contains(tried.out, "试运行，什么也没有改动：可以恢复 3 行")) << tried.out;
    EXPECT_TRUE(studies().empty());
    EXPECT_EQ(journal::contents(journalFile()), journal);
}

TEST_F(RestoreTest, WhatTheEngineRefusesIsToldAndTheOtherRowsComeBack) {
    execute("delete from A02" + ofPerson);
    executeUnseen(
        "create trigger guard before insert on A02 when new.A0299=2 begin select raise(abort,'guarded'); "
        "end");
    const Outcome restored = restore({1});
    EXPECT_EQ(restored.status, Status::Failed);
    EXPECT_TRUE(contains(restored.out, "序号 2：没有恢复：")) << restored.out;
    EXPECT_TRUE(contains(restored.out, "guarded")) << restored.out;
    EXPECT_TRUE(contains(restored.out, "恢复了 2 行，本来就在的 0 行，没有恢复的 1 行。"));
    EXPECT_EQ(studies(), (Lines{"2:1|4:甲", "2:3|4:丙"}));
}

TEST_F(RestoreTest, AColumnThatTheRegisterHasNoLongerIsNamedAndNothingIsDone) {
    executeUnseen("alter table A02 add column A0288 text");
    execute("delete from A02" + ofPerson);
    execute("delete from A01" + ofPerson);
    executeUnseen("alter table A02 drop column A0288");
    const Lines before = rows();
    const Outcome refused = restore({1, 2});
    EXPECT_EQ(refused.status, Status::Failed);
    EXPECT_TRUE(contains(refused.complaints, "第 1 条不能恢复：登记库的表 A02 里没有字段 A0288"))
        << refused.complaints;
    EXPECT_TRUE(contains(refused.complaints, "什么也没有改动"));
    EXPECT_EQ(rows(), before);
}

TEST_F(RestoreTest, AColumnThatIsNewTakesItsDefault) {
    execute("delete from A02" + ofPerson + " and A0299=1");
    executeUnseen("alter table A02 add column A0288 text default 'd'");
    EXPECT_EQ(restore({1}).status, Status::Done);
    EXPECT_EQ(linesOf("select A0288 from A02 where A0299=1"), Lines{"4:d"});
}

TEST_F(RestoreTest, WhatHoldsNoRowsIsRefused) {
    executeUnseen("create table B77 (A00 text)");
    execute("insert into A02 (A00,A0299) values ('" + id + "',9)");
    execute("update A02 set A0299 = A0299 +200" + ofPerson);
    execute("drop table B77");
    execute("delete from A02 where A00='nobody'");
    journaled(connect(), {.file = journalFile()})
        ->execute("update A02 set A0203='x' from A01 where A02.A00=A01.A00 and 1=0");
    struct Row {
        int entry;
        std::string reason;
    };
    for (const Row& row : {Row{1, "这是新增"}, Row{2, "这是重编序号"}, Row{3, "只记下了语句"},
                           Row{4, "没有涉及任何行"}, Row{5, "看不出语句涉及哪些行"}}) {
        const Outcome refused = restore({row.entry});
        EXPECT_EQ(refused.status, Status::Failed);
        EXPECT_TRUE(contains(refused.complaints, row.reason)) << refused.complaints;
    }
}

TEST_F(RestoreTest, ATableOfAnotherProgramTakesItsDeletedRowsBack) {
    executeUnseen("create table \"own notes\" (\"the \"\"text\"\"\" text, n double, d boolean)");
    executeUnseen("insert into \"own notes\" values ('a',0.1,true), ('a',2.0,null)");
    const Lines before = linesOf("select * from \"own notes\"");
    execute("delete from \"own notes\"");
    EXPECT_EQ(restore({1}).status, Status::Done);
    EXPECT_EQ(linesOf("select * from \"own notes\""), before);
    EXPECT_TRUE(contains(restore({1}).out, "恢复了 0 行，本来就在的 2 行"));
}

TEST_F(RestoreTest, ATableOfAnotherProgramWhoseRowsNothingTellsApartIsNotChangedBack) {
    executeUnseen("create table notes (a text)");
    executeUnseen("insert into notes values ('x')");
    execute("update notes set a='y'");
    const Outcome refused = restore({1});
    EXPECT_EQ(refused.status, Status::Failed);
    EXPECT_TRUE(contains(refused.complaints, "不知道表 notes 的行凭什么区分")) << refused.complaints;
}

TEST_F(RestoreTest, RowsThatAreTheSameAllComeBack) {
    executeUnseen("create table notes (a text)");
    executeUnseen("insert into notes values ('x'), ('x'), ('y'), ('x')");
    execute("delete from notes");
    executeUnseen("insert into notes values ('x')");
    EXPECT_TRUE(contains(restore({1}, {"--dry-run"}).out, "可以恢复 3 行，本来就在的 1 行"));
    EXPECT_TRUE(contains(restore({1}).out, "恢复了 3 行，本来就在的 1 行"));
    EXPECT_EQ(linesOf("select a from notes order by a"), (Lines{"4:x", "4:x", "4:x", "4:y"}));
}

TEST_F(RestoreTest, AnUpdateWhoseColumnsAreNotToldIsRefused) {
    execute("update A01 set (A0101,A0103)=('x','y')" + ofPerson);
    const Outcome refused = restore({1});
    EXPECT_EQ(refused.status, Status::Failed);
    EXPECT_TRUE(contains(refused.complaints, "看不出语句改了哪些字段")) << refused.complaints;
}

TEST_F(RestoreTest, ARestoringBeginsNoNewFile) {
    execute("update A01 set A0101='一'" + ofPerson);
    // Larger than a host's own limit is unless it says otherwise; the hole takes no room on the disk.
    std::filesystem::resize_file(journalFile(), std::uintmax_t{65} << 20U);
    EXPECT_EQ(restore({1}).status, Status::Done);
    EXPECT_FALSE(std::filesystem::exists(journalFile() + ".1"));
    EXPECT_TRUE(contains(list().out, "quillmere-journal"));
}

TEST_F(RestoreTest, ATableThatIsGoneIsTold) {
    executeUnseen("create table notes (a text)");
    executeUnseen("insert into notes values ('x')");
    execute("delete from notes");
    executeUnseen("drop table notes");
    const Outcome refused = restore({1});
    EXPECT_EQ(refused.status, Status::Failed);
    EXPECT_TRUE(contains(refused.complaints, "no such table")) << refused.complaints;
}

TEST_F(RestoreTest, RowsThatWereNotKeptAreToldToBeMissing) {
    journaled(connect(), {.file = journalFile(), .limit = 1200})->execute("delete from A02" + ofPerson);
    const Outcome restored = restore({1});
    EXPECT_EQ(restored.status, Status::Failed);
    EXPECT_TRUE(contains(restored.out, "  另有 1 行当时没有记下\n")) << restored.out;
    EXPECT_TRUE(contains(restored.out, "恢复了 2 行，本来就在的 0 行，没有恢复的 1 行。")) << restored.out;
    EXPECT_EQ(studies(), (Lines{"2:1|4:甲", "2:2|4:乙"}));
}

TEST_F(RestoreTest, AJournalThatCannotBeWrittenIsToldAndTheRowsComeBack) {
    execute("delete from A02" + ofPerson);
    using std::filesystem::perms;
    std::filesystem::permissions(journalFile(), perms::owner_read | perms::group_read | perms::others_read);
    for (const char* ending : {"", "-wal", "-shm"})
        if (std::filesystem::exists(database() + ending))
            std::filesystem::permissions(database() + ending, perms::all);
    Outcome restored;
    {
        const sqlite::OrdinaryUser user;
        restored = restore({1});
    }
    EXPECT_EQ(restored.status, Status::Done) << restored.complaints;
    EXPECT_TRUE(contains(restored.complaints, "没有记入恢复日志")) << restored.complaints;
    EXPECT_EQ(studies(), all);
}

} // namespace
} // namespace quillmere::recovery

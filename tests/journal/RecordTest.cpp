#include "JournalBench.h"

#include "adapters/journal/Checksum.h"
#include "adapters/journal/Record.h"

#include <limits>

namespace quillmere::journal {
namespace {

Entry sampleEntry() {
    Entry entry;
    entry.time = "2026-11-21 09:30:00";
    entry.who = "李 \"四\"";
    entry.kind = Kind::Update;
    entry.table = "A02";
    entry.statement = "update A02 set A0203='x\ny' where A00='it''s'";
    entry.rowsLeftOut = 3;
    entry.statementBytesLeftOut = 5;
    entry.trouble = "断线";
    return entry;
}

TEST(Checksum, IsTheOneOfTheStandard) {
    EXPECT_EQ(checksum("123456789"), 0xCBF43926U);
    EXPECT_EQ(checksum("6789", checksum("12345")), 0xCBF43926U);
    EXPECT_EQ(checksum(""), 0U);
}

TEST(EntryText, ComesBackAsItWas) {
    const auto read = readEntry(textOf(sampleEntry()));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->time, sampleEntry().time);
    EXPECT_EQ(read->who, sampleEntry().who);
    EXPECT_EQ(read->kind, Kind::Update);
    EXPECT_EQ(read->table, "A02");
    EXPECT_EQ(read->statement, sampleEntry().statement);
    EXPECT_EQ(read->rowsLeftOut, 3U);
    EXPECT_EQ(read->statementBytesLeftOut, 5U);
    EXPECT_EQ(read->trouble, "断线");
    EXPECT_TRUE(read->rows.empty());
}

TEST(EntryText, KeepsEveryValueExactly) {
    Entry entry = sampleEntry();
    entry.rows = data::RowSet({"A00", "own \n column"});
    const std::vector<data::Value> values{
        data::Value(),
        data::Value(""),
        data::Value("null"),
        data::Value("it's \"quoted\"\r\n\tQJ1 E 1 2 3\nvalue 3\nabc"),
        data::Value(std::string_view("a\0b", 3)),
        data::Value("𠮷野家 👩‍🔬 e\u0301"),
        data::Value("\xff\xfe no UTF-8"),
        data::Value(std::string(1U << 20U, '\'')),
        data::Value(true),
        data::Value(false),
        data::Value(std::numeric_limits<std::int64_t>::min()),
        data::Value(std::numeric_limits<std::int64_t>::max()),
        data::Value(0.1),
        data::Value(-0.0),
        data::Value(5.0),
        data::Value(std::numeric_limits<double>::max()),
        data::Value(std::numeric_limits<double>::denorm_min()),
        data::Value("1990-03"),
    };
    for (std::size_t i = 0; i < values.size(); i += 2)
        entry.rows.addRow({values[i], values[i + 1]});
    const auto read = readEntry(textOf(entry));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->rows.columns(), entry.rows.columns());
    ASSERT_EQ(read->rows.rowCount(), entry.rows.rowCount());
    for (std::size_t i = 0; i < values.size(); ++i)
        EXPECT_EQ(read->rows.at(i / 2, i % 2), values[i]) << i;
}

TEST(EntryText, PassesOverFieldsOfLaterVersions) {
    const auto read = readEntry("colour 4\nblau\n" + textOf(sampleEntry()));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->table, "A02");
}

TEST(EntryText, IsNotReadOutOfAnythingElse) {
    for (const char* text :
         {"x", "time\n", "time 5\nabc\n", "time x\nabc\n", "time 3\nabcd", "kind 4\nlose\n", "value 1\nn\n",
          "column 1\nA\ncolumn 1\nB\nvalue 1\nn\n", "column 1\nA\nvalue 1\nq\n", "column 1\nA\nvalue 0\n\n",
          "column 1\nA\nvalue 3\ni1x\n", "column 1\nA\nvalue 2\nr-\n"})
        EXPECT_FALSE(readEntry(text)) << text;
}

TEST(OutcomeText, ComesBackAsItWas) {
    const auto ran = readOutcome(textOf(Outcome{7, std::nullopt}));
    ASSERT_TRUE(ran);
    EXPECT_EQ(ran->entry, 7U);
    EXPECT_FALSE(ran->failure);
    const auto failed = readOutcome(textOf(Outcome{8, "失败\n"}));
    ASSERT_TRUE(failed);
    EXPECT_EQ(failed->failure, "失败\n");
    EXPECT_FALSE(readOutcome("failure 1\nx\n"));
    EXPECT_FALSE(readOutcome("entry"));
}

/// Three records, the middle one with bytes that look like a record.
class RecordsTest : public testing::Test {
protected:
    const std::string first = bytesOf(Record::Kind::Entry, 1, "one");
    const std::string second = bytesOf(Record::Kind::Entry, 2, "two\nQJ1 E 9 3 00000000\nnot\n");
    const std::string third = bytesOf(Record::Kind::Outcome, 2, textOf(Outcome{2, std::nullopt}));
    const std::string all = first + second + third;
};

TEST_F(RecordsTest, AreReadInTheirOrder) {
    const Records read = readRecords(all);
    ASSERT_EQ(read.records.size(), 3U);
    EXPECT_TRUE(read.damages.empty());
    EXPECT_FALSE(read.tornEnd);
    EXPECT_EQ(read.records[0].text, "one");
    EXPECT_EQ(read.records[1].number, 2U);
    EXPECT_EQ(read.records[2].kind, Record::Kind::Outcome);
}

TEST_F(RecordsTest, ATornEndIsPassedOverAtEveryByte) {
    for (std::size_t size = first.size() + second.size() + 1; size < all.size(); ++size) {
        const Records read = readRecords(std::string_view(all).substr(0, size));
        EXPECT_EQ(read.records.size(), 2U) << size;
        ASSERT_EQ(read.damages.size(), 1U) << size;
        EXPECT_EQ(read.damages[0].begin, first.size() + second.size());
        EXPECT_EQ(read.damages[0].end, size);
        EXPECT_TRUE(read.tornEnd);
    }
}

TEST_F(RecordsTest, WhatIsAddedBehindATornRecordIsRead) {
    for (std::size_t size = 1; size < second.size(); ++size) {
        const std::string bytes = first + second.substr(0, size) + third;
        const Records read = readRecords(bytes);
        ASSERT_EQ(read.records.size(), 2U) << size;
        EXPECT_EQ(read.records[1].kind, Record::Kind::Outcome);
        EXPECT_EQ(read.damages.size(), 1U);
        EXPECT_FALSE(read.tornEnd);
    }
}

TEST_F(RecordsTest, ADamagedByteCostsItsRecordAndNoOther) {
    for (std::size_t at = first.size(); at < first.size() + second.size(); ++at) {
        std::string bytes = all;
        bytes[at] = static_cast<char>(bytes[at] ^ 1);
        const Records read = readRecords(bytes);
        ASSERT_EQ(read.records.size(), 2U) << at;
        EXPECT_EQ(read.records[0].text, "one");
        EXPECT_EQ(read.records[1].kind, Record::Kind::Outcome);
        ASSERT_EQ(read.damages.size(), 1U) << at;
        EXPECT_EQ(read.damages[0].begin, first.size());
        EXPECT_EQ(read.damages[0].end, first.size() + second.size());
    }
}

TEST_F(RecordsTest, OfNothingAreNone) {
    EXPECT_TRUE(readRecords("").records.empty());
    EXPECT_TRUE(readRecords("").damages.empty());
    EXPECT_EQ(readRecords("no journal at all\n").damages.size(), 1U);
}

} // namespace
} // namespace quillmere::journal

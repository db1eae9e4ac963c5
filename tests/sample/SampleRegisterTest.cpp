#include "SampleDatabase.h"

#include "platform/Error.h"
#include "platform/data/ObservedConnections.h"
#include "sample/Catalogue.h"
#include "sample/Csv.h"
#include "sample/EmbeddedFiles.h"
#include "sample/Identity.h"
#include "sample/Schema.h"

#include <gtest/gtest.h>

#include <regex>

namespace quillmere::sample {
namespace {

using test::count;
using test::countOf;
using test::defaultRegister;
using test::firstColumn;
using test::makeRegister;
using test::TextRows;
using test::textRows;

/// Everything in the register, as text.
std::vector<TextRows> contents(data::Connection& connection) {
    std::vector<TextRows> all;
    for (const SetRow& set : informationSets())
        all.push_back(textRows(connection, "select * from " + set.name));
    return all;
}

TEST(SampleRegister, EveryCatalogueValueReadsBack) {
    for (const char* name : {"s_infotable", "s_infoitem", "TS_SetCustomize", "s_CodeTableDefine",
                             "s_CodeLevDefine", "ZZStyle", "DM_XZQH", "DM_MZ", "DM_XW"}) {
        const std::string table = name;
        const CsvTable csv = parseCsv(embeddedFile(table + ".csv"), table);
        const data::RowSet stored = defaultRegister().query("select * from " + table);
        ASSERT_EQ(stored.rowCount(), csv.rows().size()) << table;
        for (std::size_t r = 0; r < stored.rowCount(); ++r) {
            for (std::size_t c = 0; c < csv.columns().size(); ++c) {
                const data::Value& value = stored.at(r, csv.columns()[c]);
                const std::string text =
                    value.isBoolean() ? (value.toBoolean() ? "true" : "false") : value.toTextOrEmpty();
                ASSERT_EQ(text, csv.rows()[r][c]) << table << ' ' << r << ' ' << csv.columns()[c];
            }
        }
    }
}

TEST(SampleRegister, BooleansOfTheCatalogueAreBooleans) {
    EXPECT_TRUE(defaultRegister()
                    .query(" select Property from s_infotable  where TblName ='A01'")
                    .at(0, std::size_t{0})
                    .isBoolean());
    EXPECT_TRUE(defaultRegister().query("select * from s_infoitem").at(0, "IsNUll").isBoolean());
    EXPECT_TRUE(defaultRegister().query("select dmattr from DM_XB").at(0, std::size_t{0}).isBoolean());
}

TEST(SampleRegister, CountsAreThoseAskedFor) {
    const auto connection = makeRegister({.persons = 7, .units = 3});
    EXPECT_EQ(countOf(*connection, "select count(*) from A01"), 7);
    EXPECT_EQ(countOf(*connection, "select count(*) from B01"), 3);
    EXPECT_EQ(countOf(*connection, "select count(*) from P01"), 10);
}

TEST(SampleRegister, EmptyOneHasTheCatalogueAndNobody) {
    const auto connection = makeRegister({.people = false});
    EXPECT_GT(countOf(*connection, "select count(*) from s_infoitem"), 0);
    EXPECT_GT(countOf(*connection, "select count(*) from DM_XZQH"), 0);
    for (const TextRows& rows : contents(*connection))
        EXPECT_TRUE(rows.empty());
}

TEST(SampleRegister, MoreUnitsThanEmployersGetDifferentNames) {
    const auto connection = makeRegister({.persons = 0, .units = 60});
    EXPECT_EQ(countOf(*connection, "select count(distinct B0101) from B01"), 60);
}

TEST(SampleRegister, SameSeedMakesTheSameRegister) {
    const auto first = makeRegister();
    const auto second = makeRegister();
    EXPECT_EQ(contents(*first), contents(*second));
}

TEST(SampleRegister, AnotherSeedMakesAnother) {
    const auto other = makeRegister({.seed = 2});
    EXPECT_NE(contents(*other), contents(defaultRegister()));
}

TEST(SampleRegister, FailureLeavesNothingBehind) {
    const auto target = sqlite::openInMemory();
    data::FailingConnection failing(target);
    failing.failOn("insert into P01", "磁盘已满");
    EXPECT_THROW(build(failing, {}), Error);
    EXPECT_THROW((void)target->query("select * from A01"), Error);
    EXPECT_NO_THROW(build(failing, {}));
}

TEST(SampleRegister, CountsBelowZeroAreRefused) {
    const auto target = sqlite::openInMemory();
    EXPECT_THROW(build(*target, {.persons = -1}), Error);
}

TEST(SampleRegister, EveryStoredCodeIsAChoosableCode) {
    for (const auto& row :
         textRows(defaultRegister(),
                  "select TblName, ItemName, CodeTable from s_infoitem where CodeTable <> ''")) {
        const std::string& field = row[1];
        for (const std::string& code :
             firstColumn(defaultRegister(),
                         "select distinct " + field + " from " + row[0] + " where " + field + " <> ''")) {
            EXPECT_EQ(
                count("select count(*) from " + row[2] + " where dmcod='" + code + "' and dmattr =true"), 1)
                << field << ' ' << code;
        }
    }
}

TEST(SampleRegister, StoredDatesAreMonthsOrDays) {
    for (const auto& row :
         textRows(defaultRegister(),
                  "select TblName, ItemName, style from s_infoitem where FieldType='datetime'")) {
        const std::regex form(row[2] == "yyyy-MM-dd" ? R"(\d{4}-(0[1-9]|1[0-2])-[0-3]\d)"
                                                     : R"(\d{4}-(0[1-9]|1[0-2]))");
        for (const std::string& date :
             firstColumn(defaultRegister(),
                         "select " + row[1] + " from " + row[0] + " where " + row[1] + " is not null")) {
            EXPECT_TRUE(std::regex_match(date, form)) << row[1] << ' ' << date;
        }
    }
}

TEST(SampleRegister, StoredTextsKeepToTheirFieldsLength) {
    for (const auto& row : textRows(defaultRegister(), "select TblName, ItemName, FieldLength from "
                                                       "s_infoitem where FieldType in ('varchar','ntext')")) {
        EXPECT_EQ(count("select count(*) from " + row[0] + " where length(" + row[1] + ") > " + row[2]), 0)
            << row[1];
    }
}

TEST(SampleRegister, StoredRecordsHaveTheirRequiredFields) {
    const data::RowSet items = defaultRegister().query("select * from s_infoitem");
    for (std::size_t i = 0; i < items.rowCount(); ++i) {
        if (items.at(i, "IsNUll").toBoolean()) continue;
        const std::string table = items.at(i, "TblName").toText();
        const std::string field = items.at(i, "ItemName").toText();
        EXPECT_EQ(
            count("select count(*) from " + table + " where " + field + " is null or " + field + " = ''"), 0)
            << field;
    }
}

TEST(SampleRegister, IdentityNumbersMatchBirthdayDivisionAndSex) {
    for (const auto& row : textRows(defaultRegister(), "select A0103, A0106, A0109, A0104 from A01")) {
        EXPECT_EQ(row[0], identityNumber(row[2], row[1], row[0].substr(14, 3)));
        EXPECT_EQ((row[0][16] - '0') % 2 == 1, row[3] == "1") << row[0];
    }
}

TEST(SampleRegister, TelephoneNumbersBelongToNobody) {
    EXPECT_EQ(count("select count(*) from A01 where A0126 not like '010-0%' or A0128 not like '100%'"), 0);
    EXPECT_EQ(count("select count(*) from B01 where B0109 not like '010-0%' or B0112 not like '010-0%'"), 0);
}

TEST(SampleRegister, RunningNumbersCountFromOne) {
    EXPECT_EQ(count("select min(A0199) from A01"), 1);
    EXPECT_EQ(count("select max(A0199) from A01"), 200);
    EXPECT_EQ(count("select count(distinct A0199) from A01"), 200);
    EXPECT_EQ(count("select max(B0199) from B01"), 20);
}

/// The row editor numbers the schedules of two types over the whole table.
std::string ownNumbers(const std::string& set) {
    return set != "P02" ? "" : " where A00 in (select A00 from A01 where A0136 in ('01','02'))";
}

TEST(SampleRegister, SequencesRunFromOneWithoutGapsInTheSetsOrder) {
    for (const auto& row :
         textRows(defaultRegister(), "select tblname, iif(orderfield is null,tblname || '99',orderfield) "
                                     "from s_infotable where Property = false and tblname not in "
                                     "('P03','C04')")) {
        const std::string sequence = row[0] + "99";
        std::string key;
        int expected = 0;
        for (const auto& record :
             textRows(defaultRegister(), "select A00, " + sequence + " from " + row[0] + ownNumbers(row[0]) +
                                             " order by A00," + row[1])) {
            expected = record[0] == key ? expected + 1 : 1;
            key = record[0];
            EXPECT_EQ(record[1], std::to_string(expected)) << row[0] << ' ' << key;
        }
    }
}

TEST(SampleRegister, EveryPersonAndUnitHasOneProject) {
    EXPECT_EQ(count("select count(*) from (select A00 from A01 union all select A00 from B01)"), 220);
    EXPECT_EQ(count("select count(*) from P01 where A00 in (select A00 from A01 union select A00 from B01)"),
              220);
    EXPECT_EQ(count("select count(distinct A00) from P01"), 220);
}

TEST(SampleRegister, AllStagesAndTypesButTheCollectiveOneOccur) {
    EXPECT_EQ(firstColumn(defaultRegister(), "select distinct P0123 from P01 order by P0123"),
              (std::vector<std::string>{"01", "02", "03"}));
    EXPECT_EQ(firstColumn(defaultRegister(), "select distinct A0136 from A01 order by A0136"),
              (std::vector<std::string>{"01", "02", "03", "04", "05", "07"}));
}

TEST(SampleRegister, ProjectsUnderWayHaveANumberOfSixteenCharacters) {
    EXPECT_EQ(count("select count(*) from P01 where P0123='01' and P0120 <> ''"), 0);
    EXPECT_EQ(
        count(
            "select count(*) from P01 where P0123<>'01' and (length(P0120) <> 16 or P0120 not like 'KVEL%')"),
        0);
}

TEST(SampleRegister, IdentifierTableMakesIdentifiersInBraces) {
    const auto connection = makeRegister({.people = false});
    const std::regex form(R"(\{[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}\})");
    connection->execute("insert into S_GUID(val) values('a')");
    connection->execute("insert into S_GUID(val) values('a')");
    const auto ids = firstColumn(*connection, "select id from S_GUID where val='a'");
    ASSERT_EQ(ids.size(), 2U);
    for (const std::string& id : ids)
        EXPECT_TRUE(std::regex_match(id, form)) << id;
    EXPECT_NE(ids[0], ids[1]);
}

class SampleSchema : public testing::Test {
protected:
    std::shared_ptr<data::Connection> connection_ = makeRegister({.people = false});
    bool accepts(std::string_view sql) {
        try {
            connection_->execute(sql);
        } catch (const Error&) {
            return false;
        }
        return true;
    }
};

TEST_F(SampleSchema, KeyOfAPersonIsUniqueUntilItsIndexIsDropped) {
    EXPECT_TRUE(accepts("insert into A01 (A00,A0101) values('x','a')"));
    EXPECT_FALSE(accepts("insert into A01 (A00,A0101) values('x','b')"));
    EXPECT_TRUE(accepts("drop index UX_A01_A00"));
    EXPECT_TRUE(accepts("insert into A01 (A00,A0101) values('x','b')"));
}

TEST_F(SampleSchema, SequenceMayRepeatWhileRecordsAreRenumbered) {
    EXPECT_TRUE(accepts("insert into A02 (A00,A0299) values('x','1')"));
    EXPECT_TRUE(accepts("insert into A02 (A00,A0299) values('x','1')"));
}

TEST_F(SampleSchema, ValuesOfTheWrongKindFailInTheStatement) {
    EXPECT_FALSE(accepts("insert into B01 (A00,B0113) values('x','many')"));
    EXPECT_FALSE(accepts("insert into P04 (A00,P0499,P0405) values('x','1','2')"));
    EXPECT_FALSE(accepts("insert into A02 (A00,A0299) values('x','first')"));
    EXPECT_FALSE(accepts("insert into A01 (A00,A0101) values('x','" + std::string(256, 'a') + "')"));
    EXPECT_FALSE(accepts("insert into A01 (A0101) values('a')"));
}

TEST_F(SampleSchema, ValuesAtTheLimitPass) {
    EXPECT_TRUE(accepts("insert into A01 (A00,A0101) values('x','" + std::string(255, 'a') + "')"));
    EXPECT_TRUE(accepts("insert into P04 (A00,P0499,P0405) values('x','1','1')"));
    EXPECT_TRUE(accepts("insert into B01 (A00,B0113) values('x','12.5')"));
    EXPECT_EQ(textRows(*connection_, "select B0113 from B01"), (TextRows{{"12.5"}}));
}

TEST_F(SampleSchema, MonthsStayAsTheyAreWritten) {
    EXPECT_TRUE(accepts("insert into P01 (A00,P0106,P0107) values('x','2026.10','1990-03')"));
    EXPECT_EQ(textRows(*connection_, "select P0106,P0107 from P01"), (TextRows{{"2026.10", "1990-03"}}));
}

TEST_F(SampleSchema, NamesCompareWithoutRegardToCase) {
    EXPECT_TRUE(accepts("insert into A01 (A00,A0101) values('ab-c','Smith')"));
    EXPECT_EQ(countOf(*connection_, "select count(*) from a01 where a00 ='AB-C' and a0101='SMITH'"), 1);
}

TEST(SampleSchemaText, EveryDialectDeclaresTheSameColumns) {
    const SetRow set{
        "Z01",
        false,
        {{"A00", "varchar"}, {"Z0199", "int"}, {"Z0101", "Ntext"}, {"Z0102", "bit"}, {"Z0103", "int"}}};
    EXPECT_EQ(
        dataTableStatement(set, dialectOf(Engine::PostgreSql)),
        "create table Z01 (A00 text COLLATE jet_ci NOT NULL, Z0199 integer NOT NULL DEFAULT 0 CHECK (Z0199 "
        "between "
        "-2147483648 and 2147483647), Z0101 text COLLATE jet_ci, Z0102 boolean DEFAULT false CHECK (Z0102 in "
        "(false,true)), Z0103 float8 CHECK (Z0103 between -2147483648 and 2147483647))");
    EXPECT_EQ(
        dataTableStatement(set, dialectOf(Engine::Sqlite)),
        "create table Z01 (A00 TEXT COLLATE NOCASE NOT NULL, Z0199 INTEGER NOT NULL DEFAULT 0 CHECK (Z0199 "
        "between "
        "-2147483648 and 2147483647), Z0101 TEXT COLLATE NOCASE, Z0102 BOOLEAN DEFAULT false CHECK (Z0102 in "
        "(false,true)), Z0103 NUMERIC CHECK (Z0103 between -2147483648 and 2147483647))");
}

TEST(SampleSchemaText, FieldOfAnUnknownTypeIsRefused) {
    EXPECT_THROW((void)dataTableStatement({"Z01", true, {{"Z0101", "money"}}}, dialectOf(Engine::Sqlite)),
                 Error);
}

} // namespace
} // namespace quillmere::sample

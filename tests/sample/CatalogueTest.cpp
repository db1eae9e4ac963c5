#include "SampleDatabase.h"

#include "platform/text/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>

namespace quillmere::sample {
namespace {

using test::column;
using test::countOf;
using test::defaultRegister;
using test::TextRows;
using test::textRows;

TextRows rows(std::string_view sql) { return textRows(defaultRegister(), sql); }
std::string cell(std::string_view sql) { return rows(sql).at(0).at(0); }

std::set<std::string> setOf(std::string_view sql) {
    const auto values = column(sql);
    return {values.begin(), values.end()};
}

/// Runs a query that finds what is wrong; each row found is one failure.
void expectNone(std::string_view sql) {
    for (const auto& row : rows(sql))
        ADD_FAILURE() << text::join(row, " | ") << "  from  " << sql;
}

TEST(SampleCatalogue, HoldsEverySetThatTheMenusNeed) {
    const std::set<std::string> sets = setOf("select tblname from s_infotable");
    for (const char* name :
         {"A01", "A02", "A03",   "A04",   "A05",   "A06",   "A07",   "A08", "A09", "A10", "A11", "A12",
          "B01", "B02", "C01",   "C02",   "C03",   "C04",   "C05",   "C06", "C07", "P01", "P02", "P03",
          "P04", "P05", "P06",   "P07",   "P08",   "P10",   "P11",   "P12", "P13", "P14", "P15", "P16",
          "P17", "P18", "Plan1", "Plan2", "Plan3", "Plan4", "Plan5", "E02", "E05", "E06", "E07", "E08",
          "F02", "F03", "F04",   "F05",   "F07",   "F08",   "F09",   "M02", "M03", "M04", "M05", "M06",
          "M07", "M08", "N02",   "N03",   "N04",   "N05",   "N06",   "N07"}) {
        EXPECT_TRUE(sets.contains(name)) << name;
    }
    EXPECT_EQ(sets.size(), 68U);
}

TEST(SampleCatalogue, CaptionsThatNavigationComparesStand) {
    EXPECT_EQ(cell("select tbldesc from s_infotable where tblname='P02'"), "项目工作进度计划");
    EXPECT_EQ(cell("select tbldesc from s_infotable where tblname='P03'"), "经费使用安排");
    EXPECT_EQ(cell("select tbldesc from s_infotable where tblname='C04'"), "项目总体经费使用…");
}

TEST(SampleCatalogue, NoOtherSetBearsACaptionThatNavigationCompares) {
    EXPECT_EQ(countOf(defaultRegister(), "select count(*) from s_infotable where tbldesc in "
                                         "('项目工作进度计划','经费使用安排','项目总体经费使用…')"),
              3);
}

TEST(SampleCatalogue, MenuOrderHasNoTies) {
    expectNone("select OtherProp, count(*) from s_infotable group by OtherProp having count(*) > 1");
    expectNone("select TblName, FldOrder from s_infoitem group by TblName, FldOrder having count(*) > 1");
}

TEST(SampleCatalogue, EverySetSaysWhetherItIsSingle) {
    expectNone("select tblname from s_infotable where Property is null or tbldesc is null");
}

TEST(SampleCatalogue, EverySetHasItsTableWithEveryField) {
    for (const auto& row : rows("select TblName, ItemName from s_infoitem")) {
        const data::RowSet table = defaultRegister().query("select * from " + row[0] + " where 1=0");
        EXPECT_TRUE(table.findColumn(row[1]).has_value()) << row[0] << '.' << row[1];
        EXPECT_EQ(table.columns().front(), "A00") << row[0];
    }
    expectNone("select TblName from s_infoitem where TblName not in (select tblname from s_infotable)");
}

TEST(SampleCatalogue, FieldsAreUniqueWithinTheirSet) {
    expectNone("select TblName, ItemName from s_infoitem group by TblName, ItemName having count(*) > 1");
    expectNone("select TblName, ItemDesc from s_infoitem where ItemDesc <> '' group by TblName, ItemDesc "
               "having count(*) > 1");
}

TEST(SampleCatalogue, DescriptionsAreUsableAsAliases) {
    for (const auto& row : rows("select TblName, ItemName, ItemDesc from s_infoitem where ItemDesc <> ''")) {
        const std::string& alias = row[2];
        EXPECT_NO_THROW((void)defaultRegister().query("select 1 as " + alias)) << alias;
        EXPECT_EQ(alias.find_first_of(" ()/\\,;:.'\"-+*%&<>="), std::string::npos) << alias;
        EXPECT_FALSE(alias.front() >= '0' && alias.front() <= '9') << alias;
    }
}

TEST(SampleCatalogue, DescriptionsOfGridsFitTheShortestNameLimit) {
    // An engine that cuts names at 63 bytes would head the grid's column otherwise.
    expectNone("select TblName, ItemDesc from s_infoitem where length(ItemDesc) > 21 and TblName in "
               "(select tblname from s_infotable where Property = false)");
}

TEST(SampleCatalogue, EveryMultiRecordSetTiesItsGridToTheSequence) {
    for (const auto& row : rows("select tblname, Property from s_infotable")) {
        const int sequences =
            countOf(defaultRegister(), "select count(*) from s_infoitem where itemdesc <>'' and tblname = '" +
                                           row[0] + "' and itemname = '" + row[0] + "99'");
        EXPECT_EQ(sequences, row[1] == "True" ? 0 : 1) << row[0];
    }
}

TEST(SampleCatalogue, OrderFieldsAreRequiredFieldsOfTheirSet) {
    for (const auto& row : rows("select tblname, orderfield from s_infotable where orderfield <> ''")) {
        for (const std::string& field : text::split(row[1], ",")) {
            if (field == row[0] + "99") continue;
            const data::RowSet item = defaultRegister().query("select * from s_infoitem where TblName='" +
                                                              row[0] + "' and ItemName='" + field + "'");
            ASSERT_EQ(item.rowCount(), 1U) << field;
            EXPECT_FALSE(item.at(0, "IsNUll").toBoolean()) << field;
        }
    }
}

TEST(SampleCatalogue, TypesLengthsAndWidthsAreOfUse) {
    for (const auto& row : rows("select ItemName, FieldType, FieldLength, FldWidth from s_infoitem")) {
        const std::string type = text::lower(row[1]);
        EXPECT_TRUE(type == "varchar" || type == "int" || type == "datetime" || type == "ntext" ||
                    type == "bit")
            << row[0] << ' ' << row[1];
        EXPECT_GT(std::stoi(row[2]), 0) << row[0];
        EXPECT_GE(std::stoi(row[3]), 500) << row[0];
        EXPECT_LE(std::stoi(row[3]), 4000) << row[0];
    }
}

TEST(SampleCatalogue, DatesHaveAPictureAndNothingElseHas) {
    for (const auto& row : rows("select ItemName, FieldType, style from s_infoitem")) {
        const bool picture = row[2] == "yyyy.MM" || row[2] == "yyyy-MM" || row[2] == "yyyy-MM-dd";
        EXPECT_EQ(row[1] == "datetime", picture) << row[0];
        EXPECT_EQ(row[2] == "<null>", !picture) << row[0];
    }
}

TEST(SampleCatalogue, BothSpellingsOfTheTextTypeOccur) {
    for (const char* type : {"Varchar", "varchar", "Ntext", "int", "bit", "datetime"}) {
        EXPECT_GT(
            countOf(defaultRegister(), std::string("select count(*) from s_infoitem where FieldType = '") +
                                           type + "' collate binary"),
            0)
            << type;
    }
}

struct Rule {
    std::string field;
    std::string type;
    std::string length;
    std::string rule;
};

std::vector<Rule> rules() {
    const data::RowSet items = defaultRegister().query("select * from s_infoitem");
    std::vector<Rule> result;
    for (std::size_t i = 0; i < items.rowCount(); ++i) {
        if (items.at(i, "Check").isNull()) continue;
        result.push_back({items.at(i, "ItemName").toText(), text::lower(items.at(i, "FieldType").toText()),
                          items.at(i, "FieldLength").toText(), items.at(i, "Check").toText()});
    }
    return result;
}

TEST(SampleCatalogue, EveryRuleCanBeRead) {
    const std::regex form("B [^ ,]+,[^ ,]+|L \\d+(,\\d+)*|N \\d+,\\d+|A \\d+");
    std::set<char> letters;
    for (const Rule& rule : rules()) {
        EXPECT_TRUE(std::regex_match(rule.rule, form)) << rule.field << ' ' << rule.rule;
        letters.insert(rule.rule.front());
    }
    EXPECT_EQ(letters, (std::set<char>{'A', 'B', 'L', 'N'}));
}

TEST(SampleCatalogue, RangesStandOnDatesAndYearsAlone) {
    for (const Rule& rule : rules()) {
        if (rule.rule.front() != 'B') continue;
        EXPECT_TRUE(rule.type == "datetime" || (rule.type == "varchar" && rule.length == "4")) << rule.field;
    }
}

TEST(SampleCatalogue, PersonNeedsNothingButAName) {
    const data::RowSet items = defaultRegister().query("select * from s_infoitem where TblName='A01'");
    const std::set<std::string> masked{"A0106", "A0111", "A0115", "A0131", "A0132", "A0133", "A0134",
                                       "A0135", "A0142", "A0145", "A0146", "A0147", "A0148"};
    for (std::size_t i = 0; i < items.rowCount(); ++i) {
        const std::string name = items.at(i, "ItemName").toText();
        EXPECT_EQ(items.at(i, "IsNUll").toBoolean(), name != "A0101") << name;
        const std::string rule = items.at(i, "Check").toTextOrEmpty();
        if (rule.empty() || masked.contains(name) || name == "A0137") continue;
        const bool passesEmpty = rule.front() == 'A' || rule.front() == 'N' || rule.substr(0, 3) == "L 0";
        EXPECT_TRUE(passesEmpty) << name << ' ' << rule;
    }
}

TEST(SampleCatalogue, UnitNeedsNothingButAName) {
    const data::RowSet items = defaultRegister().query("select * from s_infoitem where TblName='B01'");
    for (std::size_t i = 0; i < items.rowCount(); ++i) {
        const std::string name = items.at(i, "ItemName").toText();
        EXPECT_EQ(items.at(i, "IsNUll").toBoolean(), name != "B0101") << name;
        const std::string rule = items.at(i, "Check").toTextOrEmpty();
        EXPECT_TRUE(name == "B0124" || rule.empty() || rule.front() == 'A' || rule.front() == 'N' ||
                    rule.substr(0, 3) == "L 0")
            << name << ' ' << rule;
    }
}

TEST(SampleCatalogue, RequiredFieldsCanBeTyped) {
    const data::RowSet items = defaultRegister().query("select * from s_infoitem");
    for (std::size_t i = 0; i < items.rowCount(); ++i) {
        if (items.at(i, "IsNUll").toBoolean()) continue;
        EXPECT_TRUE(items.at(i, "CodeTable").isNull()) << items.at(i, "ItemName").toText();
        EXPECT_NE(items.at(i, "FieldType").toText(), "bit") << items.at(i, "ItemName").toText();
    }
}

TEST(SampleCatalogue, EveryFieldOnAPanelIsExplained) {
    expectNone(
        "select ItemName from s_infoitem where ItemDesc <> '' and (FldExplain is null or FldExplain = '') "
        "and ItemName <> TblName || '99'");
}

TEST(SampleCatalogue, TextsHoldNoQuote) {
    expectNone("select ItemName from s_infoitem where ItemDesc like '%''%' or FldExplain like '%''%'");
}

TEST(SampleMenus, EveryTypeHasItsRowAndListsOnlyKnownSets) {
    const std::set<std::string> sets = setOf("select tblname from s_infotable");
    const TextRows menus =
        rows("select DmCod, PersonItem, ProjectItem, PlanItem from TS_SetCustomize order by DmCod");
    ASSERT_EQ(menus.size(), 7U);
    for (std::size_t i = 0; i < menus.size(); ++i) {
        EXPECT_EQ(menus[i][0], "0" + std::to_string(i + 1));
        for (std::size_t list = 1; list < 4; ++list) {
            const auto names = text::split(menus[i][list], ",");
            EXPECT_FALSE(names.empty()) << menus[i][0];
            EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), names.size())
                << menus[i][list];
            for (const std::string& name : names)
                EXPECT_TRUE(sets.contains(name)) << '[' << name << ']';
        }
    }
}

TEST(SampleMenus, EverySetIsReachedInAtLeastOneType) {
    std::set<std::string> reached;
    for (const auto& row : rows("select DmCod, PersonItem, ProjectItem, PlanItem from TS_SetCustomize")) {
        for (std::size_t list = 1; list < 4; ++list) {
            // Only three rows say anything about the plan group.
            if (list == 3 && row[0] != "01" && row[0] != "02" && row[0] != "06") continue;
            for (const std::string& name : text::split(row[list], ","))
                reached.insert(name);
        }
    }
    for (const std::string& name :
         column("select tblname from s_infotable where tblname like 'E%' or tblname "
                "like 'F%' or tblname like 'M%' or tblname like 'N%'")) {
        reached.insert(name);
    }
    for (const std::string& name : column("select tblname from s_infotable")) {
        EXPECT_TRUE(reached.contains(name)) << name;
    }
}

TEST(SampleMenus, FirstItemOfTheFirstGroupIsTheBaseRecord) {
    for (const auto& row : rows("select DmCod, PersonItem from TS_SetCustomize")) {
        const std::string list = "'" + text::replaceAll(row[1], ",", "','") + "'";
        EXPECT_EQ(cell("SELECT * FROM s_infotable where tblname in (" + list + ") order by otherprop"),
                  row[0] == "06" ? "B01" : "A01");
    }
}

TEST(SampleMenus, SettingForNewRecordsIsOneRow) {
    EXPECT_EQ(rows("select * from ZZStyle"), (TextRows{{"1", "2026"}}));
}

} // namespace
} // namespace quillmere::sample

#include "SampleDatabase.h"

#include "platform/text/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace quillmere::sample {
namespace {

using test::countOf;
using test::defaultRegister;
using test::firstColumn;
using test::textRows;

std::vector<std::string> tables() {
    return firstColumn(defaultRegister(), "select dmgrp from s_CodeTableDefine order by dmgrp");
}

std::vector<int> levelsOf(const std::string& table) {
    std::vector<int> levels;
    for (const std::string& bit :
         firstColumn(defaultRegister(),
                     "select bit from s_CodeLevDefine where dmgrp ='" + table + "' order by levelnum")) {
        levels.push_back(std::stoi(bit));
    }
    return levels;
}

TEST(SampleCodes, EveryCodedFieldsTableIsDefined) {
    const auto defined = tables();
    for (const std::string& table :
         firstColumn(defaultRegister(), "select distinct CodeTable from s_infoitem where CodeTable <> ''")) {
        EXPECT_TRUE(std::find(defined.begin(), defined.end(), table) != defined.end()) << table;
    }
}

TEST(SampleCodes, EveryTableIsUsedAndDescribed) {
    for (const auto& row : textRows(defaultRegister(), "select dmgrp, codtbldsc from s_CodeTableDefine")) {
        EXPECT_NE(row[1], "<null>") << row[0];
        EXPECT_GT(
            countOf(defaultRegister(), "select count(*) from s_infoitem where CodeTable='" + row[0] + "'"), 0)
            << row[0];
    }
}

TEST(SampleCodes, LevelsGrowAndCoverEveryCode) {
    for (const std::string& table : tables()) {
        const auto levels = levelsOf(table);
        ASSERT_FALSE(levels.empty()) << table;
        EXPECT_TRUE(std::is_sorted(levels.begin(), levels.end(), std::less_equal<>())) << table;
        for (const std::string& code : firstColumn(defaultRegister(), "select dmcod from " + table)) {
            const auto length = static_cast<int>(text::length(code));
            EXPECT_TRUE(std::find(levels.begin(), levels.end(), length) != levels.end())
                << table << ' ' << code;
        }
    }
}

TEST(SampleCodes, EveryCodesParentIsThere) {
    for (const std::string& table : tables()) {
        const auto levels = levelsOf(table);
        const auto column = firstColumn(defaultRegister(), "select dmcod from " + table);
        const std::set<std::string> codes(column.begin(), column.end());
        for (const std::string& code : codes) {
            const auto level = std::find(levels.begin(), levels.end(), static_cast<int>(code.size()));
            if (level == levels.begin() || level == levels.end()) continue;
            EXPECT_TRUE(codes.contains(text::left(code, static_cast<std::size_t>(*(level - 1)))))
                << table << ' ' << code;
        }
    }
}

TEST(SampleCodes, EveryRowIsCompleteAndHasItsInitials) {
    for (const std::string& table : tables()) {
        for (const auto& row :
             textRows(defaultRegister(), "select dmcod, dmcpt, dmhnd, dmattr from " + table)) {
            EXPECT_NE(row[1], "<null>") << table << ' ' << row[0];
            EXPECT_EQ(row[2].find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789"), std::string::npos)
                << table << ' ' << row[2];
            EXPECT_TRUE(row[3] == "True" || row[3] == "False") << table << ' ' << row[0];
        }
    }
}

TEST(SampleCodes, EveryTableHasSomethingToChoose) {
    for (const std::string& table : tables()) {
        EXPECT_GT(countOf(defaultRegister(), "select count(*) from " + table + " where dmattr =true"), 0)
            << table;
    }
}

TEST(SampleCodes, InitialsFollowTheReadingInUse) {
    struct Row {
        const char* table;
        const char* caption;
        const char* initials;
    };
    for (const Row& row :
         {Row{"DM_XZQH", "重庆市", "cqs"}, Row{"DM_XZQH", "单县", "sx"}, Row{"DM_XZQH", "长沙市", "css"},
          Row{"DM_XZQH", "厦门市", "xms"}, Row{"DM_XZQH", "六安市", "las"}, Row{"DM_MZ", "朝鲜族", "cxz"},
          Row{"DM_MZ", "藏族", "zz"}, Row{"DM_ZYJSZW", "会计师", "kjs"},
          Row{"DM_WHCD", "大学本科毕业", "dxbkby"}}) {
        EXPECT_EQ(firstColumn(defaultRegister(), std::string("select dmhnd from ") + row.table +
                                                     " where dmcpt='" + row.caption + "'"),
                  std::vector<std::string>{row.initials})
            << row.caption;
    }
}

TEST(SampleCodes, CountsOfTheNationalStandards) {
    EXPECT_EQ(countOf(defaultRegister(), "select count(*) from DM_XB"), 4);
    EXPECT_EQ(countOf(defaultRegister(), "select count(*) from DM_MZ"), 56);
    EXPECT_EQ(countOf(defaultRegister(), "select count(*) from DM_ZZMM"), 13);
    EXPECT_EQ(countOf(defaultRegister(), "select count(*) from DM_XZQH where len(dmcod) =2"), 34);
    EXPECT_EQ(countOf(defaultRegister(), "select count(*) from DM_SSHY where len(dmcod) =1"), 20);
    EXPECT_EQ(countOf(defaultRegister(), "select count(*) from DM_SSHY where len(dmcod) =3"), 96);
}

TEST(SampleCodes, HeadingsOfDivisionsCannotBeChosen) {
    EXPECT_EQ(
        countOf(defaultRegister(), "select count(*) from DM_XZQH where dmcpt='市辖区' and dmattr =true"), 0);
    EXPECT_GT(countOf(defaultRegister(), "select count(*) from DM_XZQH where dmcpt='市辖区'"), 0);
}

} // namespace
} // namespace quillmere::sample

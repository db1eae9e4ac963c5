#include "platform/Error.h"
#include "sample/Catalogue.h"
#include "sample/Identity.h"
#include "sample/Months.h"
#include "sample/Recipes.h"
#include "sample/RecordSpans.h"
#include "sample/RowMaker.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace quillmere::sample {
namespace {

const Pools& pools() {
    static const Pools all;
    return all;
}

class RowMakerTest : public testing::Test {
protected:
    RowMakerTest() {
        project.title = "桥梁监测";
        project.stage = "02";
        project.from = "2025-03";
        project.to = "2026-12";
        project.year = 2025;
        project.sponsoredHundredths = 1000;
        project.matchingHundredths = 1025;
    }

    std::string made(std::string_view content) { return maker.value(parseFilling(content, pools())); }

    Project project;
    Subject subject{"k", 4, "市水利规划研究所", "通信工程", monthOf(2010, 8), &project};
    Random random{1};
    RowMaker maker{pools(), random, subject};
};

TEST_F(RowMakerTest, DatesAreThoseOfTheRow) {
    maker.beginSet(2);
    maker.beginRow({monthOf(2025, 3), monthOf(2025, 11)}, 2025, false);
    EXPECT_EQ(made("start"), "2025-03");
    EXPECT_EQ(made("end"), "2025-11");
    EXPECT_EQ(made("open-end"), "2025-11");
    EXPECT_EQ(made("year"), "2025");
    EXPECT_EQ(made("report"), "2025");
    maker.beginRow({monthOf(2025, 12), monthOf(2026, 1)}, 2026, true);
    EXPECT_EQ(made("open-end"), "");
    EXPECT_EQ(made("report"), "2026");
}

TEST_F(RowMakerTest, PartsOfASumMakeItUp) {
    int sponsored = 0;
    int spent = 0;
    maker.beginSet(3);
    for (int i = 0; i < 3; ++i) {
        maker.beginRow({}, 0, i == 2);
        sponsored += static_cast<int>(std::stod(made("sponsored")) * 100 + 0.5);
        spent += static_cast<int>(std::stod(made("spent")) * 100 + 0.5);
    }
    EXPECT_EQ(sponsored, 1000);
    // A project under way has spent three fifths.
    EXPECT_EQ(spent, 600);
}

TEST_F(RowMakerTest, WordsOfASetDifferAndGoInTheirOrder) {
    const auto& tasks = pools().words("planTask");
    maker.beginSet(4);
    std::vector<std::ptrdiff_t> places;
    for (int i = 0; i < 4; ++i) {
        maker.beginRow({}, 0, false);
        const std::string task = made("pool planTask");
        places.push_back(std::ranges::find(tasks, task) - tasks.begin());
        EXPECT_EQ(made("along planTask planTarget"),
                  pools().words("planTarget")[static_cast<std::size_t>(places.back())]);
    }
    for (std::size_t i = 1; i < places.size(); ++i)
        EXPECT_EQ(places[i], places[i - 1] + 1);
}

TEST_F(RowMakerTest, ASetLongerThanItsPoolGoesRoundIt) {
    const std::size_t size = pools().words("city").size();
    maker.beginSet(2 * size);
    std::multiset<std::string> words;
    for (std::size_t i = 0; i < 2 * size; ++i) {
        maker.beginRow({}, 0, false);
        words.insert(made("pool city"));
    }
    for (const std::string& city : pools().words("city"))
        EXPECT_EQ(words.count(city), 2U) << city;
}

TEST_F(RowMakerTest, TotalIsQuantityTimesPrice) {
    const int quantity = std::stoi(made("number 2 9"));
    const int price = std::stoi(made("price 10 90"));
    EXPECT_EQ(made("product"), std::to_string(quantity * price));
}

TEST_F(RowMakerTest, IdentityFitsTheNameBeforeIt) {
    for (int i = 0; i < 20; ++i) {
        EXPECT_FALSE(made("name").empty());
        const std::string number = made("identity");
        ASSERT_EQ(number.size(), 18U);
        EXPECT_EQ(number.back(), identityCheck(number.substr(0, 17)));
    }
}

TEST_F(RowMakerTest, OwnWorkplaceComesLastAndOnce) {
    maker.beginSet(5);
    std::set<std::string> places;
    for (int i = 0; i < 5; ++i) {
        maker.beginRow({}, 0, i == 4);
        places.insert(made("workplace"));
    }
    EXPECT_EQ(places.size(), 5U);
    EXPECT_EQ(made("workplace"), "市水利规划研究所");
}

TEST_F(RowMakerTest, WhatNobodyKnowsIsRefused) {
    for (const char* content : {"", "words city", "pool", "pool city city", "number 1", "number 5 1",
                                "along planTask city", "code-along foreignCity 276", "start 1"}) {
        EXPECT_THROW((void)parseFilling(content, pools()), Error) << content;
    }
    EXPECT_THROW((void)parseFilling("pool nowhere", pools()), Error);
    EXPECT_THROW((void)parseFilling("code DM_NOWHERE", pools()), Error);
}

TEST_F(RowMakerTest, StretchesFollowOneAnotherInTheScope) {
    const SetRecipe plan{"P02", false, Scope::Project, 3, 3, 1, 100, {}};
    const auto spans = recordSpans(plan, subject, random);
    ASSERT_EQ(spans.size(), 3U);
    EXPECT_EQ(monthText(spans.front().span.from), "2025-03");
    EXPECT_EQ(monthText(spans.back().span.to), "2026-12");
    for (std::size_t i = 1; i < spans.size(); ++i)
        EXPECT_EQ(spans[i].span.from, spans[i - 1].span.to + 1);
}

TEST_F(RowMakerTest, ReportsCoverTheYearsThatAreOver) {
    project.year = 2024;
    project.to = "2026-12";
    const auto spans = recordSpans({"E06", false, Scope::Next, 1, 1, 1, 100, {}}, subject, random);
    ASSERT_EQ(spans.size(), 2U);
    EXPECT_EQ(spans[0].reportYear, 2024);
    EXPECT_EQ(monthText(spans[0].span.from), "2025-01");
    EXPECT_EQ(spans[1].reportYear, 2025);
    EXPECT_EQ(monthText(spans[1].span.to), "2026-12");
}

TEST(Months, CountAndReadBack) {
    EXPECT_EQ(monthText(monthOf(2026, 12)), "2026-12");
    EXPECT_EQ(monthFrom("1998-01"), monthOf(1998, 1));
    EXPECT_EQ(yearOf(monthOf(2025, 12)), 2025);
}

TEST(Months, MorePartsThanMonthsHaveAMonthEach) {
    const Span two{monthOf(2026, 1), monthOf(2026, 2)};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(two.part(i, 5).from, two.part(i, 5).to);
        EXPECT_LE(two.part(i, 5).to, two.to);
    }
}

TEST(RecordRecipes, FillEveryFieldOfTheirSet) {
    // The writers of people, units and projects fill these.
    const std::set<std::string> elsewhere{"A01", "A02", "A03", "A08", "B01", "B02", "P01", "Plan1"};
    const auto recipes = recordRecipes(pools());
    EXPECT_EQ(recipes.size() + elsewhere.size(), informationSets().size());
    for (const SetRow& set : informationSets()) {
        if (elsewhere.contains(set.name)) continue;
        const auto recipe = std::ranges::find(recipes, set.name, &SetRecipe::name);
        ASSERT_NE(recipe, recipes.end()) << set.name;
        for (const FieldRow& field : set.fields) {
            if (field.name == "A00" || field.name == set.name + "99") continue;
            EXPECT_NE(std::ranges::find(recipe->fields, field.name, &FieldRecipe::name), recipe->fields.end())
                << field.name;
        }
    }
}

} // namespace
} // namespace quillmere::sample

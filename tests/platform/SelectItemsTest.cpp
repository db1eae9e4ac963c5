#include "platform/data/SelectItems.h"

#include <gtest/gtest.h>

namespace quillmere::data {
namespace {

using Texts = std::vector<std::string>;

/// The names of a query's items.
Texts namesOf(std::string_view sql) {
    const std::vector<Token> tokens = tokensOf(sql);
    Texts names;
    for (const TokenSpan& item : selectItems(tokens))
        names.push_back(columnName(item));
    return names;
}

TEST(SelectItems, ItemsEndAtCommasOutsideBracketsAndTexts) {
    EXPECT_EQ(namesOf("select iif(a is null,'x,y',a) as A, mid(b,1,(2)) as B from t"), (Texts{"A", "B"}));
    EXPECT_EQ(namesOf("SELECT distinct A0201 学校 , /* from */ t.A0202 -- from\n from t"),
              (Texts{"学校", "A0202"}));
}

TEST(SelectItems, TheListEndsBeforeWhatFollowsIt) {
    for (const char* rest : {"", ";", " from t", " where a=1", " order by c,d", " union select c,d"})
        EXPECT_EQ(namesOf(std::string("select a,b") + rest), (Texts{"a", "b"})) << rest;
}

TEST(SelectItems, OtherStatementsHaveNone) {
    EXPECT_TRUE(namesOf("update t set a=1, b=2").empty());
    EXPECT_TRUE(namesOf("").empty());
}

TEST(SelectItems, AQuotedNameStandsWithoutItsQuotes) {
    EXPECT_EQ(namesOf("select a as \"a \"\"b\"\", c\""), (Texts{"a \"b\", c"}));
}

TEST(SelectItems, AnItemWithoutANameHasNone) {
    EXPECT_EQ(namesOf("select len(a), 'text', t.*"), (Texts{"", "", ""}));
}

} // namespace
} // namespace quillmere::data

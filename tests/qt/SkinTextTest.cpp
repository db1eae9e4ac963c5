#include "adapters/qt/SkinText.h"

#include <gtest/gtest.h>

#include <QColor>

namespace quillmere::test {

namespace {

TEST(SkinTextTest, DeclarationsAreTakenOutOfTheRules) {
    const qt::SkinText skin = qt::readSkin(QStringLiteral(
        "/* @hidden: #111111; */\n@one: #102030;\n@two :red ;\nA { color: @one; }\n@three:#80FFFFFF;"));
    EXPECT_EQ(QColor(0x10, 0x20, 0x30), skin.colours.value(QStringLiteral("one")));
    EXPECT_EQ(QColor(Qt::red), skin.colours.value(QStringLiteral("two")));
    EXPECT_EQ(QColor(255, 255, 255, 128), skin.colours.value(QStringLiteral("three")));
    EXPECT_EQ(3, skin.colours.size());
    EXPECT_EQ(QStringLiteral("A { color: @one; }"), skin.rules.trimmed());
    EXPECT_TRUE(skin.faults.isEmpty());
}

TEST(SkinTextTest, WhatIsNoColourIsTold) {
    const qt::SkinText skin = qt::readSkin(QStringLiteral("@one: bluish;\n@two: #12;"));
    EXPECT_TRUE(skin.colours.isEmpty());
    EXPECT_EQ(
        QStringList({QStringLiteral("@one is no colour: bluish"), QStringLiteral("@two is no colour: #12")}),
        skin.faults);
}

TEST(SkinTextTest, NamesInRulesAreReplacedWhole) {
    QStringList faults;
    const QMap<QString, QColor> colours{{QStringLiteral("a"), QColor(1, 2, 3)},
                                        {QStringLiteral("ab"), QColor(255, 255, 255, 0)}};
    EXPECT_EQ(QStringLiteral("X { color: #010203; background: #00ffffff; }"),
              qt::withColours(QStringLiteral("X { color: @a; background: @ab; }"), colours, faults));
    EXPECT_TRUE(faults.isEmpty());
}

TEST(SkinTextTest, RulesThatCannotWorkAreLeftOutAndTold) {
    QStringList faults;
    EXPECT_EQ(QString(), qt::withColours(QStringLiteral("X { color: @nowhere; }"), {}, faults));
    EXPECT_EQ(QStringList(QStringLiteral("no colour for @nowhere, rules left out")), faults);
    for (const char* rules : {"X { color: red;", "X color: red; }", "X { Y { } }"}) {
        faults.clear();
        EXPECT_EQ(QString(), qt::withColours(QLatin1String(rules), {}, faults)) << rules;
        EXPECT_EQ(QStringList(QStringLiteral("braces that do not match, rules left out")), faults) << rules;
    }
}

} // namespace

} // namespace quillmere::test

#include "sample/Arguments.h"

#include <gtest/gtest.h>

namespace quillmere::sample {
namespace {

std::string complaintOf(const std::vector<std::string>& words) {
    try {
        (void)parseArguments(words);
    } catch (const UsageError& error) {
        return error.what();
    }
    return "none";
}

TEST(Arguments, OutputAloneTakesTheDefaults) {
    const Arguments arguments = parseArguments({"--output", "a.db"});
    EXPECT_EQ(arguments.output, "a.db");
    EXPECT_EQ(arguments.options.persons, 200);
    EXPECT_EQ(arguments.options.units, 20);
    EXPECT_TRUE(arguments.options.people);
    EXPECT_FALSE(arguments.force);
    EXPECT_TRUE(arguments.photos.empty());
}

TEST(Arguments, EveryOptionIsTaken) {
    const Arguments arguments =
        parseArguments({"--persons", "3", "--units", "0", "--seed", "18446744073709551615", "--empty",
                        "--force", "--photos", "p", "--output", "b"});
    EXPECT_EQ(arguments.photos, "p");
    EXPECT_EQ(arguments.options.persons, 3);
    EXPECT_EQ(arguments.options.units, 0);
    EXPECT_EQ(arguments.options.seed, 18446744073709551615U);
    EXPECT_FALSE(arguments.options.people);
    EXPECT_TRUE(arguments.force);
}

TEST(Arguments, ADatabaseStandsInPlaceOfAFile) {
    const Arguments arguments = parseArguments({"--database", "postgresql://server/register"});
    EXPECT_EQ(arguments.database, "postgresql://server/register");
    EXPECT_EQ(arguments.output, "");
    EXPECT_EQ(complaintOf({"--database", "x", "--output", "a.db"}),
              "--output and --database exclude each other");
}

TEST(Arguments, HelpNeedsNoOutput) { EXPECT_TRUE(parseArguments({"--help"}).help); }

TEST(Arguments, WhatIsWrongIsNamed) {
    EXPECT_EQ(complaintOf({}), "--output is missing");
    EXPECT_EQ(complaintOf({"--output"}), "--output needs a value");
    EXPECT_EQ(complaintOf({"--photos"}), "--photos needs a value");
    EXPECT_EQ(complaintOf({"file.db"}), "unknown option 'file.db'");
    EXPECT_EQ(complaintOf({"--empty", "--empty"}), "--empty is given twice");
    EXPECT_EQ(complaintOf({"--units", "-1"}), "--units takes a whole number from 0 to 1000000, not '-1'");
    EXPECT_EQ(complaintOf({"--units", "3x"}), "--units takes a whole number from 0 to 1000000, not '3x'");
    EXPECT_EQ(complaintOf({"--persons", "1000001"}),
              "--persons takes a whole number from 0 to 1000000, not '1000001'");
}

TEST(Arguments, HelpNamesEveryOption) {
    for (const char* option : {"--output", "--database", "--persons", "--units", "--seed", "--photos",
                               "--empty", "--force", "--help"}) {
        EXPECT_NE(helpText().find(option), std::string_view::npos) << option;
    }
}

} // namespace
} // namespace quillmere::sample

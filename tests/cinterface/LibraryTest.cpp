#include "cinterface/DeclaredFunctions.h"
#include "cinterface/Program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <sstream>

// What the file of the library shows to the loader.

namespace quillmere::cinterface {
namespace {

const std::string library = QUILLMERE_C_LIBRARY;

std::vector<std::string> exportedNames() {
    const Ended listing = run(NM " --dynamic --defined-only --format=posix '" + library + "'");
    EXPECT_EQ(0, listing.status);
    std::vector<std::string> names;
    std::istringstream lines(listing.output);
    for (std::string line; std::getline(lines, line);)
        names.push_back(line.substr(0, line.find(' ')));
    std::sort(names.begin(), names.end());
    return names;
}

TEST(Library, ExportsTheFunctionsOfItsHeaderAndNothingElse) {
    EXPECT_EQ(24U, declaredFunctions().size());
    EXPECT_EQ(declaredFunctions(), exportedNames());
}

TEST(Library, IsKnownToTheLoaderByItsMajorVersion) {
    const Ended listing = run(READELF " --dynamic '" + library + "'");
    EXPECT_EQ(0, listing.status);
    std::smatch name;
    ASSERT_TRUE(std::regex_search(listing.output, name, std::regex(R"(SONAME\).*\[(.*)\])")));
    EXPECT_EQ("libquillmere-c.so." + std::string(QUILLMERE_MAJOR), name[1]);
}

} // namespace
} // namespace quillmere::cinterface

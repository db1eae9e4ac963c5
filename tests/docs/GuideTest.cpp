#include "support/FileText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

// A listing in a document that names its file, as <!-- examples/plain-host.cpp -->, is that file.

namespace quillmere {
namespace {

namespace fs = std::filesystem;

const fs::path root = QUILLMERE_SOURCE_DIR;

struct Listing {
    std::string file;
    std::string code;
};

std::vector<Listing> listingsOf(const std::string& document) {
    static const std::string beginning = "<!-- examples/";
    static const std::string fence = "```";
    std::vector<Listing> found;
    for (std::size_t at = document.find(beginning); at != std::string::npos;
         at = document.find(beginning, at + 1)) {
        const std::size_t name = at + std::string("<!-- ").size();
        const std::string file = document.substr(name, document.find(" -->", name) - name);
        const std::size_t code = document.find('\n', document.find(fence, name)) + 1;
        found.push_back({file, document.substr(code, document.find(fence, code) - code)});
    }
    return found;
}

TEST(GuideTest, TheListingsAreTheFilesThatTheyName) {
    std::size_t count = 0;
    for (const auto& entry : fs::directory_iterator(root / "docs")) {
        if (entry.path().extension() != ".md") continue;
        for (const Listing& listing : listingsOf(test::fileText(entry.path()))) {
            EXPECT_EQ(listing.code, test::fileText(root / listing.file))
                << entry.path() << " " << listing.file;
            ++count;
        }
    }
    EXPECT_EQ(count, 6U);
}

std::string withoutListings(std::string document) {
    static const std::string fence = "```";
    for (std::size_t at = document.find(fence); at != std::string::npos; at = document.find(fence))
        document.erase(at, document.find(fence, at + fence.size()) + fence.size() - at);
    return document;
}

/// Links to files of this repository, as [text](path#part).
std::vector<std::string> linksOf(std::string document) {
    document = withoutListings(std::move(document));
    std::vector<std::string> found;
    for (std::size_t at = document.find("]("); at != std::string::npos; at = document.find("](", at + 1)) {
        const std::string target = document.substr(at + 2, document.find(')', at) - at - 2);
        const std::string path = target.substr(0, target.find('#'));
        if (!path.empty() && path.find("://") == std::string::npos) found.push_back(path);
    }
    return found;
}

// What the clerk's guide quotes is what the system says, and what the system says is told there.

const fs::path clerksGuide = root / u8"docs/用户手册.md";

using Texts = std::vector<std::string>;

/// The string at `at`, which stands on its opening quote; `at` is left behind the closing one.
std::string stringAt(const std::string& source, std::size_t& at) {
    std::string text;
    for (++at; source[at] != '"'; ++at) {
        if (source[at] == '\\') ++at;
        text += source[at];
    }
    ++at;
    return text;
}

/// The strings of a source without those of its comments; neighbours are one string.
Texts stringsOf(const std::string& source) {
    Texts found;
    bool joined = false;
    for (std::size_t at = 0; at < source.size();) {
        if (source.compare(at, 2, "//") == 0) {
            at = std::min(source.find('\n', at), source.size());
        } else if (source[at] == '\'' &&
                   (at == 0 || std::isxdigit(static_cast<unsigned char>(source[at - 1])) == 0)) {
            at = source.find('\'', at + (source[at + 1] == '\\' ? 3 : 2)) + 1;
            joined = false;
        } else if (source[at] == '"') {
            const std::string text = stringAt(source, at);
            if (joined)
                found.back() += text;
            else
                found.push_back(text);
            joined = true;
        } else {
            if (std::isspace(static_cast<unsigned char>(source[at])) == 0) joined = false;
            ++at;
        }
    }
    return found;
}

/// The strings of every source below a folder, but not below one that is called `without`.
Texts stringsBelow(const fs::path& folder, const std::string& without = {}) {
    Texts found;
    for (auto entry = fs::recursive_directory_iterator(folder); entry != fs::recursive_directory_iterator();
         ++entry) {
        if (entry->path().filename() == without) entry.disable_recursion_pending();
        const fs::path kind = entry->path().extension();
        if (kind != ".cpp" && kind != ".h") continue;
        const Texts texts = stringsOf(test::fileText(entry->path()));
        found.insert(found.end(), texts.begin(), texts.end());
    }
    return found;
}

/// What stands between the two marks, each time.
Texts between(const std::string& document, const std::string& opening, const std::string& closing) {
    Texts found;
    for (std::size_t at = document.find(opening); at != std::string::npos; at = document.find(opening, at)) {
        at += opening.size();
        found.push_back(document.substr(at, document.find(closing, at) - at));
    }
    return found;
}

/// A caption as it is read on a button.
std::string withoutMarks(const std::string& caption) {
    std::string text = caption.substr(0, caption.find("(&"));
    std::erase(text, ' ');
    return text;
}

bool endsAsAMessage(const std::string& text) {
    return text.ends_with("？") || text.ends_with("！") || text.ends_with("。");
}

TEST(GuideTest, WhatTheClerksGuideQuotesStandsInTheSystem) {
    const Texts said = stringsBelow(root / "src");
    const Texts quoted = between(test::fileText(clerksGuide), "「", "」");
    for (const std::string& text : quoted) {
        const auto says = [&](const std::string& each) { return each.find(text) != std::string::npos; };
        EXPECT_TRUE(!text.empty() && std::ranges::any_of(said, says)) << text;
    }
    EXPECT_GT(quoted.size(), 80U);
}

TEST(GuideTest, TheButtonsOfTheClerksGuideAreThoseOfTheSystem) {
    const Texts said = stringsBelow(root / "src");
    const Texts named = between(test::fileText(clerksGuide), "【", "】");
    for (const std::string& button : named) {
        const auto bears = [&](const std::string& each) { return withoutMarks(each) == button; };
        EXPECT_TRUE(std::ranges::any_of(said, bears)) << button;
    }
    EXPECT_GT(named.size(), 40U);
}

TEST(GuideTest, TheFirstColumnOfMessagesInTheClerksGuideIsQuoted) {
    std::istringstream lines(test::fileText(clerksGuide));
    bool ofMessages = false;
    int rows = 0;
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("|")) ofMessages = false;
        if (line.starts_with("| 提示")) {
            ofMessages = true;
        } else if (ofMessages && !line.starts_with("| ---")) {
            EXPECT_TRUE(line.starts_with("| 「")) << line;
            ++rows;
        }
    }
    EXPECT_GT(rows, 30);
}

TEST(GuideTest, TheClerksGuideTellsEveryMessageOfTheSystem) {
    const std::string guide = test::fileText(clerksGuide);
    std::size_t count = 0;
    for (const char* folder : {"metadata", "binding", "photos", "panels", "save", "shell"}) {
        // The catalogue of panels has titles, no messages.
        for (std::string text : stringsBelow(root / "src" / folder, "catalogue")) {
            text.erase(text.find_last_not_of(' ') + 1);
            if (!endsAsAMessage(text)) continue;
            EXPECT_NE(guide.find(text), std::string::npos) << text;
            ++count;
        }
    }
    EXPECT_GT(count, 35U);
}

TEST(GuideTest, EveryPictureIsShownByADocument) {
    std::string documents = test::fileText(root / "README.md");
    for (const auto& entry : fs::directory_iterator(root / "docs"))
        if (entry.path().extension() == ".md") documents += test::fileText(entry.path());
    for (const auto& entry : fs::directory_iterator(root / "docs/images"))
        EXPECT_NE(documents.find("images/" + entry.path().filename().string()), std::string::npos) << entry;
}

TEST(GuideTest, EveryLinkLeadsToAFile) {
    std::vector<fs::path> documents{root / "README.md", root / "CONTRIBUTING.md", root / "sample/README.md"};
    for (const auto& entry : fs::directory_iterator(root / "docs"))
        if (entry.path().extension() == ".md") documents.push_back(entry.path());
    for (const fs::path& document : documents) {
        for (const std::string& link : linksOf(test::fileText(document)))
            EXPECT_TRUE(fs::exists(document.parent_path() / link)) << document << " " << link;
    }
}

} // namespace
} // namespace quillmere

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

// A listing in a document that names its file, as <!-- examples/plain-host.cpp -->, is that file.

namespace quillmere {
namespace {

namespace fs = std::filesystem;

const fs::path root = QUILLMERE_SOURCE_DIR;

std::string contents(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

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
        for (const Listing& listing : listingsOf(contents(entry.path()))) {
            EXPECT_EQ(listing.code, contents(root / listing.file)) << entry.path() << " " << listing.file;
            ++count;
        }
    }
    EXPECT_EQ(count, 2U);
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

TEST(GuideTest, EveryLinkLeadsToAFile) {
    std::vector<fs::path> documents{root / "README.md", root / "CONTRIBUTING.md", root / "sample/README.md"};
    for (const auto& entry : fs::directory_iterator(root / "docs"))
        if (entry.path().extension() == ".md") documents.push_back(entry.path());
    for (const fs::path& document : documents) {
        for (const std::string& link : linksOf(contents(document)))
            EXPECT_TRUE(fs::exists(document.parent_path() / link)) << document << " " << link;
    }
}

} // namespace
} // namespace quillmere

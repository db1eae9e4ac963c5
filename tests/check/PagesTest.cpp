#include "check/CheckGroup.h"
#include "check/Output.h"
#include "support/FileText.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <sstream>

// The documents of the findings say what the program says.

namespace quillmere::check {
namespace {

namespace fs = std::filesystem;

const fs::path root = QUILLMERE_SOURCE_DIR;

TEST(Pages, EveryKindHasItsPageAndEveryPageItsKind) {
    std::set<std::string> kinds;
    for (const FindingKind* kind : findingKinds())
        kinds.insert(pageOf(*kind));
    std::set<std::string> pages;
    for (const auto& entry : fs::directory_iterator(root / "docs/check"))
        pages.insert("docs/check/" + entry.path().filename().string());
    EXPECT_EQ(pages, kinds);
}

TEST(Pages, APageTellsWhatTheProgramTells) {
    for (const FindingKind* kind : findingKinds()) {
        const std::string page = test::fileText(root / pageOf(*kind));
        EXPECT_TRUE(page.starts_with("# " + std::string(kind->id) + "\n")) << kind->id;
        for (const std::string& told : {std::string(captionOf(kind->level)) + "：" + std::string(kind->title),
                                        effectOf(*kind), std::string(kind->remedy)}) {
            EXPECT_NE(page.find(told), std::string::npos) << kind->id << ": " << told;
        }
        EXPECT_NE(page.find("## 例子"), std::string::npos) << kind->id;
    }
}

TEST(Pages, TheIndexListsAllKinds) {
    std::ostringstream list;
    writeKinds(list);
    EXPECT_NE(test::fileText(root / "docs/check.md").find(list.str()), std::string::npos) << list.str();
}

} // namespace
} // namespace quillmere::check

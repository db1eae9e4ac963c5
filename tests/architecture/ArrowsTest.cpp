#include "Arrows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace quillmere::architecture {
namespace {

namespace fs = std::filesystem;

const fs::path root = QUILLMERE_SOURCE_DIR;

std::vector<fs::path> codeUnder(const fs::path& folder) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const auto extension = entry.path().extension();
        if (entry.is_regular_file() && (extension == ".h" || extension == ".cpp"))
            files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string report(const Breach& breach) {
    return breach.file + ":" + std::to_string(breach.line) + ": " + breach.reason;
}

TEST(Arrows, NoFileIncludesAgainstThem) {
    for (const char* folder : {"src", "include"}) {
        const auto files = codeUnder(root / folder);
        EXPECT_FALSE(files.empty()) << folder;
        for (const auto& file : files) {
            const std::string path = fs::relative(file, root).generic_string();
            for (const Breach& breach : breachesIn(path, contentOf(file)))
                ADD_FAILURE() << report(breach);
        }
    }
}

struct Line {
    std::string file;
    std::string text;
};

std::ostream& operator<<(std::ostream& stream, const Line& line) {
    return stream << line.file << ": " << line.text;
}

class RefusedLine : public testing::TestWithParam<Line> {};
class AcceptedLine : public testing::TestWithParam<Line> {};

TEST_P(RefusedLine, IsReportedWithItsNumber) {
    const auto breaches = breachesIn(GetParam().file, "#pragma once\n\n" + GetParam().text + "\n");
    ASSERT_EQ(breaches.size(), 1U);
    EXPECT_EQ(breaches[0].file, GetParam().file);
    EXPECT_EQ(breaches[0].line, 3);
    EXPECT_FALSE(breaches[0].reason.empty());
}

TEST_P(AcceptedLine, IsNotReported) {
    for (const Breach& breach : breachesIn(GetParam().file, GetParam().text))
        ADD_FAILURE() << report(breach);
}

INSTANTIATE_TEST_SUITE_P(
    Upward, RefusedLine,
    testing::Values(Line{"src/platform/ui/Form.h", "#include \"metadata/Catalogue.h\""},
                    Line{"src/metadata/Globals.cpp", "#include \"binding/ControlItem.h\""},
                    Line{"src/binding/FieldEvents.cpp", "#include \"panels/A1ctrlUser.h\""},
                    Line{"src/panels/A1ctrlUser.cpp", "#include \"shell/frmPersonWh.h\""},
                    Line{"src/panels/A1ctrlUser.cpp", "#include <shell/frmPersonWh.h>"},
                    Line{"src/save/Walk.cpp", "  #  include \"shell/frmPersonWh.h\" // just this once"},
                    Line{"src/platform/data/Value.h", "#include \"quillmere/IUserCtrl.h\""},
                    Line{"src/shell/IUserCtrl.cpp", "#include \"component/ClassFactory.h\""}));

INSTANTIATE_TEST_SUITE_P(
    Sideways, RefusedLine,
    testing::Values(Line{"src/binding/ControlItem.cpp", "#include \"photos/PhotoStore.h\""},
                    Line{"src/photos/PhotoStore.cpp", "#include \"binding/ControlItem.h\""},
                    Line{"src/adapters/qt/Guard.cpp", "#include \"adapters/sqlite/Statement.h\""},
                    Line{"src/adapters/qt/Guard.cpp", "#include \"panels/A1ctrlUser.h\""},
                    Line{"src/shell/frmPersonWh.cpp", "#include \"adapters/qt/QtDesktop.h\""},
                    Line{"src/shell/IUserCtrl.cpp", "#include \"quillmere.h\""},
                    Line{"src/cinterface/Entries.cpp", "#include \"shell/frmPersonWh.h\""},
                    Line{"include/quillmere/Sqlite.h", "#include \"platform/Error.h\""},
                    Line{"include/quillmere/Error.h", "#include \"platform/text/Text.h\""},
                    Line{"include/quillmere/RowSet.h", "#include <quillmere/Qt.h>"}));

INSTANTIATE_TEST_SUITE_P(Products, RefusedLine,
                         testing::Values(Line{"src/platform/text/Text.cpp", "#include <QString>"},
                                         Line{"src/platform/files/Files.cpp", "#include <unistd.h>"},
                                         Line{"src/platform/files/Files.cpp", "#include <string.h>"},
                                         Line{"src/save/SaveEngine.cpp", "#include <sqlite3.h>"},
                                         Line{"src/adapters/qt/Guard.cpp", "#include <sqlite3.h>"},
                                         Line{"src/adapters/sqlite/Statement.cpp", "#include <libpq-fe.h>"},
                                         Line{"src/adapters/sqlite/Statement.cpp",
                                              "#include <QtCore/QString>"},
                                         Line{"src/adapters/sqlite/Statement.cpp", "#include \"sqlite3.h\""},
                                         Line{"include/quillmere/Qt.h", "#include <QWidget>"}));

INSTANTIATE_TEST_SUITE_P(Unreadable, RefusedLine,
                         testing::Values(Line{"src/panels/A1ctrlUser.cpp", "#include \"A1ctrlUser.h\""},
                                         Line{"src/panels/A1ctrlUser.cpp",
                                              "#include \"../shell/frmPersonWh.h\""},
                                         Line{"src/panels/A1ctrlUser.cpp", "#include \"sample/Csv.h\""},
                                         Line{"src/panels/A1ctrlUser.cpp", "#include HEADER"}));

INSTANTIATE_TEST_SUITE_P(
    Downward, AcceptedLine,
    testing::Values(Line{"src/platform/ui/Form.h", "#include \"platform/ui/Control.h\""},
                    Line{"src/platform/ui/Form.h", "#include <vector>"},
                    Line{"src/panels/A1ctrlUser.cpp", "#include \"binding/ControlItem.h\""},
                    Line{"src/shell/IUserCtrl.cpp", "#include \"quillmere/IUserCtrl.h\""},
                    Line{"src/shell/IUserCtrl.cpp", "#include <quillmere/IUserCtrl.h>"},
                    Line{"src/platform/data/Value.h", "#include <quillmere/Value.h>"},
                    Line{"include/quillmere/Sqlite.h", "#include <quillmere/Connection.h>"},
                    Line{"src/adapters/qt/Guard.cpp", "#include <QWidget>"},
                    Line{"src/adapters/qt/Guard.cpp", "#include <QtGui/QPainter>"},
                    Line{"src/cinterface/Entries.cpp", "#include \"quillmere.h\""},
                    Line{"include/quillmere.h", "#include <stdint.h>"},
                    Line{"src/adapters/sqlite/Statement.cpp", "#include <sqlite3.h>"},
                    Line{"src/adapters/sqlite/Statement.cpp", "#include \"platform/Error.h\""},
                    Line{"src/panels/A1ctrlUser.cpp", "// #include \"shell/frmPersonWh.h\""}));

TEST(Arrows, AFileOutsideEveryLayerIsReported) {
    EXPECT_EQ(breachesIn("src/helpers/Anything.h", "").size(), 1U);
    EXPECT_EQ(breachesIn("src/Stray.cpp", "").size(), 1U);
}

TEST(Arrows, EachBreachOfAFileIsReported) {
    const auto breaches = breachesIn("src/platform/Error.h", "#include <QString>\n#include <string>\n"
                                                             "#include \"save/Walk.h\"\n");
    ASSERT_EQ(breaches.size(), 2U);
    EXPECT_EQ(breaches[0].line, 1);
    EXPECT_EQ(breaches[1].line, 3);
}

} // namespace
} // namespace quillmere::architecture

#include "ServerFolder.h"

#include "component/registration/RegistrationFile.h"
#include "component/registration/RegistrationText.h"
#include "component/server/SelfRegistration.h"
#include "platform/Error.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <functional>

// The file that makes the server known: where it stands, how it is written, and when it is refused.

namespace quillmere::component::test {
namespace {

namespace fs = std::filesystem;

const GUID someId{0x01234567, 0x89AB, 0xCDEF, {1, 2, 3, 4, 5, 6, 7, 0xF8}};
const Registration some{"/opt/quillmere/server.so", {{"Quillmere.IUserCtrl", someId}}};

class RegistrationFile : public testing::Test {
protected:
    [[nodiscard]] std::string content() const {
        std::ifstream file(home.file());
        return {std::istreambuf_iterator<char>(file), {}};
    }
    [[nodiscard]] static mode_t mode(const fs::path& path) {
        struct stat status {};
        EXPECT_EQ(lstat(path.c_str(), &status), 0);
        return status.st_mode & 07777;
    }
    void put(const std::string& text) {
        fs::create_directories(home.folder());
        chmod(home.folder().c_str(), 0700);
        std::ofstream(home.file()) << text;
        chmod(home.file().c_str(), 0600);
    }

    DataHome home;
};

TEST_F(RegistrationFile, IsNotThereUntilItIsWritten) {
    EXPECT_FALSE(readRegistration());
    removeRegistration();
    writeRegistration(some);
    ASSERT_TRUE(readRegistration());
    removeRegistration();
    EXPECT_FALSE(readRegistration());
}

TEST_F(RegistrationFile, IsWrittenAsLinesForThisUserAlone) {
    writeRegistration(some);
    EXPECT_EQ(content(), "quillmere-registration 1\n"
                         "server /opt/quillmere/server.so\n"
                         "class 01234567-89AB-CDEF-0102-0304050607F8 Quillmere.IUserCtrl\n");
    EXPECT_EQ(mode(home.file()), 0600U);
    EXPECT_EQ(mode(home.folder()), 0700U);
}

TEST_F(RegistrationFile, ReadsBackAndFindsProgramIdsWithoutRegardToCase) {
    writeRegistration(some);
    const auto read = readRegistration();
    ASSERT_TRUE(read);
    EXPECT_EQ(read->server, some.server);
    const RegisteredClass* row = read->find("quillmere.iUSERctrl");
    ASSERT_NE(row, nullptr);
    EXPECT_TRUE(IsEqualGUID(row->classId, someId));
    EXPECT_EQ(read->find("Quillmere.Other"), nullptr);
}

TEST_F(RegistrationFile, ReplacesAnEarlierOneAtAStrokeAndLeavesNothingElse) {
    writeRegistration(some);
    struct stat before {};
    stat(home.file().c_str(), &before);
    writeRegistration({"/opt/other.so", {}});
    struct stat after {};
    stat(home.file().c_str(), &after);
    EXPECT_NE(before.st_ino, after.st_ino) << "a new file took the place of the old one";
    EXPECT_EQ(readRegistration()->server, "/opt/other.so");
    EXPECT_EQ(std::distance(fs::directory_iterator(home.folder()), fs::directory_iterator()), 1);
}

TEST_F(RegistrationFile, AFailedWritingKeepsTheOldOneAndLeavesNothingElse) {
    writeRegistration(some);
    EXPECT_EQ(failureOf([] { writeRegistration({"/opt/two\nlines.so", {}}); }), number(Failure::PathAccess));
    // A folder in the place of the file: nothing can be renamed over it.
    removeRegistration();
    fs::create_directory(home.file());
    EXPECT_EQ(failureOf([] { writeRegistration(some); }), number(Failure::PathAccess));
    EXPECT_EQ(std::distance(fs::directory_iterator(home.folder()), fs::directory_iterator()), 1);
}

struct Refused {
    const char* what;
    std::function<void(const DataHome& home)> spoil;
};

const Refused refusals[] = {
    {"file writable by the group", [](const DataHome& home) { chmod(home.file().c_str(), 0620); }},
    {"file writable by others", [](const DataHome& home) { chmod(home.file().c_str(), 0602); }},
    {"folder writable by the group", [](const DataHome& home) { chmod(home.folder().c_str(), 0770); }},
    {"folder writable by others", [](const DataHome& home) { chmod(home.folder().c_str(), 0707); }},
    {"a link in the place of the file",
     [](const DataHome& home) {
         fs::rename(home.file(), home.path() / "elsewhere");
         fs::create_symlink(home.path() / "elsewhere", home.file());
     }},
    {"a link in the place of the folder",
     [](const DataHome& home) {
         fs::rename(home.folder(), home.path() / "elsewhere");
         fs::create_directory_symlink(home.path() / "elsewhere", home.folder());
     }},
    {"a file in the place of the folder",
     [](const DataHome& home) {
         fs::remove_all(home.folder());
         std::ofstream(home.folder()).close();
     }},
};

TEST(RegistrationRefused, WhenOthersCouldHaveWrittenIt) {
    for (const Refused& row : refusals) {
        const DataHome home;
        writeRegistration(some);
        row.spoil(home);
        EXPECT_EQ(failureOf([] { (void)readRegistration(); }), number(Failure::PermissionDenied)) << row.what;
    }
}

TEST(RegistrationRefused, WhenItBelongsToSomebodyElse) {
    if (geteuid() != 0) GTEST_SKIP() << "only root can give a file away";
    constexpr uid_t somebody = 65534;
    for (const bool folder : {false, true}) {
        const DataHome home;
        writeRegistration(some);
        ASSERT_EQ(chown((folder ? home.folder() : home.file()).c_str(), somebody, somebody), 0);
        EXPECT_EQ(failureOf([] { (void)readRegistration(); }), number(Failure::PermissionDenied)) << folder;
    }
}

TEST_F(RegistrationFile, IsNotWrittenIntoAFolderThatOthersCanWrite) {
    fs::create_directories(home.folder());
    chmod(home.folder().c_str(), 0777);
    EXPECT_EQ(failureOf([] { writeRegistration(some); }), number(Failure::PermissionDenied));
    EXPECT_TRUE(fs::is_empty(home.folder()));
}

TEST_F(RegistrationFile, ADamagedOneIsRefused) {
    const std::string good = registrationText(some);
    for (const std::string& text :
         {std::string(), std::string("quillmere-registration 1\n"), "x" + good, good + "class x\n",
          good + "class 01234567-89AB-CDEF-0102-0304050607F8\n", good + "other\n",
          good.substr(0, good.size() - 1), std::string("quillmere-registration 1\nserver relative.so\n"),
          good + "class 01234567-89AB-CDEF-0102-0304050607G8 Quillmere.X\n"}) {
        put(text);
        EXPECT_EQ(failureOf([] { (void)readRegistration(); }), number(Failure::InvalidCall)) << text;
    }
    put(good);
    EXPECT_TRUE(readRegistration());
}

TEST_F(RegistrationFile, StandsInTheHomeFolderWhenNoDataHomeIsChosen) {
    const std::string homeBefore = std::getenv("HOME") == nullptr ? "" : std::getenv("HOME");
    setenv("HOME", home.path().c_str(), 1);
    for (const char* chosen : {"", "relative/path"}) {
        setenv("XDG_DATA_HOME", chosen, 1);
        writeRegistration(some);
        EXPECT_TRUE(fs::exists(home.path() / ".local/share/quillmere/server.registration")) << chosen;
        fs::remove_all(home.path() / ".local");
    }
    unsetenv("HOME");
    EXPECT_EQ(failureOf([] { writeRegistration(some); }), number(Failure::PathNotFound));
    setenv("HOME", homeBefore.c_str(), 1);
}

TEST_F(RegistrationFile, TakingBackLeavesTheRegistrationOfAnotherServer) {
    registerServer();
    EXPECT_EQ(readRegistration()->classes.size(), 75U);
    unregisterServer();
    EXPECT_FALSE(readRegistration());
    writeRegistration(some);
    unregisterServer();
    EXPECT_TRUE(readRegistration());
}

} // namespace
} // namespace quillmere::component::test

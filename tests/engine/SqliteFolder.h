#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <unistd.h>

namespace quillmere::sqlite {

/// A folder of its own for each test; what is in it goes with the test.
class SqliteFolder : public testing::Test {
protected:
    SqliteFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "quillmere-sqlite-XXXXXX").string();
        folder = mkdtemp(pattern.data());
        // Some tests give up the superuser's rights.
        std::filesystem::permissions(folder, std::filesystem::perms::all);
    }
    ~SqliteFolder() override { std::filesystem::remove_all(folder); }
    SqliteFolder(const SqliteFolder&) = delete;
    SqliteFolder& operator=(const SqliteFolder&) = delete;

    [[nodiscard]] std::string path(const std::string& name = "register.db") const { return folder / name; }

    /// Makes a file read-only for everybody.
    void forbidWriting(const std::string& file) const {
        using std::filesystem::perms;
        std::filesystem::permissions(file, perms::owner_read | perms::group_read | perms::others_read);
    }

    std::filesystem::path folder;
};

/// For its lifetime the process has no rights over the files of others: the superuser may write
/// read-only files, an ordinary user may not.
class OrdinaryUser {
public:
    OrdinaryUser() {
        constexpr uid_t nobody = 65534;
        if (geteuid() == 0) lowered_ = seteuid(nobody) == 0;
    }
    ~OrdinaryUser() {
        if (lowered_ && seteuid(0) != 0) std::abort();
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    bool lowered_ = false;
};

} // namespace quillmere::sqlite

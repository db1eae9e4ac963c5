#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace quillmere::test {

/// Where a test keeps a register as a file: a folder of its own, which goes with this object.
class RegisterFile {
public:
    RegisterFile() {
        std::string pattern = (std::filesystem::temp_directory_path() / "quillmere-faults-XXXXXX").string();
        folder_ = mkdtemp(pattern.data());
        // Some tests give up the superuser's rights.
        std::filesystem::permissions(folder_, std::filesystem::perms::all);
    }
    ~RegisterFile() { std::filesystem::remove_all(folder_); }
    RegisterFile(const RegisterFile&) = delete;
    RegisterFile& operator=(const RegisterFile&) = delete;

    [[nodiscard]] std::string path(const std::string& name = "register.db") const { return folder_ / name; }

    /// Makes the file read-only for everybody.
    void forbidWriting() const {
        using std::filesystem::perms;
        std::filesystem::permissions(path(), perms::owner_read | perms::group_read | perms::others_read);
    }

private:
    std::filesystem::path folder_;
};

} // namespace quillmere::test

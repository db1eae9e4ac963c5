#pragma once

#include "platform/data/Connection.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace quillmere::component::test {

/// What a program printed, and how it ended.
struct Outcome {
    int code = -1;
    std::string output;
};

/// Runs a command line of the shell; both streams come back together.
[[nodiscard]] Outcome run(const std::string& command);

/// Makes a database file with the least that a register has, and gives its connection.
[[nodiscard]] std::shared_ptr<data::Connection> makeLeastRegister(const std::string& path);

/// A folder of the running test, empty at first and removed with this object, which is also the data home of
/// this user for as long.
class DataHome {
public:
    DataHome();
    ~DataHome();
    DataHome(const DataHome&) = delete;
    DataHome& operator=(const DataHome&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return folder_; }
    /// Where the registration stands.
    [[nodiscard]] std::filesystem::path folder() const { return folder_ / "quillmere"; }
    [[nodiscard]] std::filesystem::path file() const { return folder() / "server.registration"; }

private:
    std::filesystem::path folder_;
    std::string before_;
    bool hadBefore_ = false;
};

/// A server in a folder of its own, with the toolkit given beside it (none for an empty path), registered for
/// this user.
class ServerFolder {
public:
    explicit ServerFolder(const std::filesystem::path& toolkit = {});

    [[nodiscard]] const DataHome& home() const { return home_; }
    [[nodiscard]] std::filesystem::path server() const { return home_.path() / "quillmere-server.so"; }

private:
    DataHome home_;
};

} // namespace quillmere::component::test

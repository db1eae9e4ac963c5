#include "ServerFolder.h"

#include "adapters/sqlite/SqliteConnection.h"
#include "component/loader/LoadedServer.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>

namespace quillmere::component::test {

namespace fs = std::filesystem;

Outcome run(const std::string& command) {
    Outcome outcome;
    std::FILE* pipe = popen((command + " 2>&1").c_str(), "r");
    if (pipe == nullptr) return outcome;
    std::array<char, 512> block{};
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), pipe))
        outcome.output.append(block.data(), count);
    const int status = pclose(pipe);
    outcome.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return outcome;
}

std::shared_ptr<data::Connection> makeLeastRegister(const std::string& path) {
    sqlite::OpenOptions options;
    options.path = path;
    options.create = true;
    auto connection = sqlite::open(options);
    connection->execute("create table s_infotable (tblname text)");
    return connection;
}

DataHome::DataHome() {
    const auto* info = testing::UnitTest::GetInstance()->current_test_info();
    const std::string name = "quillmere-" + std::to_string(getpid()) + "-" + info->name();
    std::string clean;
    for (const char character : name)
        clean += character == '/' ? '-' : character;
    folder_ = fs::canonical(fs::temp_directory_path()) / clean;
    fs::remove_all(folder_);
    fs::create_directories(folder_);
    if (const char* value = std::getenv("XDG_DATA_HOME")) {
        before_ = value;
        hadBefore_ = true;
    }
    setenv("XDG_DATA_HOME", folder_.c_str(), 1);
}

DataHome::~DataHome() {
    if (hadBefore_)
        setenv("XDG_DATA_HOME", before_.c_str(), 1);
    else
        unsetenv("XDG_DATA_HOME");
    std::error_code ignored;
    fs::permissions(folder(), fs::perms::owner_all, ignored);
    fs::remove_all(folder_, ignored);
}

ServerFolder::ServerFolder(const fs::path& toolkit) {
    fs::create_symlink(SERVER, server());
    if (!toolkit.empty()) fs::create_symlink(toolkit, home_.path() / "quillmere-toolkit.so");
    const LoadedServer loaded(server().string());
    loaded.registerServer();
}

} // namespace quillmere::component::test

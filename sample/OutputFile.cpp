#include "sample/OutputFile.h"

#include "adapters/sqlite/SqliteConnection.h"
#include "platform/Error.h"
#include "platform/data/ObservedConnections.h"

#include <filesystem>
#include <system_error>

namespace quillmere::sample {
namespace {

namespace fs = std::filesystem;

/// 128 MB, which keeps the upper pages of every table and index at hand.
constexpr auto largeCache = "pragma cache_size=-131072";

fs::path pathOf(const std::string& utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

void removeQuietly(const fs::path& path) {
    std::error_code ignored;
    fs::remove(path, ignored);
}

} // namespace

void fillFile(const std::string& path, bool replace, const FillConnection& fill) {
    const fs::path target = pathOf(path);
    if (fs::exists(target) && !replace) {
        throw Error(Failure::PermissionDenied, "文件已存在：" + path, "quillmere-sample");
    }
    const std::string unfinished = path + ".unfinished";
    removeQuietly(pathOf(unfinished));
    try {
        // A write-ahead log would leave a second file beside one that is meant to be handed on.
        const auto connection = sqlite::open({.path = unfinished, .create = true, .writeAheadLog = false});
        // The file is thrown away when anything fails, so nothing has to be taken back or to outlast a power
        // failure before it is complete. The settings hold for this connection alone.
        connection->execute("pragma journal_mode=off");
        connection->execute("pragma synchronous=off");
        connection->execute("pragma locking_mode=exclusive");
        connection->execute(largeCache);
        fill(connection);
        connection->close();
    } catch (...) {
        removeQuietly(pathOf(unfinished));
        throw;
    }
    std::error_code failure;
    fs::rename(pathOf(unfinished), target, failure);
    if (!failure) return;
    removeQuietly(pathOf(unfinished));
    throw Error(Failure::PathAccess, "不能写入文件：" + path + "（" + failure.message() + "）",
                "quillmere-sample");
}

void buildFile(const std::string& path, const Options& options, bool replace,
               const std::function<void(std::string_view statement)>& listen) {
    fillFile(path, replace, [&](const auto& connection) {
        data::RecordingConnection observed(connection, listen);
        observed.keepStatements(false);
        build(observed, options);
    });
}

} // namespace quillmere::sample

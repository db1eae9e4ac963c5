#include "platform/files/Files.h"

#include "platform/Error.h"
#include "platform/files/FileSystem.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace quillmere::files {

namespace fs = std::filesystem;

namespace {

/// Texts are UTF-8 whatever the machine's own encoding of paths is.
fs::path pathOf(std::string_view path) {
    const std::string text = native(path);
    return {std::u8string(text.begin(), text.end())};
}

Failure failureOf(const std::error_code& error) {
    if (error == std::errc::no_such_file_or_directory) return Failure::PathNotFound;
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
        error == std::errc::read_only_file_system)
        return Failure::PermissionDenied;
    return Failure::PathAccess;
}

void requireFile(const fs::path& path) {
    std::error_code ignored;
    if (!fs::is_regular_file(path, ignored)) throw Error(Failure::FileNotFound);
}

void raiseOn(const std::error_code& error) {
    if (error) throw Error(failureOf(error));
}

/// A folder, a read-only file and the source itself are not copied over, whatever rights a user has.
bool mayBeReplaced(const fs::path& target, const fs::path& source) {
    std::error_code ignored;
    const fs::file_status status = fs::status(target, ignored);
    if (!fs::exists(status)) return true;
    const bool writable = (status.permissions() & fs::perms::owner_write) != fs::perms::none;
    return fs::is_regular_file(status) && writable && !fs::equivalent(source, target, ignored);
}

class Machine final : public FileSystem {
public:
    bool exists(std::string_view path) override {
        std::error_code ignored;
        return fs::is_regular_file(pathOf(path), ignored);
    }

    std::uint64_t size(std::string_view path) override {
        const fs::path file = pathOf(path);
        requireFile(file);
        std::error_code error;
        const std::uint64_t bytes = fs::file_size(file, error);
        raiseOn(error);
        return bytes;
    }

    std::string read(std::string_view path) override {
        const fs::path file = pathOf(path);
        requireFile(file);
        std::ifstream stream(file, std::ios::binary);
        if (!stream) throw Error(Failure::PermissionDenied);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    void removeForced(std::string_view path) override {
        const fs::path file = pathOf(path);
        requireFile(file);
        std::error_code error;
        // Some systems refuse to delete a read-only file; where they do not, failing here is no loss.
        fs::permissions(file, fs::perms::owner_write, fs::perm_options::add, error);
        fs::remove(file, error);
        raiseOn(error);
    }

    void copyOver(std::string_view from, std::string_view to) override {
        const fs::path source = pathOf(from);
        const fs::path target = pathOf(to);
        requireFile(source);
        if (!mayBeReplaced(target, source)) throw Error(Failure::PermissionDenied);
        std::error_code error;
#ifdef _WIN32
        // The GNU library takes any two files of this platform for the same one, and would not replace it.
        fs::remove(target, error);
        raiseOn(error);
#endif
        fs::copy_file(source, target, fs::copy_options::overwrite_existing, error);
        raiseOn(error);
    }
};

FileSystem* chosen = nullptr;

FileSystem& inUse() { return chosen == nullptr ? machine() : *chosen; }

} // namespace

FileSystem& machine() {
    static Machine own;
    return own;
}

void use(FileSystem* other) { chosen = other; }

bool exists(std::string_view path) { return inUse().exists(path); }

std::uint64_t size(std::string_view path) { return inUse().size(path); }

std::string read(std::string_view path) { return inUse().read(path); }

void removeForced(std::string_view path) { inUse().removeForced(path); }

void copyOver(std::string_view from, std::string_view to) { inUse().copyOver(from, to); }

std::string native(std::string_view path) {
    std::string result(path);
    constexpr char own = static_cast<char>(fs::path::preferred_separator);
    std::replace_if(
        result.begin(), result.end(), [](char c) { return c == '/' || c == '\\'; }, own);
    return result;
}

} // namespace quillmere::files

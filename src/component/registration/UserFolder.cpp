#include "component/registration/UserFolder.h"

#include "platform/Error.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <utility>

namespace quillmere::component {

namespace {

std::filesystem::path dataHome() {
    const char* chosen = std::getenv("XDG_DATA_HOME");
    if (chosen != nullptr && chosen[0] == '/') return chosen;
    const char* home = std::getenv("HOME");
    if (home == nullptr || home[0] != '/') throw Error(Failure::PathNotFound);
    return std::filesystem::path(home) / ".local/share";
}

} // namespace

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
}

Descriptor::~Descriptor() {
    if (number_ >= 0) close(number_);
}

std::string userFolderPath() { return (dataHome() / "quillmere").string(); }

void requireOwn(const Descriptor& descriptor, const std::string& path) {
    struct stat status {};
    if (fstat(descriptor.number(), &status) != 0) throw Error(Failure::PathAccess);
    if (status.st_uid != geteuid() || (status.st_mode & (S_IWGRP | S_IWOTH)) != 0) {
        throw Error(Failure::PermissionDenied, "其他用户可以修改 " + path + "，因此不予采用。", "Quillmere");
    }
}

Descriptor openUserFolder() {
    const std::string path = userFolderPath();
    Descriptor folder(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!folder && errno == ENOENT) return {};
    // A link instead of a folder is an attempt to lead elsewhere, as is a file.
    if (!folder && (errno == ELOOP || errno == ENOTDIR)) throw Error(Failure::PermissionDenied);
    if (!folder) throw Error(Failure::PathAccess);
    requireOwn(folder, path);
    return folder;
}

Descriptor makeUserFolder() {
    const std::filesystem::path path = userFolderPath();
    std::error_code failed;
    std::filesystem::create_directories(path.parent_path(), failed);
    if (mkdir(path.c_str(), S_IRWXU) != 0 && errno != EEXIST) throw Error(Failure::PathAccess);
    return openUserFolder();
}

} // namespace quillmere::component

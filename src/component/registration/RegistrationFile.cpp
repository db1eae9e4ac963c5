#include "component/registration/RegistrationFile.h"

#include "component/registration/RegistrationText.h"
#include "component/registration/UserFolder.h"
#include "platform/Error.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace quillmere::component {

namespace {

constexpr const char* fileName = "server.registration";

std::string readAll(const Descriptor& file) {
    std::string content;
    std::array<char, 4096> block{};
    for (;;) {
        const ssize_t count = read(file.number(), block.data(), block.size());
        if (count == 0) return content;
        if (count > 0)
            content.append(block.data(), static_cast<std::size_t>(count));
        else if (errno != EINTR)
            throw Error(Failure::PathAccess);
    }
}

void writeAll(const Descriptor& file, std::string_view content) {
    while (!content.empty()) {
        const ssize_t count = write(file.number(), content.data(), content.size());
        if (count > 0)
            content.remove_prefix(static_cast<std::size_t>(count));
        else if (errno != EINTR)
            throw Error(Failure::PathAccess);
    }
    // What a rename makes known must be on the disk before it.
    if (fsync(file.number()) != 0) throw Error(Failure::PathAccess);
}

/// A new file in the folder, removed again unless it is kept.
class TemporaryFile {
public:
    explicit TemporaryFile(const Descriptor& folder) : folder_(folder) {
        name_ = std::string(fileName) + "." + std::to_string(getpid());
        // One that a killed process of the same number left is of no use to anyone.
        unlinkat(folder.number(), name_.c_str(), 0);
        constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        file_ = Descriptor(openat(folder.number(), name_.c_str(), flags, S_IRUSR | S_IWUSR));
        if (!file_) throw Error(Failure::PathAccess);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (!kept_) unlinkat(folder_.number(), name_.c_str(), 0);
    }

    [[nodiscard]] const Descriptor& file() const { return file_; }
    void keepAs(const char* name) {
        const int folder = folder_.number();
        if (renameat(folder, name_.c_str(), folder, name) != 0) throw Error(Failure::PathAccess);
        kept_ = true;
        fsync(folder);
    }

private:
    const Descriptor& folder_;
    std::string name_;
    Descriptor file_;
    bool kept_ = false;
};

} // namespace

std::optional<Registration> readRegistration() {
    const Descriptor folder = openUserFolder();
    if (!folder) return std::nullopt;
    const Descriptor file(openat(folder.number(), fileName, O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK));
    if (!file && errno == ENOENT) return std::nullopt;
    if (!file && errno == ELOOP) throw Error(Failure::PermissionDenied);
    if (!file) throw Error(Failure::PathAccess);
    requireOwn(file, userFolderPath() + "/" + fileName);
    return parseRegistration(readAll(file));
}

void writeRegistration(const Registration& registration) {
    const std::string content = registrationText(registration);
    const Descriptor folder = makeUserFolder();
    TemporaryFile file(folder);
    writeAll(file.file(), content);
    file.keepAs(fileName);
}

void removeRegistration() {
    const Descriptor folder = openUserFolder();
    if (!folder) return;
    if (unlinkat(folder.number(), fileName, 0) != 0 && errno != ENOENT) throw Error(Failure::PathAccess);
}

} // namespace quillmere::component

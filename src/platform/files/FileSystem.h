#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quillmere::files {

/// The file operations that the system needs, as an interface: whoever keeps files elsewhere than on
/// the machine, or wants to see them fail, offers these. The contract of each stands in Files.h.
class FileSystem {
public:
    FileSystem() = default;
    FileSystem(const FileSystem&) = delete;
    FileSystem& operator=(const FileSystem&) = delete;
    virtual ~FileSystem() = default;

    [[nodiscard]] virtual bool exists(std::string_view path) = 0;
    [[nodiscard]] virtual std::uint64_t size(std::string_view path) = 0;
    [[nodiscard]] virtual std::string read(std::string_view path) = 0;
    virtual void removeForced(std::string_view path) = 0;
    virtual void copyOver(std::string_view from, std::string_view to) = 0;
};

/// The machine's own files.
[[nodiscard]] FileSystem& machine();

/// Chooses what the functions of Files.h work on; the caller keeps ownership, and gives the machine's
/// own files back with a null pointer.
void use(FileSystem* other);

} // namespace quillmere::files

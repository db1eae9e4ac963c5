#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace quillmere::test {

/// A JPEG of 8 by 8 grey points, filled up to `size` bytes behind its end; as small as it can be when
/// that is less.
[[nodiscard]] std::string jpegOf(std::size_t size = 0);

/// A folder of photo files for the running test, empty at first and removed with this object.
class PhotoFolder {
public:
    PhotoFolder();
    ~PhotoFolder();
    PhotoFolder(const PhotoFolder&) = delete;
    PhotoFolder& operator=(const PhotoFolder&) = delete;

    /// As a host names it, and as the system's paths begin.
    [[nodiscard]] std::string name() const { return folder_.string(); }
    [[nodiscard]] std::filesystem::path operator/(std::string_view file) const { return folder_ / file; }
    /// Writes a file and returns its path.
    std::string write(std::string_view file, std::string_view content) const;
    [[nodiscard]] bool has(std::string_view file) const;
    [[nodiscard]] std::string content(std::string_view file) const;

private:
    std::filesystem::path folder_;
};

} // namespace quillmere::test

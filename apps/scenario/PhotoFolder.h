#pragma once

#include "scenario/Transcript.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace quillmere::scenario {

/// The directory of photo files that a scenario works on.
class PhotoFolder {
public:
    /// Makes the directory anew, empty. To spare a stranger's files it must hold nothing but files, and
    /// nothing but ".jpg" files when it does not lie below the working directory; Stop otherwise.
    void make(const std::string& directory);
    /// A JPEG, or a file that is no image, of `size` bytes. Raise Stop.
    void addPicture(const std::string& name, std::size_t size) const;
    void addBadFile(const std::string& name, std::size_t size) const;
    /// A line for each file, by name.
    void list(Transcript& out) const;
    /// Where the file of that name is, or would be; an absolute path as it is. The directory stands in
    /// front once there is one.
    [[nodiscard]] std::string pathOf(const std::string& name) const;

private:
    void write(const std::string& name, std::string_view content) const;

    std::filesystem::path directory_;
};

} // namespace quillmere::scenario

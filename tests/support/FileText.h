#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace quillmere::test {

/// What a file holds, to the byte; empty when it cannot be read.
inline std::string fileText(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator(file), {}};
}

} // namespace quillmere::test

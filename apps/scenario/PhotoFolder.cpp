#include "scenario/PhotoFolder.h"

#include "scenario/Jpeg.h"
#include "scenario/Stop.h"

#include <algorithm>
#include <fstream>
#include <map>

namespace quillmere::scenario {

namespace {

namespace fs = std::filesystem;

fs::path fromUtf8(const std::string& text) { return {std::u8string(text.begin(), text.end())}; }

std::string toUtf8(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

bool liesBelow(const fs::path& path) {
    return path.is_relative() && !path.empty() && path.lexically_normal() != "." &&
           std::ranges::find(path, "..") == path.end();
}

/// Elsewhere on the machine only what looks like a photo may be removed.
bool mayGo(const fs::directory_entry& entry, bool below) {
    return entry.is_regular_file() && (below || entry.path().extension() == ".jpg");
}

} // namespace

void PhotoFolder::make(const std::string& directory) {
    const fs::path path = fromUtf8(directory);
    try {
        fs::create_directories(path);
        for (const auto& entry : fs::directory_iterator(path)) {
            if (!mayGo(entry, liesBelow(path))) throw Stop{directory + " holds more than photo files"};
        }
        for (const auto& entry : fs::directory_iterator(path))
            fs::remove(entry.path());
    } catch (const fs::filesystem_error& error) {
        throw Stop{directory + " cannot be made: " + error.code().message()};
    }
    directory_ = path;
}

void PhotoFolder::write(const std::string& name, std::string_view content) const {
    if (directory_.empty()) throw Stop{"there is no photo directory yet"};
    if (fromUtf8(name).has_parent_path()) throw Stop{name + " is no plain file name"};
    std::ofstream file(directory_ / fromUtf8(name), std::ios::binary);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    file.close();
    if (!file) throw Stop{name + " cannot be written"};
}

void PhotoFolder::addPicture(const std::string& name, std::size_t size) const {
    const auto picture = makeJpeg(size);
    if (!picture) throw Stop{"a picture needs more than " + std::to_string(size) + " bytes"};
    write(name, *picture);
}

void PhotoFolder::addBadFile(const std::string& name, std::size_t size) const {
    write(name, std::string(size, 'x'));
}

void PhotoFolder::list(Transcript& out) const {
    if (directory_.empty()) throw Stop{"there is no photo directory yet"};
    std::map<std::string, std::uintmax_t> sizes;
    for (const auto& entry : fs::directory_iterator(directory_))
        sizes.emplace(toUtf8(entry.path().filename()), entry.file_size());
    for (const auto& [name, size] : sizes)
        out.line("FILE " + name + " " + std::to_string(size));
}

std::string PhotoFolder::pathOf(const std::string& name) const { return toUtf8(directory_ / fromUtf8(name)); }

} // namespace quillmere::scenario

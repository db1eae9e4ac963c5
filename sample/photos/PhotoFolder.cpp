#include "sample/photos/PhotoFolder.h"

#include "platform/Error.h"
#include "sample/photos/JpegWriter.h"
#include "sample/photos/Portrait.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

namespace quillmere::sample {
namespace {

namespace fs = std::filesystem;

constexpr int quality = 85;
constexpr int registerYear = 2026;

[[noreturn]] void cannotWrite(const std::string& path) {
    throw Error(Failure::PathAccess, "不能写入照片：" + path, "quillmere-sample");
}

/// What chance makes of an identity, the same on every machine.
std::uint64_t looksOf(std::string_view personID) {
    std::uint64_t hash = 0xCBF29CE484222325ULL;
    for (const char c : personID)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3ULL;
    return hash;
}

void writeFile(const fs::path& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) cannotWrite(path.string());
}

} // namespace

int writePhotos(data::Connection& connection, const std::string& folder) {
    const fs::path directory(std::u8string(folder.begin(), folder.end()));
    std::error_code failure;
    fs::create_directories(directory, failure);
    if (failure) cannotWrite(folder);
    const data::RowSet people = connection.query("select A00, A0104, A0106 from A01");
    int written = 0;
    for (std::size_t i = 0; i < people.rowCount(); ++i) {
        const std::string personID = people.at(i, std::size_t{0}).toText();
        const std::uint64_t looks = looksOf(personID);
        if (looks % 3 != 1) continue;
        const int born = std::stoi(people.at(i, std::size_t{2}).toText().substr(0, 4));
        const Sitter sitter{people.at(i, std::size_t{1}).toText() == "1", registerYear - born, looks};
        writeFile(directory / (personID + ".jpg"), jpegOf(drawPortrait(sitter), quality));
        ++written;
    }
    return written;
}

} // namespace quillmere::sample

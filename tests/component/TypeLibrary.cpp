#include "TypeLibrary.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace quillmere::component::test {

namespace {

/// The file, read by offsets.
class Bytes {
public:
    explicit Bytes(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        content_.assign(std::istreambuf_iterator<char>(file), {});
    }

    template <class T>
    [[nodiscard]] T at(std::int64_t offset) const {
        T value;
        if (offset < 0 || static_cast<std::size_t>(offset) + sizeof value > content_.size()) {
            throw std::runtime_error("an offset outside the type library");
        }
        std::memcpy(&value, content_.data() + offset, sizeof value);
        return value;
    }
    [[nodiscard]] std::int32_t word(std::int64_t offset) const { return at<std::int32_t>(offset); }
    [[nodiscard]] std::string text(std::int64_t offset, std::size_t length) const {
        return content_.substr(static_cast<std::size_t>(offset), length);
    }

private:
    std::string content_;
};

constexpr std::int32_t signature = 0x5446534D; // "MSFT"
constexpr std::int32_t namesTheHelpLibrary = 0x100;
constexpr std::int64_t headerSize = 0x54;
constexpr std::int64_t segmentSize = 0x10;
constexpr std::int64_t typeSize = 0x64;

// Where the segments stand in their directory.
constexpr int typeSegment = 0;
constexpr int guidSegment = 5;
constexpr int nameSegment = 7;

class Reader {
public:
    explicit Reader(const std::string& path) : file_(path) {
        if (file_.word(0) != signature) throw std::runtime_error("no type library");
        types_ = file_.word(0x20);
        directory_ = headerSize + types_ * 4;
        if ((file_.word(0x14) & namesTheHelpLibrary) != 0) directory_ += 4;
    }

    [[nodiscard]] Library library() const {
        Library result;
        result.id = guid(file_.word(0x08));
        result.major = file_.word(0x18) & 0xFFFF;
        result.minor = file_.word(0x18) >> 16;
        result.name = name(file_.word(0x38));
        for (std::int32_t index = 0; index < types_; ++index)
            result.types.push_back(type(segment(typeSegment) + index * typeSize));
        return result;
    }

private:
    [[nodiscard]] std::int64_t segment(int number) const {
        return file_.word(directory_ + number * segmentSize);
    }
    [[nodiscard]] GUID guid(std::int32_t offset) const {
        return offset < 0 ? GUID{} : file_.at<GUID>(segment(guidSegment) + offset);
    }
    [[nodiscard]] std::string name(std::int32_t offset) const {
        if (offset < 0) return {};
        // Its reference, the next of its hash and its length stand before it.
        const std::int64_t at = segment(nameSegment) + offset;
        return file_.text(at + 12, static_cast<std::size_t>(file_.word(at + 8) & 0xFF));
    }

    [[nodiscard]] LibraryType type(std::int64_t at) const {
        LibraryType result;
        result.name = name(file_.word(at + 0x34));
        result.id = guid(file_.word(at + 0x2C));
        const int count = file_.word(at + 0x18) & 0xFFFF;
        if (count == 0) return result;
        // The records of all functions, their size in front; then numbers and names, a row each.
        const std::int64_t records = file_.word(at + 0x04);
        const std::int64_t numbers = records + 4 + file_.word(records);
        std::int64_t record = records + 4;
        for (int index = 0; index < count; ++index) {
            LibraryFunction function;
            function.id = file_.word(numbers + index * 4);
            function.name = name(file_.word(numbers + (count + index) * 4));
            function.kind = (file_.word(record + 0x10) >> 3) & 0xF;
            result.functions.push_back(function);
            record += file_.word(record) & 0xFFFF;
        }
        return result;
    }

    Bytes file_;
    std::int32_t types_ = 0;
    std::int64_t directory_ = 0;
};

} // namespace

const LibraryType* Library::find(const std::string& wanted) const {
    const auto found =
        std::ranges::find_if(types, [&](const LibraryType& each) { return each.name == wanted; });
    return found == types.end() ? nullptr : &*found;
}

Library readTypeLibrary(const std::string& path) { return Reader(path).library(); }

} // namespace quillmere::component::test

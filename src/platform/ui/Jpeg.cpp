#include "platform/ui/Jpeg.h"

#include <cstddef>
#include <optional>

namespace quillmere::ui {

namespace {

namespace marker {
constexpr unsigned prefix = 0xFF;
constexpr unsigned standsAlone = 0x01;
constexpr unsigned firstFrame = 0xC0;
constexpr unsigned huffmanTables = 0xC4;
constexpr unsigned reservedFrame = 0xC8;
constexpr unsigned arithmeticTables = 0xCC;
constexpr unsigned lastFrame = 0xCF;
constexpr unsigned firstRestart = 0xD0;
constexpr unsigned startOfImage = 0xD8;
constexpr unsigned endOfImage = 0xD9;
constexpr unsigned startOfScan = 0xDA;
} // namespace marker

bool beginsFrame(unsigned code) {
    return code >= marker::firstFrame && code <= marker::lastFrame && code != marker::huffmanTables &&
           code != marker::reservedFrame && code != marker::arithmeticTables;
}

bool hasLength(unsigned code) {
    return code != marker::standsAlone && (code < marker::firstRestart || code > marker::startOfImage);
}

/// Goes from marker to marker.
class Segments {
public:
    explicit Segments(std::string_view content) : content_(content) {}

    /// The next marker, its segment passed over; none where the file breaks off or holds something else.
    std::optional<unsigned> next() {
        if (byte(at_) != marker::prefix) return std::nullopt;
        while (byte(at_) == marker::prefix)
            ++at_;
        const std::optional<unsigned> code = byte(at_++);
        if (!code || *code == 0) return std::nullopt;
        if (hasLength(*code) && !passLength()) return std::nullopt;
        return code;
    }

private:
    [[nodiscard]] std::optional<unsigned> byte(std::size_t at) const {
        if (at >= content_.size()) return std::nullopt;
        return static_cast<unsigned char>(content_[at]);
    }

    bool passLength() {
        constexpr unsigned lengthOfLength = 2;
        const auto high = byte(at_);
        const auto low = byte(at_ + 1);
        if (!high || !low) return false;
        const unsigned length = *high << 8U | *low;
        at_ += length;
        return length >= lengthOfLength && at_ <= content_.size();
    }

    std::string_view content_;
    std::size_t at_ = 0;
};

} // namespace

bool isJpeg(std::string_view content) {
    // Decoders want the first marker at once, without the fill bytes that may stand before any other.
    Segments segments(content);
    if (!content.starts_with("\xFF\xD8") || segments.next() != marker::startOfImage) return false;
    bool hasFrame = false;
    while (const auto code = segments.next()) {
        if (*code == marker::startOfScan) return hasFrame;
        if (*code == marker::endOfImage) return false;
        hasFrame = hasFrame || beginsFrame(*code);
    }
    return false;
}

} // namespace quillmere::ui

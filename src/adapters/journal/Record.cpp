#include "adapters/journal/Record.h"

#include "adapters/journal/Checksum.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace quillmere::journal {

namespace {

/// What every record begins with; the digit is the format's version.
constexpr std::string_view mark = "QJ1 ";
constexpr std::size_t checksumDigits = 8;
constexpr int hexadecimal = 16;

std::string checksumText(std::uint32_t sum) {
    std::array<char, checksumDigits> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), sum, hexadecimal);
    const std::string text(digits.data(), written.ptr);
    return std::string(checksumDigits - text.size(), '0') + text;
}

/// Reads a head from its front to its end.
class Cursor {
public:
    explicit Cursor(std::string_view text) : rest_(text) {}

    [[nodiscard]] bool skip(std::string_view expected) {
        if (!rest_.starts_with(expected)) return false;
        rest_.remove_prefix(expected.size());
        return true;
    }
    template <class Number>
    [[nodiscard]] std::optional<Number> number(int base = 10) {
        Number value{};
        const auto [end, failure] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value, base);
        if (failure != std::errc()) return std::nullopt;
        rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
        return value;
    }
    [[nodiscard]] std::optional<Record::Kind> kind() {
        for (const auto kind : {Record::Kind::Entry, Record::Kind::Outcome}) {
            const char letter = static_cast<char>(kind);
            if (skip({&letter, 1})) return kind;
        }
        return std::nullopt;
    }
    [[nodiscard]] std::string_view rest() const { return rest_; }

private:
    std::string_view rest_;
};

/// The record that `bytes` begins with, and how many bytes it takes.
struct Found {
    Record record;
    std::size_t size;
};

std::optional<Found> recordAt(std::string_view bytes) {
    Cursor cursor(bytes);
    if (!cursor.skip(mark)) return std::nullopt;
    const auto kind = cursor.kind();
    if (!kind || !cursor.skip(" ")) return std::nullopt;
    const auto number = cursor.number<std::uint64_t>();
    if (!number || !cursor.skip(" ")) return std::nullopt;
    const auto length = cursor.number<std::size_t>();
    if (!length || !cursor.skip(" ")) return std::nullopt;
    const std::string_view head = bytes.substr(0, bytes.size() - cursor.rest().size());
    const auto sum = cursor.number<std::uint32_t>(hexadecimal);
    if (!sum || !cursor.skip("\n")) return std::nullopt;
    const std::string_view rest = cursor.rest();
    if (*length >= rest.size() || rest[*length] != '\n') return std::nullopt;
    const std::string_view text = rest.substr(0, *length);
    if (checksum(head, checksum(text)) != *sum) return std::nullopt;
    return Found{{*kind, *number, text}, bytes.size() - rest.size() + *length + 1};
}

} // namespace

std::string bytesOf(Record::Kind kind, std::uint64_t number, std::string_view text) {
    std::string bytes(mark);
    bytes.append(1, static_cast<char>(kind)).append(" ");
    bytes.append(std::to_string(number)).append(" ").append(std::to_string(text.size())).append(" ");
    bytes += checksumText(checksum(bytes, checksum(text)));
    bytes.reserve(bytes.size() + text.size() + 2);
    return bytes.append("\n").append(text).append("\n");
}

Records readRecords(std::string_view bytes) {
    Records read;
    for (std::size_t at = 0; at < bytes.size();) {
        if (const auto found = recordAt(bytes.substr(at))) {
            read.records.push_back(found->record);
            at += found->size;
            continue;
        }
        // Records stand one behind the other, so the next one begins with the next mark that holds.
        const std::size_t next = std::min(bytes.find(mark, at + 1), bytes.size());
        if (!read.damages.empty() && read.damages.back().end == at)
            read.damages.back().end = next;
        else
            read.damages.push_back({at, next});
        at = next;
    }
    read.tornEnd = !read.damages.empty() && read.damages.back().end == bytes.size();
    return read;
}

} // namespace quillmere::journal

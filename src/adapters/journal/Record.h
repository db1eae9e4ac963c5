#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::journal {

/// A piece of the file that stands for itself: a head in one line, a text, and a line end behind both.
///
///     QJ1 E 17 532 9d1c02aa
///
/// The head tells what it is about, the number of the youngest entry including this one, the bytes of the
/// text, and a checksum of the text and of the head up to it.
struct Record {
    enum class Kind : char { Entry = 'E', Outcome = 'S' };

    Kind kind = Kind::Entry;
    std::uint64_t number = 0;
    /// Refers to what was read.
    std::string_view text;
};

/// The record as it stands in the file.
[[nodiscard]] std::string bytesOf(Record::Kind kind, std::uint64_t number, std::string_view text);

/// A piece of the file in which no record could be read.
struct Damage {
    std::size_t begin = 0;
    std::size_t end = 0;
};

struct Records {
    std::vector<Record> records;
    std::vector<Damage> damages;
    /// The file ends in a damaged piece, as after a crash.
    bool tornEnd = false;
};

/// Reads all records in `bytes`, which they refer to; what is no record is passed over up to the next one.
[[nodiscard]] Records readRecords(std::string_view bytes);

} // namespace quillmere::journal

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillmere::copy {

/// The digest of the rows of a table, whatever order they come in: the sum of what each row alone gives. It
/// finds out accidents; it is no proof against somebody who forges rows.
class Digest {
public:
    /// Takes a cell of the row that is under way. A null differs from the empty text.
    void addCell(const std::optional<std::string>& text);
    void endRow();

    [[nodiscard]] std::size_t rows() const { return rows_; }
    /// 16 hexadecimal digits.
    [[nodiscard]] std::string shown() const;

    bool operator==(const Digest&) const = default;

private:
    void mix(std::string_view bytes);

    static constexpr std::uint64_t start = 0xCBF29CE484222325ULL;

    std::uint64_t row_ = start;
    std::uint64_t sum_ = 0;
    std::size_t rows_ = 0;
};

} // namespace quillmere::copy

#pragma once

#include <string>

namespace quillmere::sample {

/// Months counted from the year 0, so that they can be reckoned with.
[[nodiscard]] constexpr int monthOf(int year, int monthOfYear) { return year * 12 + monthOfYear - 1; }
[[nodiscard]] constexpr int yearOf(int month) { return month / 12; }

/// The month as data tables hold it, "2026-03".
[[nodiscard]] std::string monthText(int month);
/// The month of such a text.
[[nodiscard]] int monthFrom(const std::string& text);

/// A stretch of months, both ends included.
struct Span {
    int from = 0;
    int to = 0;

    /// The `index`th of `count` parts of like length; a part has a month at the least.
    [[nodiscard]] Span part(int index, int count) const;
};

} // namespace quillmere::sample

#include "sample/Months.h"

#include "sample/Person.h"

#include <algorithm>

namespace quillmere::sample {

std::string monthText(int month) { return padded(yearOf(month), 4) + "-" + padded(month % 12 + 1, 2); }

int monthFrom(const std::string& text) {
    return monthOf(std::stoi(text.substr(0, 4)), std::stoi(text.substr(5, 2)));
}

Span Span::part(int index, int count) const {
    const int length = to - from + 1;
    const int first = from + length * index / count;
    const int next = from + length * (index + 1) / count;
    return {first, std::max(first, next - 1)};
}

} // namespace quillmere::sample

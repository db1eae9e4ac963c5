#pragma once

#include "sample/photos/Picture.h"

#include <cstdint>

namespace quillmere::sample {

/// Who is drawn. The same one looks the same every time.
struct Sitter {
    bool male = true;
    int age = 40;
    std::uint64_t looks = 0;
};

constexpr int portraitWidth = 295;
constexpr int portraitHeight = 413;

/// A flat picture of nobody, head and shoulders, of the size of an identity photo of one inch.
[[nodiscard]] Picture drawPortrait(const Sitter& sitter);

} // namespace quillmere::sample

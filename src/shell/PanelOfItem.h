#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace quillmere {

/// The captions that tell apart the items under the key "P01": the catalogue has to bear them to the letter.
[[nodiscard]] std::span<const std::string_view> comparedCaptions();

/// Suffix of the panel's class behind an item of the menu whose key is "P01", by group, caption and
/// sponsorship type.
[[nodiscard]] std::string panelOfProjectItem(std::int32_t group, std::string_view caption,
                                             std::int32_t zzType);

} // namespace quillmere

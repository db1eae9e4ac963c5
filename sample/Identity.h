#pragma once

#include "sample/Random.h"

#include <string>
#include <string_view>

namespace quillmere::sample {

/// The resident identity number of 18 characters: division (6 digits), birthday ("1978-03-12"),
/// sequence (3 digits, odd for men) and the check character of ISO 7064 MOD 11-2. Raises
/// BadArguments for parts of another length.
[[nodiscard]] std::string identityNumber(std::string_view division, std::string_view birthday,
                                         std::string_view sequence);

/// The check character for the first 17 digits.
[[nodiscard]] char identityCheck(std::string_view digits);

/// A fresh key of 36 characters, as the database would make it.
[[nodiscard]] std::string recordKey(Random& random);

} // namespace quillmere::sample

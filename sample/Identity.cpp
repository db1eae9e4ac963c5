#include "sample/Identity.h"

#include "platform/Error.h"

#include <array>
#include <cstdint>

namespace quillmere::sample {

char identityCheck(std::string_view digits) {
    static constexpr std::array<int, 17> weights{7, 9, 10, 5, 8, 4, 2, 1, 6, 3, 7, 9, 10, 5, 8, 4, 2};
    static constexpr std::string_view checks = "10X98765432";
    if (digits.size() != weights.size())
        throw Error(Failure::BadArguments, "身份证号前段应为17位", "Identity");
    int sum = 0;
    for (std::size_t i = 0; i < weights.size(); ++i)
        sum += weights[i] * (digits[i] - '0');
    return checks[static_cast<std::size_t>(sum % 11)];
}

std::string identityNumber(std::string_view division, std::string_view birthday, std::string_view sequence) {
    std::string digits(division);
    for (const char c : birthday) {
        if (c != '-') digits += c;
    }
    digits += sequence;
    digits += identityCheck(digits);
    return digits;
}

std::string recordKey(Random& random) {
    static constexpr std::string_view hexDigits = "0123456789ABCDEF";
    static constexpr std::string_view shape = "xxxxxxxx-xxxx-4xxx-8xxx-xxxxxxxxxxxx";
    std::string key(shape);
    for (char& c : key) {
        if (c == 'x') c = hexDigits[random.below(hexDigits.size())];
    }
    return key;
}

} // namespace quillmere::sample

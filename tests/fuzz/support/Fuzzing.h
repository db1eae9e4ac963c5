#pragma once

#include "platform/Error.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// What every fuzzer asks of its input, and how it tells that a property does not hold.
namespace quillmere::fuzz {

/// A property does not hold. Deliberately no std::exception and no Error, so that nothing in the system takes
/// it for a failure of its own; nothing catches it in a fuzzer, where it ends the run at the place it was
/// thrown.
struct Broken {
    std::string property;
};

/// Ends the input as a finding, and tells the property, unless it holds.
void hold(bool holds, std::string_view property);

/// The bytes of an input as text, taken off its front. A seed can so be read and written by a person.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size);

    /// Up to the next line end, or to the end.
    [[nodiscard]] std::string line();
    [[nodiscard]] std::string rest();
    [[nodiscard]] bool atEnd() const { return rest_.empty(); }

private:
    std::string rest_;
};

/// The number at the front of a text, 0 for none; large ones are cut.
[[nodiscard]] int numberOf(std::string_view text);

[[nodiscard]] bool isUtf8(std::string_view text);

/// The failure that the work raises; none when it ends well. Anything but an Error is a finding.
template <class Work>
[[nodiscard]] std::optional<Failure> failureOf(const Work& work) {
    try {
        work();
    } catch (const Error& error) {
        hold(isUtf8(error.description()) && !error.description().empty(), "a failure tells what it is");
        return static_cast<Failure>(error.number());
    }
    return std::nullopt;
}

} // namespace quillmere::fuzz

/// One input, as libFuzzer gives it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

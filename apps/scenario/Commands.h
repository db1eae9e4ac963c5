#pragma once

#include "scenario/Script.h"

#include <cstddef>
#include <span>
#include <string_view>

namespace quillmere::scenario {

struct Scene;

/// One command of the language, with what stands behind it. It raises Stop when the script cannot go
/// on.
struct Command {
    std::string_view name;
    std::size_t leastArguments;
    std::size_t mostArguments;
    void (*run)(Scene& scene, const Words& words);
};

/// Database, time, photos, the host.
[[nodiscard]] std::span<const Command> setUpCommands();
/// What a person does with the form in front. What the system raises comes through.
[[nodiscard]] std::span<const Command> personCommands();
/// What only looks, and changes nothing.
[[nodiscard]] std::span<const Command> lookCommands();

} // namespace quillmere::scenario

#pragma once

#include <functional>
#include <string>
#include <vector>

namespace quillmere::bench {

/// A piece of a clerk's work, and what the bare engine has to run for the same.
struct Turn {
    std::function<void()> system;
    std::vector<std::string> statements;
};

/// What a case measures: its turns one after another, again and again.
struct Work {
    std::vector<Turn> turns;
    /// Brings the window to where the work begins. Not measured.
    std::function<void()> before = [] {};
    /// Takes back what the work changed in the register, behind the system and behind the bare engine.
    /// Not measured.
    std::function<void()> after = [] {};
};

} // namespace quillmere::bench

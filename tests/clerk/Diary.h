#pragma once

#include <cstddef>
#include <deque>
#include <iostream>
#include <stdexcept>
#include <string>

namespace quillmere::test {

/// Something that must not happen has happened. It is no Error, so nothing of the system catches it.
class Finding : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

/// What a random clerk has done of late, so that a finding can be told with its way there.
class Diary {
public:
    /// With `trace` every step is printed when it begins: for a run that ends in a crash.
    explicit Diary(bool trace) : trace_(trace) {}

    void write(const std::string& step) {
        ++steps_;
        if (trace_) std::cerr << steps_ << ' ' << step << std::endl;
        lines_.push_back(std::to_string(steps_) + " " + step);
        if (lines_.size() > kept) lines_.pop_front();
    }
    [[nodiscard]] int steps() const { return steps_; }
    [[nodiscard]] std::string last() const {
        std::string all;
        for (const std::string& line : lines_)
            all += line + "\n";
        return all;
    }

private:
    static constexpr std::size_t kept = 40;
    bool trace_;
    int steps_ = 0;
    std::deque<std::string> lines_;
};

} // namespace quillmere::test

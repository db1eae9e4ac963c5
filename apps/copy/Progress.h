#pragma once

#include <chrono>
#include <cstddef>
#include <iosfwd>
#include <string_view>

namespace quillmere::copy {

/// One line that tells how far the copying is, written anew as it goes on.
class Progress {
public:
    /// `terminal` is where the line stands; null for none.
    explicit Progress(std::ostream* terminal) : terminal_(terminal) {}
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    /// Wipes the line.
    ~Progress();

    /// How many rows there are to go through.
    void expect(std::size_t rows) { expected_ = rows; }
    /// One more row of a table has been dealt with: "复制" or "核对".
    void step(std::string_view what, std::string_view table);

private:
    void show(std::string_view what, std::string_view table);

    std::ostream* terminal_;
    std::size_t expected_ = 0;
    std::size_t done_ = 0;
    std::chrono::steady_clock::time_point shownAt_;
};

} // namespace quillmere::copy

#include "copy/Progress.h"

#include <algorithm>
#include <ostream>

namespace quillmere::copy {

namespace {

constexpr auto wipe = "\r\033[K";

} // namespace

Progress::~Progress() {
    if (terminal_ != nullptr && shownAt_ != std::chrono::steady_clock::time_point{})
        *terminal_ << wipe << std::flush;
}

void Progress::step(std::string_view what, std::string_view table) {
    ++done_;
    constexpr std::size_t rowsPerLook = 200;
    if (terminal_ != nullptr && done_ % rowsPerLook == 0) show(what, table);
}

void Progress::show(std::string_view what, std::string_view table) {
    constexpr std::chrono::milliseconds pause{100};
    const auto now = std::chrono::steady_clock::now();
    if (now - shownAt_ < pause) return;
    shownAt_ = now;
    const std::size_t percent = done_ * 100 / std::max(expected_, std::size_t{1});
    *terminal_ << wipe << what << ' ' << table << "  " << std::min(percent, std::size_t{100}) << '%'
               << std::flush;
}

} // namespace quillmere::copy

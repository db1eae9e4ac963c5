#pragma once

#include <cstddef>
#include <string>

namespace quillmere::check {

/// Counts what a finding is about, and keeps the first few of them to be shown.
class Examples {
public:
    void add(const std::string& example) {
        constexpr std::size_t shown = 3;
        if (count_ < shown) shown_ += (shown_.empty() ? "" : "、") + example;
        if (count_ == shown) shown_ += "……";
        ++count_;
    }

    [[nodiscard]] bool empty() const { return count_ == 0; }

    /// "4 个代码：110、120、130……".
    [[nodiscard]] std::string text(const std::string& counted) const {
        return std::to_string(count_) + " " + counted + "：" + shown_;
    }

private:
    std::size_t count_ = 0;
    std::string shown_;
};

} // namespace quillmere::check

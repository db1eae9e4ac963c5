#pragma once

#include "platform/data/Connection.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::test {

/// A statement without what stands in its quotes.
struct Skeleton {
    explicit Skeleton(std::string_view sql);

    /// In lower case, with "?" for each text in quotes.
    std::string text;
    std::vector<std::string> literals;
    /// Something follows a semicolon, or a comment begins, outside the quotes.
    bool goesOn = false;
    bool hasComment = false;

    /// The texts that the column A00 is compared with, and the first value of an insert.
    [[nodiscard]] std::vector<std::string> identities() const;
};

/// Passes statements on and holds those that ran against what the system may say: one statement, of
/// the four kinds, about the identity at hand alone. Raises Finding for any other.
class Witness final : public data::Connection {
public:
    /// `atHand` tells the identity that the window stands on.
    Witness(std::shared_ptr<data::Connection> target, std::function<std::string()> atHand);

    data::RowSet query(std::string_view sql) override;
    void execute(std::string_view sql) override;
    [[nodiscard]] bool isOpen() const override { return target_->isOpen(); }
    void close() override { target_->close(); }

    /// The latest statement that failed.
    [[nodiscard]] const std::string& failed() const { return failed_; }
    [[nodiscard]] int changes() const { return changes_; }

private:
    void examine(std::string_view sql);

    std::shared_ptr<data::Connection> target_;
    std::function<std::string()> atHand_;
    std::string failed_;
    int changes_ = 0;
};

} // namespace quillmere::test

#pragma once

#include <quillmere/IUserCtrl.h>

#include <memory>
#include <string>
#include <string_view>

namespace quillmere::scenario {

/// The host's side of a scenario: one entry object at a time.
class Host {
public:
    Host() : entry_(std::make_unique<IUserCtrl>()) {}

    /// A new entry object, on the same connection.
    void renew();
    /// For this entry object and those to come.
    void setConnection(std::shared_ptr<data::Connection> connection);
    /// Writes a property from its text. Raises Stop for one that there is not, and for a number that
    /// does not go into 16 bits.
    void set(std::string_view property, const std::string& value);
    [[nodiscard]] IUserCtrl& entry() { return *entry_; }

private:
    std::shared_ptr<data::Connection> connection_;
    std::unique_ptr<IUserCtrl> entry_;
};

} // namespace quillmere::scenario

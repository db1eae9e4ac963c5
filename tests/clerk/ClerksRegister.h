#pragma once

#include "clerk/Witness.h"
#include "platform/data/ObservedConnections.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace quillmere::test {

/// A small register in memory, the same for every clerk, with a witness of what the system says to it.
class ClerksRegister {
public:
    ClerksRegister();

    [[nodiscard]] const std::shared_ptr<Witness>& connection() const { return witness_; }
    /// Makes a coming statement of the system fail.
    [[nodiscard]] data::FailingConnection& failing() { return *failing_; }
    /// Statements of the test itself.
    [[nodiscard]] data::Connection& engine() { return *engine_; }
    /// The identities of all persons and units.
    [[nodiscard]] std::vector<std::string> identities();

    /// The rows of all information sets, by identity.
    using Rows = std::map<std::string, std::vector<std::string>>;
    [[nodiscard]] Rows rows();

private:
    std::shared_ptr<data::Connection> engine_;
    std::shared_ptr<data::FailingConnection> failing_;
    std::shared_ptr<Witness> witness_;
    std::vector<std::string> tables_;
};

} // namespace quillmere::test

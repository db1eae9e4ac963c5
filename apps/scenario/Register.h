#pragma once

#include "platform/data/ObservedConnections.h"

#include <memory>

namespace quillmere::scenario {

class Engine;
class Transcript;

/// The database of a scenario. What the system says to it is traced and can be made to fail; what the
/// script says through `direct` is neither.
class Register {
public:
    Register(Transcript& out, Engine& engine) : out_(out), source_(engine) {}

    /// A fresh sample register, with or without people, units and projects.
    void make(bool people);
    /// Whether statements of the system are printed.
    void trace(bool on) { tracing_ = on; }

    /// The system's connection; none before `make`.
    [[nodiscard]] std::shared_ptr<data::Connection> connection() const { return recorder_; }
    /// The engine itself. Raises Stop before `make`, as does `failing`.
    [[nodiscard]] data::Connection& direct() const;
    [[nodiscard]] data::FailingConnection& failing() const;

private:
    void require() const;

    Transcript& out_;
    Engine& source_;
    bool tracing_ = false;
    std::shared_ptr<data::Connection> engine_;
    std::shared_ptr<data::FailingConnection> failing_;
    std::shared_ptr<data::RecordingConnection> recorder_;
};

} // namespace quillmere::scenario

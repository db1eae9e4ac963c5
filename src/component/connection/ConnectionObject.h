#pragma once

#include "component/connection/RelayConnection.h"
#include "component/objects/DispatchObject.h"

#include <memory>
#include <string>

namespace quillmere::component {

/// What `Connection` gives a host that has set none: a connection that is opened by name, with the few
/// members that hosts of the platform's data access use.
class ConnectionObject final : public DispatchObject<ConnectionObject> {
public:
    ConnectionObject();
    ~ConnectionObject();

    [[nodiscard]] static std::span<const MemberRow<ConnectionObject>> rows();

    /// Opens `connectionString`, or what was written before when it is empty. Raises Error.
    void open(std::string_view connectionString);
    /// Raises ObjectClosed when it is closed.
    void close();
    /// Raises an Error while the connection is open.
    void setConnectionString(std::string value);
    [[nodiscard]] const std::string& connectionString() const { return connectionString_; }

    /// The connection behind the object, for as long as either lives.
    [[nodiscard]] std::shared_ptr<RelayConnection> relay() const { return relay_; }

private:
    void requireClosed() const;

    std::shared_ptr<RelayConnection> relay_ = std::make_shared<RelayConnection>();
    std::string connectionString_;
};

/// The connection that statements go to: the one behind a connection object of this server, or one that
/// drives a host's own object by the names of its members. Raises Error (TypeMismatch) for an object that has
/// no operation Execute.
[[nodiscard]] std::shared_ptr<data::Connection> connectionBehind(const ComPtr<IDispatch>& object);

} // namespace quillmere::component

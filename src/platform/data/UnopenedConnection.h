#pragma once

#include "platform/data/Connection.h"

namespace quillmere::data {

/// A connection that was created and never opened: every statement raises InvalidConnection.
class UnopenedConnection final : public Connection {
public:
    RowSet query(std::string_view sql) override;
    void execute(std::string_view sql) override;
    [[nodiscard]] bool isOpen() const override { return false; }
    void close() override;
};

} // namespace quillmere::data

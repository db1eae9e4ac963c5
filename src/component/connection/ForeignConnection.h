#pragma once

#include "component/automation/ComPtr.h"
#include "platform/data/Connection.h"

namespace quillmere::component {

/// A host's own connection object, driven by the names of its members: Execute, State and Close of the
/// connection; State, EOF, MoveNext, Fields and Close of the recordsets that it gives; Count and Item of the
/// fields; Name and Value of a field.
class ForeignConnection final : public data::Connection {
public:
    /// Raises Error (TypeMismatch) for an object without Execute.
    explicit ForeignConnection(ComPtr<IDispatch> object);

    data::RowSet query(std::string_view sql) override;
    void execute(std::string_view sql) override;
    [[nodiscard]] bool isOpen() const override;
    void close() override;

private:
    /// Null when the statement gave no recordset.
    [[nodiscard]] ComPtr<IDispatch> run(std::string_view sql);

    ComPtr<IDispatch> object_;
};

} // namespace quillmere::component

#pragma once

#include "component/objects/DispatchObject.h"
#include "platform/data/Connection.h"
#include "platform/data/Recordset.h"

#include <cstddef>
#include <string_view>

namespace quillmere::component {

/// The rows that a statement gave, as `Execute` hands them to a host: read only, moved by name.
class RecordsetObject final : public DispatchObject<RecordsetObject> {
public:
    /// Runs the statement. One that gives no columns leaves the recordset closed. Raises what the connection
    /// raises.
    RecordsetObject(std::string_view sql, data::Connection& connection);

    [[nodiscard]] static std::span<const MemberRow<RecordsetObject>> rows();

    [[nodiscard]] data::Recordset& recordset() { return recordset_; }
    /// Columns of an open recordset. Raises ObjectClosed.
    [[nodiscard]] std::size_t columnCount() const { return recordset_.rows().columns().size(); }
    [[nodiscard]] const std::string& columnName(std::size_t column) const {
        return recordset_.rows().columns()[column];
    }

private:
    data::Recordset recordset_;
};

/// `Fields`: the columns of a recordset.
class FieldsObject final : public DispatchObject<FieldsObject> {
public:
    explicit FieldsObject(ComPtr<RecordsetObject> recordset) : recordset_(std::move(recordset)) {}

    [[nodiscard]] static std::span<const MemberRow<FieldsObject>> rows();

    [[nodiscard]] std::size_t count() const { return recordset_->columnCount(); }
    /// By position from 0, or by name without regard to case. Raises ItemNotFound.
    [[nodiscard]] ComPtr<IDispatch> item(const VARIANT& index) const;

private:
    ComPtr<RecordsetObject> recordset_;
};

/// One column, whose value is that of the row that the recordset stands on.
class FieldObject final : public DispatchObject<FieldObject> {
public:
    FieldObject(ComPtr<RecordsetObject> recordset, std::size_t column)
        : recordset_(std::move(recordset)), column_(column) {}

    [[nodiscard]] static std::span<const MemberRow<FieldObject>> rows();

    [[nodiscard]] const std::string& name() const { return recordset_->columnName(column_); }
    /// Raises NoCurrentRecord, ObjectClosed.
    [[nodiscard]] const data::Value& value() const { return recordset_->recordset().Fields(column_); }

private:
    ComPtr<RecordsetObject> recordset_;
    std::size_t column_;
};

} // namespace quillmere::component

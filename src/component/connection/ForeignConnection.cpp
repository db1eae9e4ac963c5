#include "component/connection/ForeignConnection.h"

#include "component/automation/Calls.h"
#include "component/automation/Conversions.h"
#include "platform/Error.h"

#include <string>
#include <utility>
#include <vector>

namespace quillmere::component {

namespace {

bool isOpenObject(IDispatch& object) { return (toInteger32(call(object, "State").get()) & 1) != 0; }

std::vector<ComPtr<IDispatch>> fieldsOf(IDispatch& recordset) {
    const auto fields = objectOf(call(recordset, "Fields"));
    const std::int32_t count = toInteger32(call(*fields.get(), "Count").get());
    std::vector<ComPtr<IDispatch>> result;
    for (std::int32_t at = 0; at < count; ++at) {
        std::vector<Variant> index;
        index.push_back(Variant::of(at));
        result.push_back(objectOf(call(*fields.get(), "Item", std::move(index))));
    }
    return result;
}

data::RowSet fetch(IDispatch& recordset) {
    // The fields of a recordset follow its row, so that they are asked for once.
    const auto fields = fieldsOf(recordset);
    std::vector<std::string> names;
    names.reserve(fields.size());
    for (const auto& field : fields)
        names.push_back(toText(call(*field.get(), "Name").get()));
    data::RowSet rows(std::move(names));
    while (!toBoolean(call(recordset, "EOF").get())) {
        std::vector<data::Value> row;
        row.reserve(fields.size());
        for (const auto& field : fields)
            row.push_back(toCell(call(*field.get(), "Value").get()));
        rows.addRow(std::move(row));
        call(recordset, "MoveNext");
    }
    return rows;
}

} // namespace

ForeignConnection::ForeignConnection(ComPtr<IDispatch> object) : object_(std::move(object)) {
    if (!hasMember(*object_.get(), "Execute")) {
        throw Error(Failure::TypeMismatch, "给出的对象不是数据库连接：没有 Execute 操作。", "Quillmere");
    }
}

ComPtr<IDispatch> ForeignConnection::run(std::string_view sql) {
    std::vector<Variant> text;
    text.push_back(Variant::of(sql));
    const Variant answer = call(*object_.get(), "Execute", std::move(text));
    return answer.isEmpty() ? ComPtr<IDispatch>() : toObject(answer.get());
}

data::RowSet ForeignConnection::query(std::string_view sql) {
    const auto recordset = run(sql);
    if (!recordset || !isOpenObject(*recordset.get())) return {};
    data::RowSet rows = fetch(*recordset.get());
    call(*recordset.get(), "Close");
    return rows;
}

void ForeignConnection::execute(std::string_view sql) {
    const auto recordset = run(sql);
    if (recordset && isOpenObject(*recordset.get())) call(*recordset.get(), "Close");
}

bool ForeignConnection::isOpen() const { return isOpenObject(*object_.get()); }

void ForeignConnection::close() { call(*object_.get(), "Close"); }

} // namespace quillmere::component

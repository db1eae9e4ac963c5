#include "component/connection/RecordsetObject.h"

#include "component/automation/Conversions.h"
#include "platform/Error.h"

namespace quillmere::component {

namespace {

constexpr DISPID idFields = DISPID_VALUE;

template <void (data::Recordset::*operation)()>
Variant move(RecordsetObject& object, const VARIANT& /*argument*/) {
    (object.recordset().*operation)();
    return {};
}

Variant fields(RecordsetObject& object, const VARIANT& argument) {
    auto all = makeObject<FieldsObject>(ComPtr<RecordsetObject>(&object));
    return argument.vt == VT_EMPTY ? Variant::of(all) : Variant::of(all->item(argument));
}

constexpr MemberRow<RecordsetObject> recordsetTable[] = {
    {reader("BOF", 1, Type::Boolean),
     [](RecordsetObject& object, const VARIANT& /*argument*/) {
         return Variant::of(object.recordset().BOF());
     }},
    {reader("EOF", 2, Type::Boolean),
     [](RecordsetObject& object, const VARIANT& /*argument*/) {
         return Variant::of(object.recordset().EOF_());
     }},
    {reader("RecordCount", 3, Type::Integer32),
     [](RecordsetObject& object, const VARIANT& /*argument*/) {
         return Variant::of(object.recordset().RecordCount());
     }},
    {reader("State", 4, Type::Integer32),
     [](RecordsetObject& object, const VARIANT& /*argument*/) {
         return Variant::of(std::int32_t{object.recordset().State()});
     }},
    {operation("MoveFirst", 5), move<&data::Recordset::MoveFirst>},
    {operation("MoveLast", 6), move<&data::Recordset::MoveLast>},
    {operation("MoveNext", 7), move<&data::Recordset::MoveNext>},
    {operation("MovePrevious", 8), move<&data::Recordset::MovePrevious>},
    {operation("Close", 9), move<&data::Recordset::close>},
    {reader("Fields", idFields, Type::Object, {"Index", Type::Any, true}), fields},
};

constexpr MemberRow<FieldsObject> fieldsTable[] = {
    {reader("Count", 1, Type::Integer32),
     [](FieldsObject& object, const VARIANT& /*argument*/) {
         return Variant::of(static_cast<std::int32_t>(object.count()));
     }},
    {reader("Item", DISPID_VALUE, Type::Object, {"Index", Type::Any}),
     [](FieldsObject& object, const VARIANT& argument) { return Variant::of(object.item(argument)); }},
};

constexpr MemberRow<FieldObject> fieldTable[] = {
    {reader("Name", 1, Type::Text),
     [](FieldObject& object, const VARIANT& /*argument*/) {
         return Variant::of(std::string_view(object.name()));
     }},
    {reader("Value", DISPID_VALUE, Type::Any),
     [](FieldObject& object, const VARIANT& /*argument*/) { return fromCell(object.value()); }},
};

} // namespace

RecordsetObject::RecordsetObject(std::string_view sql, data::Connection& connection) {
    recordset_.open(sql, connection);
    if (columnCount() == 0) recordset_.close();
}

std::span<const MemberRow<RecordsetObject>> RecordsetObject::rows() { return recordsetTable; }
std::span<const MemberRow<FieldsObject>> FieldsObject::rows() { return fieldsTable; }
std::span<const MemberRow<FieldObject>> FieldObject::rows() { return fieldTable; }

ComPtr<IDispatch> FieldsObject::item(const VARIANT& index) const {
    std::size_t column = 0;
    if (isText(index)) {
        const auto found = recordset_->recordset().rows().findColumn(toText(index));
        if (!found) throw Error(Failure::ItemNotFound);
        column = *found;
    } else {
        const std::int32_t position = toInteger32(index);
        if (position < 0 || static_cast<std::size_t>(position) >= count()) throw Error(Failure::ItemNotFound);
        column = static_cast<std::size_t>(position);
    }
    return ComPtr<IDispatch>(makeObject<FieldObject>(recordset_, column).get());
}

} // namespace quillmere::component

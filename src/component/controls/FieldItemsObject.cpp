#include "component/controls/FieldItemsObject.h"

#include "component/automation/Conversions.h"
#include "component/objects/KnownObjects.h"
#include "platform/Error.h"

#include <string>

namespace quillmere::component {

namespace {

using Item = FieldItemObject;

template <std::string cFieldItem::*field>
Variant readText(Item& object, const VARIANT& /*argument*/) {
    return Variant::of(std::string_view(object.item().*field));
}

constexpr MemberRow<FieldItemsObject> setTable[] = {
    {reader("Count", 1, Type::Integer32),
     [](FieldItemsObject& object, const VARIANT& /*argument*/) {
         return Variant::of(object.items()->Count());
     }},
    {reader("Item", DISPID_VALUE, Type::Object, {"Index", Type::Any}),
     [](FieldItemsObject& object, const VARIANT& argument) { return Variant::of(object.item(argument)); }},
};

constexpr MemberRow<Item> itemTable[] = {
    {reader("FldExplain", 1, Type::Text), readText<&cFieldItem::FldExplain>},
    {reader("FldOrder", 2, Type::Text), readText<&cFieldItem::FldOrder>},
    {reader("FldWidth", 3, Type::Integer16),
     [](Item& object, const VARIANT& /*argument*/) { return Variant::of(object.item().FldWidth); }},
    {reader("Check", 4, Type::Text), readText<&cFieldItem::Check>},
    {reader("Style", 5, Type::Text), readText<&cFieldItem::Style>},
    {reader("IsNUll", 6, Type::Boolean),
     [](Item& object, const VARIANT& /*argument*/) { return Variant::of(object.item().IsNUll); }},
    {reader("Dmcpt", 7, Type::Text), readText<&cFieldItem::Dmcpt>},
    {reader("Dmcod", DISPID_VALUE, Type::Any),
     [](Item& object, const VARIANT& /*argument*/) { return fromCell(object.item().Dmcod); }},
    {reader("CodeTable", 8, Type::Text), readText<&cFieldItem::CodeTable>},
    {reader("FieldLength", 9, Type::Text), readText<&cFieldItem::FieldLength>},
    {reader("FieldType", 10, Type::Text), readText<&cFieldItem::FieldType>},
    {reader("ItemDesc", 11, Type::Text), readText<&cFieldItem::ItemDesc>},
    {reader("ItemName", 12, Type::Text), readText<&cFieldItem::ItemName>},
    {reader("TblName", 13, Type::Text), readText<&cFieldItem::TblName>},
};

} // namespace

FieldItemsObject::FieldItemsObject(std::shared_ptr<cFieldItems> items) : items_(std::move(items)) {
    KnownObjects<FieldItemsObject>::add(this);
}
FieldItemsObject::~FieldItemsObject() { KnownObjects<FieldItemsObject>::remove(this); }

std::span<const MemberRow<FieldItemsObject>> FieldItemsObject::rows() { return setTable; }
std::span<const MemberRow<FieldItemObject>> FieldItemObject::rows() { return itemTable; }

ComPtr<IDispatch> FieldItemsObject::item(const VARIANT& index) const {
    const cFieldItem& found = isText(index) ? items_->Item(toText(index)) : items_->Item(toInteger32(index));
    // The field lives as long as its set.
    std::shared_ptr<const cFieldItem> kept(items_, &found);
    return ComPtr<IDispatch>(makeObject<FieldItemObject>(std::move(kept)).get());
}

ComPtr<IDispatch> fieldItemsObject(const std::shared_ptr<cFieldItems>& items) {
    if (!items) return {};
    return ComPtr<IDispatch>(makeObject<FieldItemsObject>(items).get());
}

std::shared_ptr<cFieldItems> fieldItemsBehind(const ComPtr<IDispatch>& object) {
    const auto* own = KnownObjects<FieldItemsObject>::find(object.get());
    if (own == nullptr) throw Error(Failure::TypeMismatch);
    return own->items();
}

} // namespace quillmere::component

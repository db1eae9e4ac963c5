#include "component/controls/ButtonListObject.h"

#include "component/automation/Conversions.h"

namespace quillmere::component {

namespace {

constexpr MemberRow<ButtonListObject> table[] = {
    {referenceWriter("UControl", 1),
     [](ButtonListObject& object, const VARIANT& argument) {
         object.UControl = toObject(argument);
         return Variant();
     }},
    {reader("UControl", 1, Type::Object),
     [](ButtonListObject& object, const VARIANT& /*argument*/) { return Variant::of(object.UControl); }},
    {reader("Name", 2, Type::Text),
     [](ButtonListObject& object, const VARIANT& /*argument*/) {
         return Variant::of(std::string_view(object.list().name()));
     }},
};

} // namespace

std::span<const MemberRow<ButtonListObject>> ButtonListObject::rows() { return table; }

} // namespace quillmere::component

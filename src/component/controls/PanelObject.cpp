#include "component/controls/PanelObject.h"

#include "component/automation/Conversions.h"
#include "component/controls/FieldItemsObject.h"
#include "platform/Error.h"

#include <cstdint>
#include <type_traits>

namespace quillmere::component {

namespace {

/// An argument in the type of a stored value, and back.
template <class T>
T stored(const VARIANT& argument) {
    if constexpr (std::is_same_v<T, bool>)
        return toBoolean(argument);
    else if constexpr (std::is_same_v<T, std::int16_t>)
        return toInteger16(argument);
    else if constexpr (std::is_same_v<T, std::string>)
        return toText(argument);
    else
        return static_cast<T>(toInteger32(argument));
}
Variant shown(const std::string& value) { return Variant::of(std::string_view(value)); }
Variant shown(bool value) { return Variant::of(value); }
Variant shown(std::int16_t value) { return Variant::of(value); }
Variant shown(ui::Colour value) { return Variant::of(static_cast<std::int32_t>(value)); }

template <class T, void (DesignProperties::*set)(T)>
Variant writeDesign(PanelObject& object, const VARIANT& argument) {
    (object.panel().design.*set)(stored<T>(argument));
    return {};
}
template <auto get>
Variant readDesign(PanelObject& object, const VARIANT& /*argument*/) {
    return shown((object.panel().design.*get)());
}

template <class T, T cWhInfo::*field>
Variant writeInfo(WhInfoObject& object, const VARIANT& argument) {
    object.info().*field = stored<T>(argument);
    return {};
}
template <class T, T cWhInfo::*field>
Variant readInfo(WhInfoObject& object, const VARIANT& /*argument*/) {
    return shown(object.info().*field);
}

std::shared_ptr<cFieldItems> fieldItems(const VARIANT& argument) {
    const auto given = toObject(argument);
    if (!given) throw Error(Failure::ObjectNotSet);
    return fieldItemsBehind(given);
}

using Design = DesignProperties;
using ui::Colour;

constexpr DISPID idFieldItems = 11;
constexpr DISPID idWhInfo = 12;

// The stored design properties first, as the classes declare them.
constexpr MemberRow<PanelObject> panelTable[] = {
    {writer("BackColor", 1, Type::Integer32), writeDesign<Colour, &Design::setBackColor>},
    {reader("BackColor", 1, Type::Integer32), readDesign<&Design::BackColor>},
    {writer("ForeColor", 2, Type::Integer32), writeDesign<Colour, &Design::setForeColor>},
    {reader("ForeColor", 2, Type::Integer32), readDesign<&Design::ForeColor>},
    {writer("Enabled", 3, Type::Boolean), writeDesign<bool, &Design::setEnabled>},
    {reader("Enabled", 3, Type::Boolean), readDesign<&Design::Enabled>},
    {writer("Font", 4, Type::Text), writeDesign<std::string, &Design::setFont>},
    {reader("Font", 4, Type::Text), readDesign<&Design::Font>},
    {writer("BackStyle", 5, Type::Integer16), writeDesign<std::int16_t, &Design::setBackStyle>},
    {reader("BackStyle", 5, Type::Integer16), readDesign<&Design::BackStyle>},
    {writer("BorderStyle", 6, Type::Integer16), writeDesign<std::int16_t, &Design::setBorderStyle>},
    {reader("BorderStyle", 6, Type::Integer16), readDesign<&Design::BorderStyle>},
    {operation("setCtrl", 7, Type::Nothing, {"FieldItems", Type::Object}),
     [](PanelObject& object, const VARIANT& argument) {
         object.panel().setCtrl(fieldItems(argument));
         return Variant();
     }},
    {operation("setDGItems", 8),
     [](PanelObject& object, const VARIANT& /*argument*/) {
         object.panel().setDGItems();
         return Variant();
     }},
    {reader("Name", 9, Type::Text),
     [](PanelObject& object, const VARIANT& /*argument*/) {
         return Variant::of(object.panel().row().className);
     }},
    {referenceWriter("FieldItems", idFieldItems),
     [](PanelObject& object, const VARIANT& argument) {
         object.panel().FieldItems = fieldItems(argument);
         return Variant();
     }},
    {reader("FieldItems", idFieldItems, Type::Object),
     [](PanelObject& object, const VARIANT& /*argument*/) {
         return Variant::of(fieldItemsObject(object.panel().FieldItems));
     }},
    {reader("WhInfo", idWhInfo, Type::Object),
     [](PanelObject& object, const VARIANT& /*argument*/) {
         return Variant::of(makeObject<WhInfoObject>(ComPtr<PanelObject>(&object)));
     }},
};

constexpr auto writeId = writeInfo<std::int16_t, &cWhInfo::id>;
constexpr auto readId = readInfo<std::int16_t, &cWhInfo::id>;
template <std::string cWhInfo::*field>
constexpr auto writeInfoText = writeInfo<std::string, field>;
template <std::string cWhInfo::*field>
constexpr auto readInfoText = readInfo<std::string, field>;
template <bool cWhInfo::*field>
constexpr auto writeFlag = writeInfo<bool, field>;
template <bool cWhInfo::*field>
constexpr auto readFlag = readInfo<bool, field>;

// The operations of the record run in the reverse of the order of its fields.
constexpr MemberRow<WhInfoObject> whInfoTable[] = {
    {writer("FldOrder", 6, Type::Text), writeInfoText<&cWhInfo::FldOrder>},
    {reader("FldOrder", 6, Type::Text), readInfoText<&cWhInfo::FldOrder>},
    {writer("IsChange", 5, Type::Boolean), writeFlag<&cWhInfo::IsChange>},
    {reader("IsChange", 5, Type::Boolean), readFlag<&cWhInfo::IsChange>},
    {writer("IsMult", 4, Type::Boolean), writeFlag<&cWhInfo::IsMult>},
    {reader("IsMult", 4, Type::Boolean), readFlag<&cWhInfo::IsMult>},
    {writer("TabId", 3, Type::Text), writeInfoText<&cWhInfo::TabId>},
    {reader("TabId", 3, Type::Text), readInfoText<&cWhInfo::TabId>},
    {writer("personID", 2, Type::Text), writeInfoText<&cWhInfo::personID>},
    {reader("personID", 2, Type::Text), readInfoText<&cWhInfo::personID>},
    {writer("id", 1, Type::Integer16), writeId},
    {reader("id", 1, Type::Integer16), readId},
};

} // namespace

std::span<const MemberRow<PanelObject>> PanelObject::rows() { return panelTable; }
std::span<const MemberRow<WhInfoObject>> WhInfoObject::rows() { return whInfoTable; }

} // namespace quillmere::component

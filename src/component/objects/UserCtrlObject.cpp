#include "component/objects/UserCtrlObject.h"

#include "component/automation/Conversions.h"
#include "component/automation/Utf16.h"
#include "component/connection/ConnectionObject.h"
#include "component/server/Toolkit.h"
#include "platform/Error.h"

namespace quillmere::component {

namespace {

using Entry = UserCtrlObject;
using Setter16 = void (IUserCtrl::*)(std::int16_t);
using Getter16 = std::int16_t (IUserCtrl::*)() const;
using SetterText = void (IUserCtrl::*)(std::string);
using GetterText = const std::string& (IUserCtrl::*)() const;

template <Setter16 set>
Variant write16(Entry& object, const VARIANT& argument) {
    (object.entry().*set)(toInteger16(argument));
    return {};
}
template <Getter16 get>
Variant read16(Entry& object, const VARIANT& /*argument*/) {
    return Variant::of((object.entry().*get)());
}
template <SetterText set>
Variant writeText(Entry& object, const VARIANT& argument) {
    (object.entry().*set)(toText(argument));
    return {};
}
template <GetterText get>
Variant readText(Entry& object, const VARIANT& /*argument*/) {
    return Variant::of(std::string_view((object.entry().*get)()));
}

constexpr DISPID idConnection = 1;
constexpr DISPID idShowPersonWh = 2;
constexpr DISPID idOperationType = 3;
constexpr DISPID idZZtype = 4;
constexpr DISPID idPersonType = 5;
constexpr DISPID idPhotoPath = 6;
constexpr DISPID idUnitCode = 7;
constexpr DISPID idSkinPath = 8;

constexpr MemberRow<Entry> table[] = {
    {referenceWriter("Connection", idConnection),
     [](Entry& object, const VARIANT& argument) {
         object.setConnection(toObject(argument));
         return Variant();
     }},
    {reader("Connection", idConnection, Type::Object),
     [](Entry& object, const VARIANT& /*argument*/) { return Variant::of(object.connection()); }},
    {operation("ShowPersonWh", idShowPersonWh, Type::Boolean),
     [](Entry& object, const VARIANT& /*argument*/) { return Variant::of(object.show()); }},
    {writer("OperationType", idOperationType, Type::Integer16), write16<&IUserCtrl::setOperationType>},
    {reader("OperationType", idOperationType, Type::Integer16), read16<&IUserCtrl::OperationType>},
    {writer("ZZtype", idZZtype, Type::Integer16), write16<&IUserCtrl::setZZtype>},
    {reader("ZZtype", idZZtype, Type::Integer16), read16<&IUserCtrl::ZZtype>},
    {writer("PersonType", idPersonType, Type::Integer16), write16<&IUserCtrl::setPersonType>},
    {reader("PersonType", idPersonType, Type::Integer16), read16<&IUserCtrl::PersonType>},
    {writer("PhotoPath", idPhotoPath, Type::Text), writeText<&IUserCtrl::setPhotoPath>},
    {reader("PhotoPath", idPhotoPath, Type::Text), readText<&IUserCtrl::PhotoPath>},
    {writer("personID", DISPID_VALUE, Type::Text), writeText<&IUserCtrl::setPersonID>},
    {reader("personID", DISPID_VALUE, Type::Text), readText<&IUserCtrl::personID>},
    {writer("UnitCode", idUnitCode, Type::Text), writeText<&IUserCtrl::setUnitCode>},
    {reader("UnitCode", idUnitCode, Type::Text), readText<&IUserCtrl::UnitCode>},
    {writer("SkinPath", idSkinPath, Type::Text), writeText<&IUserCtrl::setSkinPath>},
    {reader("SkinPath", idSkinPath, Type::Text), readText<&IUserCtrl::SkinPath>},
};

template <class T, class Read>
HRESULT give(T* place, Read read) noexcept {
    if (place == nullptr) return E_POINTER;
    *place = {};
    return guarded([&] { *place = read(); });
}

} // namespace

std::span<const MemberRow<UserCtrlObject>> UserCtrlObject::rows() { return table; }

void UserCtrlObject::setConnection(const ComPtr<IDispatch>& connection) {
    // Before anything of the old one is let go: a connection that is refused changes nothing.
    auto behind = connection ? connectionBehind(connection) : nullptr;
    entry_.setConnection(std::move(behind));
    connection_ = connection;
}

ComPtr<IDispatch> UserCtrlObject::connection() {
    if (!connection_) {
        auto created = makeObject<ConnectionObject>();
        entry_.setConnection(created->relay());
        connection_ = ComPtr<IDispatch>(created.get());
    }
    return connection_;
}

bool UserCtrlObject::show() {
    if (!connection_) (void)connection();
    requireToolkit();
    return entry_.ShowPersonWh();
}

HRESULT UserCtrlObject::putref_Connection(IDispatch* connection) {
    return guarded([&] { setConnection(ComPtr<IDispatch>(connection)); });
}
HRESULT UserCtrlObject::get_Connection(IDispatch** connection) {
    return give(connection, [&] { return this->connection().detach(); });
}
HRESULT UserCtrlObject::ShowPersonWh(VARIANT_BOOL* saved) {
    return give(saved, [&] { return show() ? VARIANT_TRUE : VARIANT_FALSE; });
}

HRESULT UserCtrlObject::put_OperationType(short value) {
    entry_.setOperationType(value);
    return S_OK;
}
HRESULT UserCtrlObject::get_OperationType(short* value) {
    return give(value, [&] { return entry_.OperationType(); });
}
HRESULT UserCtrlObject::put_ZZtype(short value) {
    entry_.setZZtype(value);
    return S_OK;
}
HRESULT UserCtrlObject::get_ZZtype(short* value) {
    return give(value, [&] { return entry_.ZZtype(); });
}
HRESULT UserCtrlObject::put_PersonType(short value) {
    entry_.setPersonType(value);
    return S_OK;
}
HRESULT UserCtrlObject::get_PersonType(short* value) {
    return give(value, [&] { return entry_.PersonType(); });
}
HRESULT UserCtrlObject::put_PhotoPath(BSTR value) {
    return guarded([&] { entry_.setPhotoPath(toUtf8(viewOf(value))); });
}
HRESULT UserCtrlObject::get_PhotoPath(BSTR* value) {
    return give(value, [&] { return newText(entry_.PhotoPath()); });
}
HRESULT UserCtrlObject::put_personID(BSTR value) {
    return guarded([&] { entry_.setPersonID(toUtf8(viewOf(value))); });
}
HRESULT UserCtrlObject::get_personID(BSTR* value) {
    return give(value, [&] { return newText(entry_.personID()); });
}
HRESULT UserCtrlObject::put_UnitCode(BSTR value) {
    return guarded([&] { entry_.setUnitCode(toUtf8(viewOf(value))); });
}
HRESULT UserCtrlObject::get_UnitCode(BSTR* value) {
    return give(value, [&] { return newText(entry_.UnitCode()); });
}
HRESULT UserCtrlObject::put_SkinPath(BSTR value) {
    return guarded([&] { entry_.setSkinPath(toUtf8(viewOf(value))); });
}
HRESULT UserCtrlObject::get_SkinPath(BSTR* value) {
    return give(value, [&] { return newText(entry_.SkinPath()); });
}

} // namespace quillmere::component

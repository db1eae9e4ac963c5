#include "quillmere.h"

#include "cinterface/Arguments.h"
#include "cinterface/Objects.h"

using namespace quillmere;
using namespace quillmere::cinterface;

namespace {

using SetNumber = void (IUserCtrl::*)(std::int16_t);
using GetNumber = std::int16_t (IUserCtrl::*)() const;
using SetText = void (IUserCtrl::*)(std::string);
using GetText = const std::string& (IUserCtrl::*)() const;

quillmere_status put(quillmere_entry* entry, SetNumber property, std::int64_t value) noexcept {
    return callOn<Entry>(entry, [&](Entry& object) { (object.control.*property)(toInteger16(value)); });
}

quillmere_status take(quillmere_entry* entry, GetNumber property, std::int16_t* value) noexcept {
    return callOn<Entry>(
        entry, [&](const Entry& object) { placeOf("value", value) = (object.control.*property)(); });
}

quillmere_status put(quillmere_entry* entry, SetText property, const char* value) noexcept {
    return callOn<Entry>(entry, [&](Entry& object) { (object.control.*property)(textOf("value", value)); });
}

quillmere_status take(quillmere_entry* entry, GetText property, const char** value) noexcept {
    return callOn<Entry>(
        entry, [&](const Entry& object) { placeOf("value", value) = (object.control.*property)().c_str(); });
}

} // namespace

quillmere_status quillmere_set_OperationType(quillmere_entry* entry, std::int64_t value) noexcept {
    return put(entry, &IUserCtrl::setOperationType, value);
}

quillmere_status quillmere_get_OperationType(quillmere_entry* entry, std::int16_t* value) noexcept {
    return take(entry, &IUserCtrl::OperationType, value);
}

quillmere_status quillmere_set_ZZtype(quillmere_entry* entry, std::int64_t value) noexcept {
    return put(entry, &IUserCtrl::setZZtype, value);
}

quillmere_status quillmere_get_ZZtype(quillmere_entry* entry, std::int16_t* value) noexcept {
    return take(entry, &IUserCtrl::ZZtype, value);
}

quillmere_status quillmere_set_PersonType(quillmere_entry* entry, std::int64_t value) noexcept {
    return put(entry, &IUserCtrl::setPersonType, value);
}

quillmere_status quillmere_get_PersonType(quillmere_entry* entry, std::int16_t* value) noexcept {
    return take(entry, &IUserCtrl::PersonType, value);
}

quillmere_status quillmere_set_PhotoPath(quillmere_entry* entry, const char* value) noexcept {
    return put(entry, &IUserCtrl::setPhotoPath, value);
}

quillmere_status quillmere_get_PhotoPath(quillmere_entry* entry, const char** value) noexcept {
    return take(entry, &IUserCtrl::PhotoPath, value);
}

quillmere_status quillmere_set_personID(quillmere_entry* entry, const char* value) noexcept {
    return put(entry, &IUserCtrl::setPersonID, value);
}

quillmere_status quillmere_get_personID(quillmere_entry* entry, const char** value) noexcept {
    return take(entry, &IUserCtrl::personID, value);
}

quillmere_status quillmere_set_UnitCode(quillmere_entry* entry, const char* value) noexcept {
    return put(entry, &IUserCtrl::setUnitCode, value);
}

quillmere_status quillmere_get_UnitCode(quillmere_entry* entry, const char** value) noexcept {
    return take(entry, &IUserCtrl::UnitCode, value);
}

quillmere_status quillmere_set_SkinPath(quillmere_entry* entry, const char* value) noexcept {
    return put(entry, &IUserCtrl::setSkinPath, value);
}

quillmere_status quillmere_get_SkinPath(quillmere_entry* entry, const char** value) noexcept {
    return take(entry, &IUserCtrl::SkinPath, value);
}

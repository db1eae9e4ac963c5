#include "component/idl/Interfaces.h"

#include "component/connection/ConnectionObject.h"
#include "component/connection/RecordsetObject.h"
#include "component/controls/ButtonListObject.h"
#include "component/controls/FieldItemsObject.h"
#include "component/controls/PanelObject.h"
#include "component/objects/UserCtrlObject.h"

#include <cstdint>

namespace quillmere::component {

namespace {

/// The ids of the late-bound interfaces differ in the last digits of the first part.
constexpr GUID lateBoundId(std::uint32_t number) {
    return {0xCA155300 | number, 0x492C, 0x4734, {0xA1, 0x40, 0x81, 0xF7, 0x63, 0x2A, 0x70, 0x97}};
}

} // namespace

std::vector<InterfaceRow> interfaceRows() {
    return {
        {"_IUserCtrl", userCtrlInterfaceId, true, membersOf<UserCtrlObject>()},
        {"_Connection", lateBoundId(1), false, membersOf<ConnectionObject>()},
        {"_Recordset", lateBoundId(2), false, membersOf<RecordsetObject>()},
        {"_Fields", lateBoundId(3), false, membersOf<FieldsObject>()},
        {"_Field", lateBoundId(4), false, membersOf<FieldObject>()},
        {"_A1ctrlUser", lateBoundId(5), false, membersOf<PanelObject>()},
        {"_cWhInfo", lateBoundId(6), false, membersOf<WhInfoObject>()},
        {"_cFieldItems", lateBoundId(7), false, membersOf<FieldItemsObject>()},
        {"_cFieldItem", lateBoundId(8), false, membersOf<FieldItemObject>()},
        {"_ctrlButtonList", lateBoundId(9), false, membersOf<ButtonListObject>()},
    };
}

} // namespace quillmere::component

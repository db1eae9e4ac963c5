#include "component/server/ServerClasses.h"

#include "component/controls/ButtonListObject.h"
#include "component/controls/PanelObject.h"
#include "component/objects/UserCtrlObject.h"

#include <algorithm>

namespace quillmere::component {

namespace {

/// The number of a class takes the place of the last digits of the first part.
constexpr CLSID classFamily{0x77281500, 0x17B4, 0x4D1E, {0x86, 0x90, 0xDF, 0xC6, 0xC9, 0xA3, 0xE5, 0x4C}};

template <class Object>
ComPtr<IDispatch> created(const ComPtr<Object>& object) {
    return ComPtr<IDispatch>(object.get());
}
ComPtr<IDispatch> createEntry(std::string_view /*name*/) { return created(makeObject<UserCtrlObject>()); }
ComPtr<IDispatch> createButtonList(std::string_view /*name*/) {
    return created(makeObject<ButtonListObject>());
}
ComPtr<IDispatch> createPanelObject(std::string_view name) { return created(makeObject<PanelObject>(name)); }

constexpr ServerClass panel(std::string_view name, std::uint32_t number) {
    return {name, number, "_A1ctrlUser", createPanelObject};
}

constexpr ServerClass classes[] = {
    {"IUserCtrl", 0x00, "_IUserCtrl", createEntry},
    {"ctrlButtonList", 0x01, "_ctrlButtonList", createButtonList},
    panel("A1ctrlUserA01", 0x10),
    panel("A1ctrlUserA02", 0x11),
    panel("A1ctrlUserA03", 0x12),
    panel("A1ctrlUserA04", 0x13),
    panel("A1ctrlUserA05", 0x14),
    panel("A1ctrlUserA06", 0x15),
    panel("A1ctrlUserA07", 0x16),
    panel("A1ctrlUserA08", 0x17),
    panel("A1ctrlUserA09", 0x18),
    panel("A1ctrlUserA10", 0x19),
    panel("A1ctrlUserA11", 0x1A),
    panel("A1ctrlUserA12", 0x1B),
    panel("A1ctrlUserG01", 0x1C),
    panel("A1ctrlUserB01", 0x1D),
    panel("A1ctrlUserB02", 0x1E),
    panel("A1ctrlUserC01", 0x1F),
    panel("A1ctrlUserC02", 0x20),
    panel("A1ctrlUserC03", 0x21),
    panel("A1ctrlUserC04", 0x22),
    panel("A1ctrlUserC05", 0x23),
    panel("A1ctrlUserC06", 0x24),
    panel("A1ctrlUserC07", 0x25),
    panel("A1ctrlUserP01", 0x26),
    panel("A1ctrlUserP02", 0x27),
    panel("A1ctrlUserP02_DG", 0x28),
    panel("A1ctrlUserP03", 0x29),
    panel("A1ctrlUserP04", 0x2A),
    panel("A1ctrlUserP05", 0x2B),
    panel("A1ctrlUserP06", 0x2C),
    panel("A1ctrlUserP07", 0x2D),
    panel("A1ctrlUserP08", 0x2E),
    panel("A1ctrlUserP10", 0x2F),
    panel("A1ctrlUserP11", 0x30),
    panel("A1ctrlUserP12", 0x31),
    panel("A1ctrlUserP13", 0x32),
    panel("A1ctrlUserP14", 0x33),
    panel("A1ctrlUserP15", 0x34),
    panel("A1ctrlUserP16", 0x35),
    panel("A1ctrlUserP17", 0x36),
    panel("A1ctrlUserP18", 0x37),
    panel("A1ctrlUserPP01", 0x38),
    panel("A1ctrlUserPP01A", 0x39),
    panel("A1ctrlUserJP01", 0x3A),
    panel("A1ctrlUserPlan1", 0x3B),
    panel("A1ctrlUserPlan2", 0x3C),
    panel("A1ctrlUserPlan3", 0x3D),
    panel("A1ctrlUserPlan4", 0x3E),
    panel("A1ctrlUserPlan5", 0x3F),
    panel("A1ctrlUserE02", 0x40),
    panel("A1ctrlUserE05", 0x41),
    panel("A1ctrlUserE06", 0x42),
    panel("A1ctrlUserE07", 0x43),
    panel("A1ctrlUserE08", 0x44),
    panel("A1ctrlUserM02", 0x45),
    panel("A1ctrlUserM03", 0x46),
    panel("A1ctrlUserM04", 0x47),
    panel("A1ctrlUserM05", 0x48),
    panel("A1ctrlUserM06", 0x49),
    panel("A1ctrlUserM07", 0x4A),
    panel("A1ctrluserM08", 0x4B),
    panel("A1ctrlUserF02", 0x4C),
    panel("A1ctrlUserF03", 0x4D),
    panel("A1ctrlUserF04", 0x4E),
    panel("A1ctrlUserF05", 0x4F),
    panel("A1ctrlUserF07", 0x50),
    panel("A1ctrlUserF08", 0x51),
    panel("A1ctrlUserF09", 0x52),
    panel("A1ctrlUserN02", 0x53),
    panel("A1ctrlUserN03", 0x54),
    panel("A1ctrlUserN04", 0x55),
    panel("A1ctrlUserN05", 0x56),
    panel("A1ctrlUserN06", 0x57),
    panel("A1ctrlUserN07", 0x58),
};

} // namespace

std::span<const ServerClass> serverClasses() { return classes; }

CLSID classIdOf(const ServerClass& row) {
    CLSID id = classFamily;
    id.Data1 |= row.number;
    return id;
}

std::string programIdOf(const ServerClass& row) { return "Quillmere." + std::string(row.name); }

const ServerClass* findClass(REFCLSID id) {
    const auto found = std::ranges::find_if(
        classes, [&](const ServerClass& row) { return IsEqualGUID(classIdOf(row), id); });
    return found == std::end(classes) ? nullptr : &*found;
}

} // namespace quillmere::component

#include "panels/PanelFactory.h"

#include "platform/Error.h"

#include <string>

namespace quillmere {

namespace {

using Maker = std::unique_ptr<A1ctrlUser> (*)(const PanelRow& row, std::string name, PanelWindow& window);

template <class Panel>
std::unique_ptr<A1ctrlUser> make(const PanelRow& row, std::string name, PanelWindow& window) {
    return std::make_unique<Panel>(row, std::move(name), window);
}

struct ClassRow {
    std::string_view className;
    Maker make;
};

/// The panels that add something to the template.
Maker makerOf(std::string_view className) {
    static constexpr ClassRow classes[] = {
        {"A1ctrlUser", make<A1ctrlUser>},
    };
    for (const ClassRow& row : classes) {
        if (row.className == className) return row.make;
    }
    return make<A1ctrlUser>;
}

} // namespace

std::unique_ptr<A1ctrlUser> createPanel(std::string_view name, PanelWindow& window) {
    const PanelRow* row = findPanel(name);
    if (row == nullptr) throw Error(Failure::CannotCreateObject);
    return makerOf(row->className)(*row, std::string(name), window);
}

} // namespace quillmere

#include "panels/PanelFactory.h"

#include "metadata/Globals.h"
#include "panels/A1ctrlUserC04.h"
#include "panels/A1ctrlUserP02_DG.h"
#include "panels/A1ctrlUserP03.h"
#include "panels/PersonPanel.h"
#include "panels/StartUp.h"
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
        {"A1ctrlUserA01", make<PersonPanel>},         {"A1ctrlUserG01", make<PersonPanel>},
        {"A1ctrlUserP02_DG", make<A1ctrlUserP02_DG>}, {"A1ctrlUserP03", make<A1ctrlUserP03>},
        {"A1ctrlUserC04", make<A1ctrlUserC04>},
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
    auto panel = makerOf(row->className)(*row, std::string(name), window);
    startUp(*panel, row->className, gZZType);
    return panel;
}

} // namespace quillmere

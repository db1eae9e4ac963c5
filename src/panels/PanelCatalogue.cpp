#include "panels/PanelCatalogue.h"

#include "panels/catalogue/PanelGroups.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <vector>

namespace quillmere {

std::span<const PanelRow> panelCatalogue() {
    static const std::vector<PanelRow> all = [] {
        std::vector<PanelRow> rows;
        for (const auto group :
             {catalogue::personPanels(), catalogue::unitPanels(), catalogue::collectivePanels(),
              catalogue::projectPanels(), catalogue::planPanels(), catalogue::reportPanels(),
              catalogue::closingPanels()}) {
            rows.insert(rows.end(), group.begin(), group.end());
        }
        return rows;
    }();
    return all;
}

const PanelRow* findPanel(std::string_view className) {
    const auto all = panelCatalogue();
    const auto found = std::ranges::find_if(
        all, [&](const PanelRow& row) { return text::equalsNoCase(row.className, className); });
    return found == all.end() ? nullptr : &*found;
}

} // namespace quillmere

#include "panels/A1ctrlUserP03.h"

#include "metadata/Globals.h"
#include "panels/FrameInUse.h"
#include "platform/ui/Frame.h"

namespace quillmere {

namespace {

/// In twips: 240 by design, and 234.592 once a layout has been chosen.
constexpr int designedLeft = 240;
constexpr int chosenLeft = 235;

struct LayoutRow {
    std::int32_t sponsorshipType;
    bool byPurpose;
    const char* title;
};

/// Under any other type everything stays as it was designed.
constexpr LayoutRow layouts[] = {
    {1, false, "申请资助经费预算"},    {2, false, "申请资助经费预算"}, {3, false, "申请资助经费预算"},
    {4, true, "项目总体经费使用安排"}, {5, false, "申请资助经费预算"}, {7, true, "项目总体经费使用安排"},
};

} // namespace

A1ctrlUserP03::A1ctrlUserP03(const PanelRow& row, std::string name, PanelWindow& window)
    : RowGridPanel(row, std::move(name), window, budgetGrids()) {
    layOut();
}

void A1ctrlUserP03::onFilled() {
    BindGridABCE();
    BindGridDG();
}

void A1ctrlUserP03::layOut() {
    auto& bySubject = static_cast<ui::Frame&>(*find("frmABCE"));
    auto& byPurpose = static_cast<ui::Frame&>(*find("frmDG"));
    moveFrame(bySubject, offScreen);
    moveFrame(byPurpose, designedLeft);
    for (const LayoutRow& layout : layouts) {
        if (layout.sponsorshipType != gZZType) continue;
        moveFrame(layout.byPurpose ? byPurpose : bySubject, chosenLeft);
        moveFrame(layout.byPurpose ? bySubject : byPurpose, offScreen);
        static_cast<ui::Label&>(*find("Title")).setCaption(layout.title);
    }
}

} // namespace quillmere

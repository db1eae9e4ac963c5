#include "panels/StartUp.h"

#include "platform/Error.h"
#include "platform/ui/ControlHost.h"
#include "platform/ui/Label.h"

#include <array>
#include <string>

namespace quillmere {

namespace {

/// A set of sponsorship types.
template <class... Type>
constexpr unsigned types(Type... type) {
    return ((1U << static_cast<unsigned>(type)) | ...);
}

/// What one panel does under some types; empty names stand for nothing.
struct StartUpRow {
    std::string_view className;
    unsigned types;
    /// Hidden with their captions, by the stem of the widgets' names.
    std::array<std::string_view, 3> hiddenFields;
    std::string_view hiddenLabel = {};
    /// Labels that get the caption behind them.
    std::array<std::string_view, 2> renamed = {};
    std::string_view caption = {};
};

constexpr std::array startUpRows{
    StartUpRow{"A1ctrlUserP01", types(4, 5), {"P01_P0106", "P01_P0107", "P01_P0103"}, "Label2"},
    StartUpRow{"A1ctrlUserP01", types(6, 7), {"P01_P0112", "P01_P0103"}, "Label2"},
    StartUpRow{"A1ctrlUserPP01", types(5), {"P01_P0106", "P01_P0107"}},
    StartUpRow{"A1ctrlUserPP01", types(6, 7), {"P01_P0112"}},
    StartUpRow{"A1ctrlUserJP01", types(1, 2, 3, 5), {"P01_P0104"}},
    StartUpRow{"A1ctrlUserJP01", types(5), {"P01_P0106", "P01_P0107"}},
    StartUpRow{"A1ctrlUserJP01", types(6, 7), {"P01_P0112"}},
    StartUpRow{"A1ctrlUserP03", types(1, 2, 3), {"P01_P0103", "P01_P0104"}, "Label3"},
    StartUpRow{"A1ctrlUserP03", types(5), {"P01_P0104"}},
    StartUpRow{"A1ctrlUserP06", types(6), {}, {}, {"Title", "P06_P0601_c"}, "申请单位党委（党组）意见"},
};

bool holdsUnder(const StartUpRow& row, std::int32_t type) {
    constexpr std::int32_t lastType = 7;
    return type >= 1 && type <= lastType && (row.types & types(type)) != 0;
}

ui::Control& widget(const ui::ControlHost& panel, std::string_view name) {
    ui::Control* control = panel.find(name);
    if (control == nullptr) throw Error(Failure::ItemNotFound);
    return *control;
}

void apply(const StartUpRow& row, const ui::ControlHost& panel) {
    for (const std::string_view field : row.hiddenFields) {
        if (field.empty()) continue;
        widget(panel, std::string(field) + "_v").setVisible(false);
        widget(panel, std::string(field) + "_c").setVisible(false);
    }
    if (!row.hiddenLabel.empty()) widget(panel, row.hiddenLabel).setVisible(false);
    for (const std::string_view label : row.renamed) {
        if (label.empty()) continue;
        dynamic_cast<ui::Label&>(widget(panel, label)).setCaption(std::string(row.caption));
    }
}

} // namespace

void startUp(const ui::ControlHost& panel, std::string_view className, std::int32_t sponsorshipType) {
    for (const StartUpRow& row : startUpRows) {
        if (row.className == className && holdsUnder(row, sponsorshipType)) apply(row, panel);
    }
}

} // namespace quillmere

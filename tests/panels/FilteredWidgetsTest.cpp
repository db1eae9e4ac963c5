#include "panels/PanelCatalogue.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

namespace quillmere {
namespace {

using Names = std::set<std::string>;

const std::map<KeyFilter, Names> filtered = {
    {KeyFilter::Digits,
     {"A01_A0125", "A08_A0804", "A09_A0905", "B01_B0106", "B01_B0113", "B01_B0114", "B01_B0115", "B01_B0116",
      "B01_B0117", "B01_B0118", "B01_B0119", "B01_B0120", "B01_B0121", "Plan2_Plan203", "Plan3_Plan303",
      "F03_F0303", "F04_F0403"}},
    {KeyFilter::Decimal,
     {"P01_P0102", "P01_P0103", "P01_P0126",     "P01_P0127",     "P04_P0404",     "P05_P0503",
      "B02_B0202", "E02_E0203", "Plan2_Plan204", "Plan2_Plan205", "Plan3_Plan304", "Plan3_Plan305",
      "E05_E0501", "E05_E0502", "E07_E0705",     "F02_F0203",     "F03_F0304",     "F03_F0305",
      "F04_F0404", "F04_F0405", "F05_F0501",     "F05_F0502",     "F05_F0503",     "M02_M0203",
      "M07_M0705", "M07_M0706", "M07_M0707",     "M08_M0801",     "M08_M0802",     "N02_N0203",
      "N03_N0301", "N03_N0302", "N03_N0303",     "Plan4_Plan402", "A01_A0141"}},
    {KeyFilter::Phone, {"A01_A0126", "A01_A0127", "A01_A0128", "B01_B0109", "B01_B0112"}},
};

/// Widgets of that filter, and with them the panels where a widget of the same name has none.
struct Found {
    std::map<KeyFilter, Names> filtered;
    Names bare;
};

Found findAll() {
    Names listed;
    for (const auto& [filter, names] : filtered)
        listed.insert(names.begin(), names.end());
    Found found;
    for (const PanelRow& row : panelCatalogue()) {
        for (const FieldRow& field : row.fields) {
            const std::string name = std::string(row.widgetTable) + "_" + std::string(field.code);
            if (field.filter != KeyFilter::None)
                found.filtered[field.filter].insert(name);
            else if (listed.contains(name))
                found.bare.insert(std::string(row.className) + " " + name);
        }
    }
    return found;
}

TEST(FilteredWidgetsTest, EveryNumericBoxHasTheFilterOfItsClassAndNoOtherHasOne) {
    EXPECT_EQ(findAll().filtered, filtered);
}

TEST(FilteredWidgetsTest, AmountsWithoutAFilterStandOnThreePanelsOnly) {
    EXPECT_EQ(findAll().bare,
              (Names{"A1ctrlUserC04 P01_P0102", "A1ctrlUserC04 P01_P0103", "A1ctrlUserC04 P01_P0127",
                     "A1ctrlUserJP01 P01_P0126", "A1ctrlUserJP01 P01_P0127", "A1ctrlUserP03 P01_P0103"}));
}

} // namespace
} // namespace quillmere

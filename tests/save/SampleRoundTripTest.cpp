#include "adapters/sqlite/SqliteConnection.h"
#include "metadata/Catalogue.h"
#include "metadata/FieldLoaders.h"
#include "metadata/Globals.h"
#include "panels/PanelCatalogue.h"
#include "platform/ui/DataGrid.h"
#include "sample/SampleRegister.h"
#include "save/SaveEngine.h"
#include "support/ScriptedPerson.h"
#include "support/StandInWindow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace quillmere {
namespace {

using Rows = std::vector<std::string>;

/// Every panel on a record of the sample register: what was loaded is saved and loaded again.
class SampleRoundTripTest : public testing::TestWithParam<std::string> {
protected:
    SampleRoundTripTest() { publishConnection(connection); }
    ~SampleRoundTripTest() override { publishConnection(nullptr); }

    Rows textRows(const std::string& sql) {
        const data::RowSet answer = connection->query(sql);
        Rows rows;
        for (std::size_t i = 0; i < answer.rowCount(); ++i) {
            std::string line;
            for (const data::Value& value : answer.row(i))
                line += (value.isNull() ? "(null)" : value.toText()) + "|";
            rows.push_back(line);
        }
        return rows;
    }

    /// Prepares and fills the panel of a person as the window does it.
    A1ctrlUser& open(const std::string& personID) {
        A1ctrlUser& panel = window.place(row);
        panel.WhInfo.personID = personID;
        panel.WhInfo.TabId = table;
        panel.WhInfo.IsMult = GetIsMult(table);
        const auto order = OpenRecordset("select orderfield from s_infotable where tblname='" + table + "'");
        panel.WhInfo.FldOrder = order->Fields(std::size_t{0}).toTextOrEmpty();
        if (panel.WhInfo.FldOrder.empty()) panel.WhInfo.FldOrder = table + "99";
        if (panel.WhInfo.IsMult) {
            panel.setDGItems();
        } else {
            const auto items = LoadFieldItemsWithValues(table, personID, 0);
            panel.setCtrl(items);
            panel.FieldItems = items;
        }
        return panel;
    }

    /// Loads the person's first record, saves it, and tells what the table then holds of the person.
    Rows saveOnce(const std::string& personID) {
        A1ctrlUser& panel = open(personID);
        const SaveContext context{
            .WhState = 4, .personID = personID, .UnitCode = {}, .labPersonName = labPersonName};
        EXPECT_TRUE(Save(panel, context));
        window.remove(window.Count() - 1);
        Rows rows = textRows("select * from " + table + " where A00='" + personID + "'");
        std::ranges::sort(rows);
        return rows;
    }

    /// One register for all panels; each saves the values that it holds.
    static const std::shared_ptr<data::Connection>& sharedRegister() {
        static const auto shared = [] {
            auto made = sqlite::openInMemory();
            sample::build(*made, {});
            return made;
        }();
        return shared;
    }
    const std::shared_ptr<data::Connection>& connection = sharedRegister();
    test::ScriptedPerson person;
    test::StandInWindow window;
    ui::Label labPersonName{"labPersonName"};
    const PanelRow& row = *findPanel(GetParam());
    const std::string table{row.widgetTable};
};

std::vector<std::string> allPanels() {
    std::vector<std::string> names;
    for (const PanelRow& panel : panelCatalogue())
        names.emplace_back(panel.className);
    return names;
}

INSTANTIATE_TEST_SUITE_P(Panels, SampleRoundTripTest, testing::ValuesIn(allPanels()),
                         [](const auto& panel) { return panel.param; });

TEST_P(SampleRoundTripTest, SavingWhatWasLoadedIsAcceptedAndSavingItAgainChangesNothing) {
    const Rows people = textRows("select A00 from " + table + " group by A00 order by A00");
    ASSERT_FALSE(people.empty());
    const std::string personID = people.front().substr(0, people.front().size() - 1);
    const auto count = textRows("select * from " + table + " where A00='" + personID + "'").size();
    const Rows once = saveOnce(personID);
    EXPECT_EQ(once.size(), count);
    EXPECT_EQ(saveOnce(personID), once);
}

} // namespace
} // namespace quillmere

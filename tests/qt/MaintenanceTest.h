#pragma once

#include "adapters/sqlite/SqliteConnection.h"
#include "qt/RealPerson.h"
#include "quillmere/IUserCtrl.h"
#include "sample/SampleRegister.h"
#include "shell/frmPersonWh.h"

#include <gtest/gtest.h>

namespace quillmere::test {

/// A person of the sample register who has several rows of studies, and whose project is not past the
/// stage in which everything may be edited.
class MaintenanceTest : public testing::Test {
protected:
    MaintenanceTest() {
        sample::build(*connection, {.persons = 40, .units = 0});
        personKey = connection
                        ->query("select A02.A00 from A02 join P01 on P01.A00=A02.A00 where P0123='01' "
                                "group by A02.A00 having count(*) > 2 order by A02.A00")
                        .at(0, std::size_t{0})
                        .toText();
    }

    void maintain(const std::function<void(frmPersonWh&)>& work, std::int16_t zzType = 1) {
        screen.person.onForm([&](ui::Form& form) { work(static_cast<frmPersonWh&>(form)); }, "frmPersonWh");
        IUserCtrl host;
        host.setConnection(connection);
        host.setOperationType(4);
        host.setZZtype(zzType);
        host.setPersonID(personKey);
        (void)host.ShowPersonWh();
    }

    /// Opens the group and clicks the item, each with the mouse.
    static void clickMenu(int group, int item) {
        clickOn(widgetNamed("VMenu1_" + std::to_string(group)));
        clickOn(widgetNamed("VMenu1_" + std::to_string(group) + "_" + std::to_string(item)));
    }

    std::shared_ptr<data::Connection> connection = sqlite::openInMemory();
    std::string personKey;
    Screen screen;
};

} // namespace quillmere::test

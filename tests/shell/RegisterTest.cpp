#include "shell/RegisterTest.h"

#include "metadata/Globals.h"
#include "platform/convert/Clock.h"
#include "platform/ui/Label.h"
#include "platform/ui/TextBox.h"
#include "sample/Catalogue.h"
#include "sample/Schema.h"

namespace quillmere::test {

void buildCatalogue(data::Connection& connection) {
    connection.execute("begin");
    sample::createSchema(connection, sample::informationSets(), sample::dialectOf(sample::Engine::Sqlite));
    sample::writeCatalogue(connection);
    connection.execute("commit");
}

RegisterTest::RegisterTest() : journal(person, window()) {
    buildCatalogue(database.engine());
    clock::fix(convert::DateTime{2026, 11, 21, 9, 30, 0});
    gZZType = 0;
    gZZYear.clear();
    // The one window keeps the size that a person gave it.
    window().setGeometry({0, 0, 15240, 11010});
}

RegisterTest::~RegisterTest() {
    clock::fix(std::nullopt);
    gZZType = 0;
    gZZYear.clear();
}

void RegisterTest::addPerson(std::string_view id, std::string_view name, std::string_view stage) {
    const std::string key(id);
    database.run("insert into A01 (A00,A0101,A0199) values ('" + key + "','" + std::string(name) +
                 "',(select count(*)+1 from A01))");
    database.run("insert into P01 (A00,P0123,P0120) values ('" + key + "','" + std::string(stage) + "','')");
}

void RegisterTest::addUnit(std::string_view id, std::string_view name) {
    database.run("insert into B01 (A00,B0101,B0199) values ('" + std::string(id) + "','" + std::string(name) +
                 "',(select count(*)+1 from B01))");
}

void RegisterTest::allowDuplicates() {
    for (const char* table : {"A01", "B01", "P01"})
        database.run(std::string("drop index UX_") + table + "_A00");
}

void RegisterTest::give(IUserCtrl& host, std::int16_t operationType, std::string_view id,
                        std::int16_t zzType) {
    host.setConnection(journal.over(database.connection()));
    host.setOperationType(operationType);
    host.setPersonID(std::string(id));
    host.setZZtype(zzType);
}

bool RegisterTest::run(IUserCtrl& host, const std::function<void(frmPersonWh& window)>& work) {
    person.onForm(
        [work](ui::Form& form) {
            if (work) work(dynamic_cast<frmPersonWh&>(form));
        },
        "frmPersonWh");
    return host.ShowPersonWh();
}

bool RegisterTest::run(std::int16_t operationType, std::string_view id, std::int16_t zzType,
                       const std::function<void(frmPersonWh& window)>& work) {
    IUserCtrl host;
    give(host, operationType, id, zzType);
    return run(host, work);
}

std::string RegisterTest::panelName() {
    const A1ctrlUser* panel = window().GetUserCtrl();
    return panel == nullptr ? "(none)" : panel->name();
}

void RegisterTest::type(std::string_view widget, std::string_view text) {
    ASSERT_TRUE(window().moveFocus(controlOf<ui::TextBox>(window(), widget))) << widget;
    typeText(window(), text);
}

void RegisterTest::press(std::string_view button) {
    ASSERT_TRUE(window().toolbar().clickButton(button_(button))) << button;
}

std::string RegisterTest::labOpt() { return controlOf<ui::Label>(window(), "labOpt").Caption(); }

} // namespace quillmere::test

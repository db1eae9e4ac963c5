// The lists of TS_SetCustomize, of which the menu is composed.

#include "support/Fuzzing.h"
#include "support/WatchedEngine.h"

#include "metadata/Globals.h"
#include "platform/text/Text.h"
#include "platform/ui/Form.h"
#include "platform/ui/VerticalMenu.h"
#include "shell/MenuComposition.h"

#include <algorithm>
#include <array>

namespace {

using namespace quillmere;
using fuzz::hold;

std::string literal(const std::string& text) { return "'" + text::replaceAll(text, "'", "''") + "'"; }

/// Published as the system's for as long as it lives; what it does is the other's doing.
class Published final : public data::Connection {
public:
    explicit Published(data::Connection& other) : other_(other) {}
    data::RowSet query(std::string_view sql) override { return other_.query(sql); }
    void execute(std::string_view sql) override { other_.execute(sql); }
    [[nodiscard]] bool isOpen() const override { return true; }
    void close() override {}

private:
    data::Connection& other_;
};

/// Groups 1 to 3 show tables of their lists only.
void showsItsLists(const ui::VerticalMenu& menu, const std::array<std::string, 3>& lists) {
    std::vector<std::string> listed{"P01"}; // the key that some tables of a project stand under
    for (const std::string& list : lists)
        for (const std::string& table : text::split(list, ","))
            listed.push_back(table);
    for (std::size_t group = 0; group < lists.size(); ++group)
        for (const auto& item : menu.groups()[group].items)
            hold(std::ranges::any_of(listed,
                                     [&](const auto& table) { return text::equalsNoCase(table, item.key); }),
                 "a menu shows the tables of its list");
}

} // namespace

/// A line with the sponsorship type, and one for each of the three lists.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input input(data, size);
    const int type = fuzz::numberOf(input.line());
    std::array<std::string, 3> lists;
    for (std::string& list : lists)
        list = text::replaceAll(input.line(), std::string(1, '\0'), "");

    fuzz::WatchedEngine engine;
    engine.directly(
        "create table s_infotable (tblname text collate nocase, tbldesc text, otherprop integer);"
        "insert into s_infotable "
        "values('A01','a',1),('A02','b',2),('P01','c',3),('P02','d',4),('E02',null,5),"
        "('M02','e',6),('N02','f',7),('F02','g',8),('P03','h',9);"
        "create table TS_SetCustomize (DmCod text, PersonItem text, ProjectItem text, PlanItem text);");
    for (const char* code : {"01", "02", "06"})
        engine.directly("insert into TS_SetCustomize values('" + std::string(code) + "'," +
                        literal(lists[0]) + "," + literal(lists[1]) + "," + literal(lists[2]) + ")");

    publishConnection(std::make_shared<Published>(engine.connection()));
    ui::Form form("frmPersonWh", "");
    auto& menu = form.add<ui::VerticalMenu>("VMenu1");
    for (int group = 1; group <= 5; ++group)
        menu.addGroup("group", 0);
    const auto failure = fuzz::failureOf([&] { composeMenu(menu, type); });
    publishConnection(nullptr);
    // Whoever may write the catalogue decides what runs: a list with a quote can be any condition.
    const bool quoted =
        std::ranges::any_of(lists, [](const auto& list) { return list.find('\'') != std::string::npos; });
    if (!failure && !quoted) showsItsLists(menu, lists);
    return 0;
}

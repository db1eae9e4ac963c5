#include "shell/RecordCommandTest.h"

#include "platform/ui/TextBox.h"

#include <algorithm>
#include <array>

namespace quillmere::test {

namespace {

/// How the statements begin that belong to the loading of a panel, whatever command is behind it.
constexpr std::array loading{
    "SQL  select Property from s_infotable",
    "SQL  select * from s_infoitem",
    "SQL select dmcpt from ",
    "SQL select iif(orderfield",
    "SQL select itemname,itemdesc",
    "SQL select A02.A0299 as",
    "SQL select itemdesc from s_infoitem",
    "SQL select iif(tbldesc",
    "SQL select count(*) from A02 where A00 ='",
    "SQL select count(*) from A01 where A00 ='",
};

const std::string person{somePerson};

} // namespace

RecordCommandTest::RecordCommandTest() { addPerson(id, "秦志明"); }

void RecordCommandTest::addStudy(int number) {
    const std::string digits = std::to_string(number);
    database.run("insert into A02 (A00,A0299,A0201,A0203) values ('" + id + "'," + digits + ",'200" + digits +
                 "-07','学校" + digits + "')");
}

void RecordCommandTest::open(std::string_view table) {
    const auto& items = window().menu().groups()[0].items;
    const auto found = std::ranges::find(items, table, &ui::VerticalMenu::Item::key);
    ASSERT_NE(found, items.end()) << table;
    ASSERT_TRUE(window().menu().clickItem(1, static_cast<int>(found - items.begin()) + 1));
}

void RecordCommandTest::empty(std::string_view widget) {
    ASSERT_TRUE(window().moveFocus(controlOf<ui::TextBox>(window(), widget))) << widget;
    window().selectAll();
    window().pressKey({ui::key::Backspace, ui::shift::None});
}

Lines RecordCommandTest::story() const {
    Lines kept;
    for (const std::string& line : journal.lines()) {
        if (line.starts_with("OpenGroup ")) continue;
        if (std::ranges::none_of(loading, [&](const char* start) { return line.starts_with(start); })) {
            kept.push_back(line);
        }
    }
    return kept;
}

std::string RecordCommandTest::text(std::string_view widget) {
    return controlOf<ui::TextBox>(window(), widget).Text();
}

void expectLines(const Lines& told, const Lines& expected) { EXPECT_EQ(told, expected); }

Lines operator+(Lines first, const Lines& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

Lines addAndDelete(bool enabled) {
    if (enabled) return {"toolbar Add on, Delete off", "toolbar Add on, Delete on"};
    return {"toolbar Add off, Delete on", "toolbar Add off, Delete off"};
}

std::string box(std::string_view title, std::string_view text) {
    return "BOX [" + std::string(title) + "] " + std::string(text);
}

std::string sql(std::string_view statement) { return "SQL " + std::string(statement); }

Lines limitOfStudies() {
    return {sql("select iif(maxnumber is null,0,maxnumber) as maxnumber from  s_infotable  where tblname "
                "='A02'"),
            sql("select count(*) from A02 where a00='" + person + "'")};
}

Lines gate(std::string_view id) {
    return {sql("select count(A00) from a01 where a00 ='" + std::string(id) + "'"),
            sql("select count(A00) from B01 where a00 ='" + std::string(id) + "'")};
}

Lines replacedPanel(std::string_view before, std::string_view after) {
    return {"- " + std::string(before), "+ " + std::string(after)};
}

Lines nextStudy(int number) {
    return {sql("select iif(max(A0299) is null,0,max(A0299))+1  from A02 where A00 ='" + person + "' "),
            sql("select * from A02 where a00 ='" + person + "' and A0299=" + std::to_string(number))};
}

} // namespace quillmere::test

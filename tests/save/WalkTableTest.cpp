#include "save/SaveBench.h"

#include "platform/ui/CommandButton.h"
#include "platform/ui/Image.h"
#include "platform/ui/ListBox.h"

#include <ostream>

namespace quillmere {
namespace {

enum class Widget { Text, Mask, Check, Label, List, Button, Image };

/// What a required field that is left empty does.
enum class WhenRequired { Passes, Complains };

/// A value widget with its field, what is in it, and what a save makes of it.
struct Row {
    const char* name;
    Widget widget;
    const char* type;
    std::string content;
    /// The value in an insert; empty when the column is not listed.
    std::string inserted;
    /// The value in an update; empty when the column is not assigned.
    std::string assigned;
    /// What the only complaint says behind the caption; empty for none.
    const char* complaint;
    WhenRequired required;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.type << " [" << row.content << "]"; }

std::string characters(int count) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += "字";
    return text;
}

const std::string stored255 = "'" + characters(255) + "'";
const std::string stored256 = "'" + characters(256) + "'";
constexpr auto no = "";
constexpr auto tooLong = " 数据应该小于256个字符长度";
constexpr auto notNumeric = " 数据应该输入数字";
constexpr auto outOfRange = " 数据应该在 0到1000000范围内";
constexpr auto notDate = " 数据应该是日期型，例如1990年03月";
constexpr auto notFull = " 数据数据填写不完整";
constexpr auto quote = "输入存在非法字符 ” ' “，请您将其改为 “ ‘ ”，或者去掉。 ";
constexpr auto empty = "____年__月";
constexpr auto half = "1990年0_月";
constexpr auto full = "1990年03月";

using enum Widget;
using enum WhenRequired;

// clang-format off
const Row textBoxes[] = {
    //name                  widget type        content          inserted        assigned        complaint   required
    {"VarcharFilled",        Text, "varchar",  "甲",            "'甲'",         "'甲'",         no,         Passes},
    {"VarcharBlank",         Text, "varchar",  " ",             "' '",          "' '",          no,         Passes},
    {"VarcharEmpty",         Text, "varchar",  "",              "''",           "''",           no,         Complains},
    {"VarcharLongest",       Text, "varchar",  characters(255), stored255, stored255, no, Passes},
    {"VarcharTooLong",       Text, "varchar",  characters(256), no,             no,             tooLong,    Passes},
    {"VarcharQuote",         Text, "varchar",  "a'b",           no,             no,             quote,      Passes},
    {"VarcharUpperFilled",   Text, "VARCHAR",  "甲",            "'甲'",         "'甲'",         no,         Passes},
    {"VarcharUpperEmpty",    Text, "VARCHAR",  "",              "''",           "''",           no,         Complains},
    {"VarcharUpperTooLong",  Text, "VARCHAR",  characters(256), no,             no,             tooLong,    Passes},
    {"VarcharMixedFilled",   Text, "Varchar",  "甲",            "'甲'",         "'甲'",         no,         Passes},
    {"IntFilled",            Text, "int",      "42",            "'42'",         "'42'",         no,         Passes},
    {"IntZero",              Text, "int",      "0",             "'0'",          "'0'",          no,         Passes},
    {"IntLeadingZeros",      Text, "int",      "0042",          "'0042'",       "'0042'",       no,         Passes},
    {"IntFraction",          Text, "int",      "12.5",          "'12.5'",       "'12.5'",       no,         Passes},
    {"IntThousands",         Text, "int",      "12,000",        "'12,000'",     "'12,000'",     no,         Passes},
    {"IntExponent",          Text, "int",      "1e3",           "'1e3'",        "'1e3'",        no,         Passes},
    {"Int32768",             Text, "int",      "32768",         "'32768'",      "'32768'",      no,         Passes},
    {"IntLargest",           Text, "int",      "1000000",       "'1000000'",    "'1000000'",    no,         Passes},
    {"IntRoundsDownToLargest", Text, "int",    "1000000.5",     "'1000000.5'",  "'1000000.5'",  no,         Passes},
    {"IntRoundsUpToZero",    Text, "int",      "-0.5",          "'-0.5'",       "'-0.5'",       no,         Passes},
    {"IntEmpty",             Text, "int",      "",              no,             no,             no,         Complains},
    {"IntNotNumeric",        Text, "int",      "十",            no,             no,             notNumeric, Passes},
    {"IntAboveLargest",      Text, "int",      "1000001",       no,             no,             outOfRange, Passes},
    {"IntRoundsAboveLargest", Text, "int",     "1000000.6",     no,             no,             outOfRange, Passes},
    {"IntNegative",          Text, "int",      "-1",            no,             no,             outOfRange, Passes},
    {"IntUpperFilled",       Text, "INT",      "42",            "'42'",         "'42'",         no,         Passes},
    {"IntUpperEmpty",        Text, "Int",      "",              no,             no,             no,         Complains},
    {"IntUpperNotNumeric",   Text, "INT",      "十",            no,             no,             notNumeric, Passes},
    {"DateMonth",            Text, "datetime", "1990-03",       "'1990-03'",    "'1990-03'",    no,         Passes},
    {"DateOfEight",          Text, "datetime", "1990-3-1",      "'1990-03'",    "'1990-03'",    no,         Passes},
    {"DateDay",              Text, "datetime", "1990-03-12",    "'1990-03-12'", "'1990-03-12'", no,         Passes},
    {"DateEmpty",            Text, "datetime", "",              no,             "null",         no,         Complains},
    {"DateIll",              Text, "datetime", "1990-13",       no,             no,             notDate,    Passes},
    {"DateUpperFilled",      Text, "DateTime", "1990-03",       "'1990-03'",    "'1990-03'",    no,         Passes},
    {"DateUpperEmpty",       Text, "DATETIME", "",              no,             "null",         no,         Complains},
    {"DateUpperIll",         Text, "DATETIME", "1990-13",       no,             no,             notDate,    Passes},
    {"LongTextFilled",       Text, "ntext",    "甲",            "'甲'",         "'甲'",         no,         Passes},
    {"LongTextEmpty",        Text, "ntext",    "",              "''",           "''",           no,         Complains},
    {"LongTextOfAnyLength",  Text, "ntext",    characters(256), stored256, stored256, no, Passes},
    {"LongTextQuote",        Text, "ntext",    "a'b",           no,             no,             quote,      Passes},
    {"LongTextUpperFilled",  Text, "Ntext",    "甲",            "'甲'",         "'甲'",         no,         Passes},
    {"LongTextUpperEmpty",   Text, "NTEXT",    "",              "''",           "''",           no,         Complains},
    {"BitFilled",            Text, "bit",      "True",          "'True'",       "'True'",       no,         Passes},
    {"BitNoBit",             Text, "bit",      "7",             "'7'",          "'7'",          no,         Passes},
    {"BitEmpty",             Text, "bit",      "",              "''",           "''",           no,         Complains},
    {"BitQuote",             Text, "bit",      "'",             no,             no,             quote,      Passes},
    {"BitUpperFilled",       Text, "BIT",      "1",             "'1'",          "'1'",          no,         Passes},
    {"OtherFilled",          Text, "money",    "12",            no,             no,             no,         Passes},
    {"OtherIll",             Text, "money",    characters(256), no,             no,             no,         Passes},
    {"OtherEmpty",           Text, "money",    "",              no,             no,             no,         Complains},
    {"OtherQuote",           Text, "Money",    "'",             no,             no,             quote,      Passes},
    {"NoTypeFilled",         Text, "",         "12",            no,             no,             no,         Passes},
    {"NoTypeEmpty",          Text, "",         "",              no,             no,             no,         Complains},
};

const Row maskedBoxes[] = {
    {"VarcharFilled",        Mask, "varchar",  full,            "'1990年03月'", "'1990年03月'", no,         Passes},
    {"VarcharNoDate",        Mask, "varchar",  "1990年13月",    "'1990年13月'", "'1990年13月'", no,         Passes},
    {"VarcharUnfilled",      Mask, "varchar",  empty,           "''",           "''",           no,         Complains},
    {"VarcharEmptyText",     Mask, "varchar",  "",              "''",           "''",           no,         Complains},
    {"VarcharHalf",          Mask, "varchar",  half,            no,             no,             notFull,    Passes},
    {"VarcharTooLong",       Mask, "varchar",  characters(256), stored256, stored256, no, Passes},
    {"VarcharUpperUnfilled", Mask, "VARCHAR",  empty,           "''",           "''",           no,         Complains},
    {"VarcharUpperHalf",     Mask, "VarChar",  half,            no,             no,             notFull,    Passes},
    {"DateFilled",           Mask, "datetime", full,            "'1990-03'",    "'1990-03'",    no,         Passes},
    {"DateOfADay",           Mask, "datetime", "1990年03月12日", "'1990-03-12'", "'1990-03-12'", no,        Passes},
    {"DateUnfilled",         Mask, "datetime", empty,           no,             "null",         no,         Complains},
    {"DateEmptyText",        Mask, "datetime", "",              no,             "null",         no,         Complains},
    {"DateHalf",             Mask, "datetime", half,            no,             no,             notDate,    Passes},
    {"DateIll",              Mask, "datetime", "1990年13月",    no,             no,             notDate,    Passes},
    {"DateUpperFilled",      Mask, "DATETIME", full,            "'1990-03'",    "'1990-03'",    no,         Passes},
    {"DateUpperUnfilled",    Mask, "DateTime", empty,           no,             "null",         no,         Complains},
    {"IntFilled",            Mask, "int",      full,            no,             no,             no,         Passes},
    {"IntUnfilled",          Mask, "int",      empty,           no,             no,             no,         Complains},
    {"IntEmptyText",         Mask, "int",      "",              no,             no,             no,         Complains},
    {"IntHalf",              Mask, "INT",      half,            no,             no,             no,         Passes},
    {"LongTextFilled",       Mask, "ntext",    full,            no,             no,             no,         Passes},
    {"LongTextUnfilled",     Mask, "ntext",    empty,           no,             no,             no,         Complains},
    {"LongTextHalf",         Mask, "NText",    half,            no,             no,             no,         Passes},
    {"BitFilled",            Mask, "bit",      full,            no,             no,             no,         Passes},
    {"BitUnfilled",          Mask, "bit",      empty,           no,             no,             no,         Complains},
    {"BitHalf",              Mask, "Bit",      half,            no,             no,             no,         Passes},
    {"OtherFilled",          Mask, "money",    full,            no,             no,             no,         Passes},
    {"OtherUnfilled",        Mask, "money",    empty,           no,             no,             no,         Complains},
    {"OtherHalf",            Mask, "MONEY",    half,            no,             no,             no,         Passes},
};

const Row checkBoxes[] = {
    {"VarcharOff",          Check, "varchar",  "0",             "'0'",          "'0'",          no,         Passes},
    {"VarcharOn",           Check, "varchar",  "1",             "'1'",          "'1'",          no,         Passes},
    {"IntOff",              Check, "int",      "0",             "'0'",          "'0'",          no,         Passes},
    {"IntOn",               Check, "INT",      "1",             "'1'",          "'1'",          no,         Passes},
    {"DateOff",             Check, "datetime", "0",             "'0'",          "'0'",          no,         Passes},
    {"DateOn",              Check, "datetime", "1",             "'1'",          "'1'",          no,         Passes},
    {"LongTextOff",         Check, "ntext",    "0",             "'0'",          "'0'",          no,         Passes},
    {"LongTextOn",          Check, "NTEXT",    "1",             "'1'",          "'1'",          no,         Passes},
    {"BitOff",              Check, "bit",      "0",             "'0'",          "'0'",          no,         Passes},
    {"BitOn",               Check, "Bit",      "1",             "'1'",          "'1'",          no,         Passes},
    {"OtherOff",            Check, "money",    "0",             "'0'",          "'0'",          no,         Passes},
    {"OtherOn",             Check, "money",    "1",             "'1'",          "'1'",          no,         Passes},
};

const Row otherWidgets[] = {
    {"LabelVarchar",        Label, "varchar",  "甲",            no,             no,             no,         Passes},
    {"LabelVarcharEmpty",   Label, "varchar",  "",              no,             no,             no,         Passes},
    {"LabelInt",            Label, "int",      "十",            no,             no,             no,         Passes},
    {"LabelDate",           Label, "datetime", "1990-13",       no,             no,             no,         Passes},
    {"LabelLongText",       Label, "ntext",    "a'b",           no,             no,             no,         Passes},
    {"LabelBit",            Label, "bit",      "1",             no,             no,             no,         Passes},
    {"LabelOther",          Label, "money",    "1",             no,             no,             no,         Passes},
    {"ListVarchar",          List, "varchar",  "",              no,             no,             no,         Passes},
    {"ListInt",              List, "int",      "",              no,             no,             no,         Passes},
    {"ButtonVarchar",      Button, "varchar",  "甲",            no,             no,             no,         Passes},
    {"ButtonDate",         Button, "datetime", "甲",            no,             no,             no,         Passes},
    {"ImageLongText",       Image, "ntext",    "",              no,             no,             no,         Passes},
};

/// A way to write a record, and its statement around the one column.
struct Path {
    const char* table;
    std::int32_t WhState;
    bool inserts;
    std::string front;
    std::string middle;
    std::string end;
    /// A required field counts also where its widget is hidden.
    bool requiredWhenHidden;
};

const Path paths[] = {
    {"A01", 0, true,  "insert into A01( A00,A0199", ",A0136,A0137) values('p1',1", ",'03','2026')", true},
    {"B01", 0, true,  "insert into B01( A00,B0199", ",B0124) values('p1',1",       ",'2026')",      true},
    {"A02", 0, true,  "insert into A02( A00 ",      ") values('p1'",               ")",             true},
    {"A02", 4, true,  "insert into A02( A00 ",      ") values('p1'",               ")",             true},
    {"A01", 4, false, "update A01 set ",            " = ",                         " where A00='p1'", true},
    {"B01", 4, false, "update B01 set ",            " = ",                         " where A00='p1'", true},
    {"P01", 0, false, "update P01 set ",            " = ",                         " where A00='p1'", false},
    {"P01", 4, false, "update P01 set ",            " = ",                         " where A00='p1'", false},
};
// clang-format on

class WalkTable : public test::SaveBench, public testing::WithParamInterface<Row> {
protected:
    void prepare(const Path& path) {
        const std::string table = path.table;
        db.run("drop table if exists " + table);
        column = table + "55";
        const FieldRow shape = row.widget == Check  ? field::check(column, "x")
                               : row.widget == Mask ? field::month(column, "x")
                                                    : field::text(column, "x");
        const bool designed = row.widget == Text || row.widget == Mask || row.widget == Check;
        if (designed)
            build(table, {{shape, row.type}});
        else
            build(table, {});
        if (!designed) addWidget(table + "_" + column + "_v");
        if (row.widget == Check)
            widget<ui::CheckBox>(column).setValue(std::stoi(row.content));
        else if (designed)
            write(column, row.content);
        if (!path.inserts) db.run("insert into " + table + " (A00) values ('p1')");
        WhState = path.WhState;
    }

    void addWidget(const std::string& name) {
        if (row.widget == Label) panel().add<ui::Label>(name, row.content);
        if (row.widget == List) panel().add<ui::ListBox>(name);
        if (row.widget == Button) panel().add<ui::CommandButton>(name, row.content);
        if (row.widget == Image) panel().add<ui::Image>(name);
        addItem(*panel().FieldItems, column, row.type);
    }

    [[nodiscard]] std::string statement(const Path& path) const {
        if (!path.inserts)
            return row.assigned.empty() ? std::string()
                                        : path.front + column + path.middle + row.assigned + path.end;
        if (row.inserted.empty()) return path.front + path.middle + path.end;
        return path.front + "," + column + path.middle + "," + row.inserted + path.end;
    }

    /// The statements that write the panel's table, the removal and the numbers left out.
    std::vector<std::string> written(const Path& path) {
        std::vector<std::string> statements;
        for (const std::string& sql : db.statements()) {
            const std::string table = path.table;
            if (sql.starts_with("insert into " + table) || sql.starts_with("update " + table))
                statements.push_back(sql);
        }
        return statements;
    }

    void check(const Path& path, const std::string& complaint) {
        if (!complaint.empty()) person.expectBox(complaint, "错误信息");
        EXPECT_EQ(save(), complaint.empty());
        std::vector<std::string> expected;
        if (complaint.empty() && !statement(path).empty()) expected.push_back(statement(path));
        EXPECT_EQ(written(path), expected);
    }

    const Row& row = GetParam();
    std::string column;
};

TEST_P(WalkTable, IsWrittenAndCheckedAlikeOnEveryPath) {
    for (const Path& path : paths) {
        SCOPED_TRACE(std::string(path.table) + " in state " + std::to_string(path.WhState));
        prepare(path);
        check(path, *row.complaint == '\0' ? "" : "栏" + column + row.complaint);
    }
}

TEST_P(WalkTable, IsHeldAgainstARequiredFieldThatIsVisibleAndOfAProjectOnlyThen) {
    for (const Path& path : paths) {
        for (const bool visible : {true, false}) {
            SCOPED_TRACE(std::string(path.table) + " in state " + std::to_string(path.WhState) +
                         (visible ? "" : " hidden"));
            prepare(path);
            item(column).IsNUll = false;
            panel().find(std::string(path.table) + "_" + column + "_v")->setVisible(visible);
            const bool held = row.required == Complains && (visible || path.requiredWhenHidden);
            std::string complaint = *row.complaint == '\0' ? "" : "栏" + column + row.complaint;
            if (held) complaint += "栏" + column + " 为必填项";
            check(path, complaint);
        }
    }
}

std::string nameOfRow(const testing::TestParamInfo<Row>& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(TextBox, WalkTable, testing::ValuesIn(textBoxes), nameOfRow);
INSTANTIATE_TEST_SUITE_P(MaskedBox, WalkTable, testing::ValuesIn(maskedBoxes), nameOfRow);
INSTANTIATE_TEST_SUITE_P(CheckBox, WalkTable, testing::ValuesIn(checkBoxes), nameOfRow);
INSTANTIATE_TEST_SUITE_P(Other, WalkTable, testing::ValuesIn(otherWidgets), nameOfRow);

} // namespace
} // namespace quillmere

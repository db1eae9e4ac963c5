#include "save/SaveBench.h"

#include <ostream>

namespace quillmere {
namespace {

enum class Box { Text, Month };

/// A field that fails, and what is said behind its caption as the first and as a later complaint.
struct Message {
    const char* name;
    Box box;
    const char* type;
    std::string content;
    bool required;
    const char* first;
    const char* appended;
};

void PrintTo(const Message& message, std::ostream* out) { *out << message.name; }

std::string characters(std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += "字";
    return text;
}

using enum Box;

constexpr auto quote = "输入存在非法字符 ” ' “，请您将其改为 “ ‘ ”，或者去掉。 ";

// Where the two forms differ, by a blank or by the range they name, they are meant to.
const Message messages[] = {
    {"TooLong", Text, "varchar", characters(256), false, " 数据应该小于256个字符长度",
     " 数据应该小于256个字符长度"},
    {"NotNumeric", Text, "int", "十", false, " 数据应该输入数字", " 数据应该输入数字"},
    {"OutOfRange", Text, "int", "1000001", false, " 数据应该在 0到1000000范围内",
     " 数据应该在 -32768到32767范围内"},
    {"Negative", Text, "int", "-1", false, " 数据应该在 0到1000000范围内", " 数据应该在 -32768到32767范围内"},
    {"NoDate", Text, "datetime", "1990-13", false, " 数据应该是日期型，例如1990年03月",
     "  数据应该是日期型，例如1990年03月"},
    {"NoDateInAMask", Month, "datetime", "1990年1_月", false, " 数据应该是日期型，例如1990年03月",
     "  数据应该是日期型，例如1990年03月"},
    {"MaskNotFull", Month, "varchar", "1990年1_月", false, " 数据数据填写不完整", " 数据数据填写不完整"},
    {"Required", Text, "varchar", "", true, " 为必填项", "  为必填项"},
    {"RequiredInAMask", Month, "varchar", "____年__月", true, " 为必填项", "  为必填项"},
    {"Quote", Text, "ntext", "a'b", false, quote, quote},
};

class MessageTest : public test::SaveBench, public testing::WithParamInterface<Message> {
protected:
    FieldRow failing() const {
        return message.box == Text ? field::text("A0150", "x") : field::month("A0150", "x");
    }
    void fail() {
        write("A0150", message.content);
        item("A0150").IsNUll = !message.required;
    }

    const Message& message = GetParam();
};

TEST_P(MessageTest, ReadsSoAsTheFirstComplaint) {
    for (const int state : {0, 4}) {
        db.run("drop table if exists A01");
        WhState = state;
        build("A01", {{failing(), message.type}});
        fail();
        expectRefusal("栏A0150" + std::string(message.first));
        EXPECT_EQ(person.boxes().back().buttons, ui::Buttons::Ok);
    }
}

TEST_P(MessageTest, ReadsSoBehindOthersAndBeforeOthers) {
    for (const int state : {0, 4}) {
        db.run("drop table if exists A01");
        WhState = state;
        build("A01", {{field::text("A0140", "x"), "int"},
                      {failing(), message.type},
                      {field::text("A0160", "x"), "int"}});
        write("A0140", "x");
        write("A0160", "y");
        fail();
        expectRefusal("栏A0140 数据应该输入数字\r\n栏A0150" + std::string(message.appended) +
                      "\r\n栏A0160 数据应该输入数字");
    }
}

INSTANTIATE_TEST_SUITE_P(Complaint, MessageTest, testing::ValuesIn(messages),
                         [](const auto& row) { return std::string(row.param.name); });

/// A person's unit against that of the host, where the person is written.
struct UnitCase {
    const char* name;
    const char* hostsUnit;
    const char* Dmcod;
    const char* type;
    std::int32_t WhState;
    bool refused;
};

void PrintTo(const UnitCase& unit, std::ostream* out) { *out << unit.name; }

// clang-format off
const UnitCase units[] = {
    //name                          host    code  type       state refused
    {"InsertOfTheHostsUnit",        "U7",   "U7", "varchar", 0,    false},
    {"InsertOfAnotherUnit",         "U7",   "U8", "varchar", 0,    true},
    {"InsertOfAUnitBelowIt",        "U7",   "U71", "varchar", 0,   true},
    {"InsertWithoutAUnit",          "U7",   "",   "varchar", 0,    true},
    {"InsertWithNoUnitOfTheHost",   "",     "U8", "varchar", 0,    false},
    {"InsertOfAnotherInCapitals",   "U7",   "U8", "VARCHAR", 0,    true},
    {"InsertOfAnotherAsLongText",   "U7",   "U8", "ntext",   0,    false},
    {"UpdateOfTheHostsUnit",        "U7",   "U7", "varchar", 4,    false},
    {"UpdateToAnotherUnit",         "U7",   "U8", "varchar", 4,    true},
    {"UpdateWithNoUnitOfTheHost",   "",     "U8", "varchar", 4,    false},
};
// clang-format on

constexpr auto wrongUnit = "局级单位信息填写错误！请参照系统初始录入的局级单位信息。";

class UnitTest : public test::SaveBench, public testing::WithParamInterface<UnitCase> {
protected:
    UnitTest() {
        build("A01", {{field::text("A0120", "x"), "int"}, {field::text("A0130", "x"), unit.type}});
        item("A0130").CodeTable = "DW";
        item("A0130").Dmcod = unit.Dmcod;
        write("A0130", "财务局");
        UnitCode = unit.hostsUnit;
        WhState = unit.WhState;
        if (WhState != 0) db.run("insert into A01 (A00,A0101) values ('p1','张三')");
    }

    const UnitCase& unit = GetParam();
};

TEST_P(UnitTest, IsRefusedWhereItIsAnother) {
    if (unit.refused) {
        expectRefusal(wrongUnit);
    } else {
        EXPECT_TRUE(save());
        EXPECT_TRUE(person.boxes().empty());
    }
}

TEST_P(UnitTest, ComplainsAlikeBehindAnotherComplaint) {
    write("A0120", "x");
    expectRefusal("栏A0120 数据应该输入数字" + (unit.refused ? "\r\n" + std::string(wrongUnit) : ""));
}

INSTANTIATE_TEST_SUITE_P(A0130, UnitTest, testing::ValuesIn(units),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace quillmere

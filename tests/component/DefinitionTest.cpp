#include "TypeLibrary.h"

#include "component/idl/InterfaceDefinition.h"
#include "component/idl/Interfaces.h"
#include "component/objects/UserCtrlObject.h"
#include "component/server/ServerClasses.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <fstream>
#include <iterator>

// One table of members: what the interface, its definition and the type library say is what the table says.

namespace quillmere::component::test {
namespace {

struct Spelled {
    std::string name;
    Access access;
};

TEST(Definition, TheTableHasTheMembersInTheOrderOfTheInterface) {
    const Spelled expected[] = {
        {"Connection", Access::PutRef}, {"Connection", Access::Get},    {"ShowPersonWh", Access::Method},
        {"OperationType", Access::Put}, {"OperationType", Access::Get}, {"ZZtype", Access::Put},
        {"ZZtype", Access::Get},        {"PersonType", Access::Put},    {"PersonType", Access::Get},
        {"PhotoPath", Access::Put},     {"PhotoPath", Access::Get},     {"personID", Access::Put},
        {"personID", Access::Get},      {"UnitCode", Access::Put},      {"UnitCode", Access::Get},
        {"SkinPath", Access::Put},      {"SkinPath", Access::Get},
    };
    const auto members = membersOf<UserCtrlObject>();
    ASSERT_EQ(members.size(), std::size(expected));
    for (std::size_t at = 0; at < members.size(); ++at) {
        EXPECT_EQ(members[at].name, expected[at].name) << at;
        EXPECT_EQ(members[at].access, expected[at].access) << at;
    }
}

/// Which function of an interface's table a pointer to a member calls: the ABI counts in bytes, from 1.
template <class Function>
std::size_t slotOf(Function function) {
    std::uintptr_t bits = 0;
    static_assert(sizeof function == 2 * sizeof bits);
    std::memcpy(&bits, &function, sizeof bits);
    return (bits - 1) / sizeof(void*);
}

TEST(Definition, TheInterfaceHasItsFunctionsInTheOrderOfTheTable) {
    using I = UserCtrlInterface;
    const std::size_t slots[] = {
        slotOf(&I::putref_Connection), slotOf(&I::get_Connection),    slotOf(&I::ShowPersonWh),
        slotOf(&I::put_OperationType), slotOf(&I::get_OperationType), slotOf(&I::put_ZZtype),
        slotOf(&I::get_ZZtype),        slotOf(&I::put_PersonType),    slotOf(&I::get_PersonType),
        slotOf(&I::put_PhotoPath),     slotOf(&I::get_PhotoPath),     slotOf(&I::put_personID),
        slotOf(&I::get_personID),      slotOf(&I::put_UnitCode),      slotOf(&I::get_UnitCode),
        slotOf(&I::put_SkinPath),      slotOf(&I::get_SkinPath),
    };
    constexpr std::size_t ofIDispatch = 7;
    EXPECT_EQ(slotOf(&IDispatch::Invoke), ofIDispatch - 1);
    for (std::size_t at = 0; at < std::size(slots); ++at)
        EXPECT_EQ(slots[at], ofIDispatch + at);
    EXPECT_EQ(std::size(slots), membersOf<UserCtrlObject>().size());
}

TEST(Definition, TheFileInTheSourcesIsWhatTheTablesSay) {
    std::ifstream file(QUILLMERE_SOURCE_DIR "/src/component/Quillmere.idl", std::ios::binary);
    const std::string content(std::istreambuf_iterator<char>(file), {});
    EXPECT_EQ(content, interfaceDefinition()) << "Write it anew: quillmere-idl > src/component/Quillmere.idl";
}

TEST(TypeLibrary, HasTheIdNameAndVersionOfTheLibrary) {
#ifdef TYPE_LIBRARY
    const Library library = readTypeLibrary(TYPE_LIBRARY);
    EXPECT_TRUE(IsEqualGUID(library.id, libraryId));
    EXPECT_EQ(library.name, "Quillmere");
    EXPECT_EQ(library.major, 1);
    EXPECT_EQ(library.minor, 0);
#else
    GTEST_SKIP() << "widl is not installed, or not whole";
#endif
}

TEST(TypeLibrary, HasTheMembersOfTheTables) {
#ifdef TYPE_LIBRARY
    const Library library = readTypeLibrary(TYPE_LIBRARY);
    for (const InterfaceRow& row : interfaceRows()) {
        const LibraryType* type = library.find(std::string(row.name));
        ASSERT_NE(type, nullptr) << row.name;
        EXPECT_TRUE(IsEqualGUID(type->id, row.id)) << row.name;
        ASSERT_EQ(type->functions.size(), row.members.size()) << row.name;
        for (std::size_t at = 0; at < row.members.size(); ++at) {
            EXPECT_EQ(type->functions[at].name, row.members[at].name) << row.name << at;
            EXPECT_EQ(type->functions[at].id, row.members[at].id) << row.name << at;
            EXPECT_EQ(type->functions[at].kind, static_cast<int>(row.members[at].access)) << row.name << at;
        }
    }
#else
    GTEST_SKIP() << "widl is not installed, or not whole";
#endif
}

TEST(TypeLibrary, HasTheClassesOfTheServer) {
#ifdef TYPE_LIBRARY
    const Library library = readTypeLibrary(TYPE_LIBRARY);
    for (const ServerClass& row : serverClasses()) {
        const LibraryType* type = library.find(std::string(row.name));
        ASSERT_NE(type, nullptr) << row.name;
        EXPECT_TRUE(IsEqualGUID(type->id, classIdOf(row))) << row.name;
    }
    EXPECT_EQ(library.types.size(), serverClasses().size() + interfaceRows().size());
#else
    GTEST_SKIP() << "widl is not installed, or not whole";
#endif
}

} // namespace
} // namespace quillmere::component::test

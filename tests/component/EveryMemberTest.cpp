#include "Calling.h"

#include "component/automation/ErrorText.h"
#include "component/connection/ConnectionObject.h"
#include "platform/Error.h"

#include <gtest/gtest.h>

#include <limits>

// The entry object, each member in every way in which a host can use it.

namespace quillmere::component::test {
namespace {

using Put16 = HRESULT (UserCtrlInterface::*)(short);
using Get16 = HRESULT (UserCtrlInterface::*)(short*);
using PutText = HRESULT (UserCtrlInterface::*)(BSTR);
using GetText = HRESULT (UserCtrlInterface::*)(BSTR*);

struct Property16 {
    const char* name;
    Put16 put;
    Get16 get;
};
struct PropertyText {
    const char* name;
    PutText put;
    GetText get;
};

constexpr Property16 numbers[] = {
    {"OperationType", &UserCtrlInterface::put_OperationType, &UserCtrlInterface::get_OperationType},
    {"ZZtype", &UserCtrlInterface::put_ZZtype, &UserCtrlInterface::get_ZZtype},
    {"PersonType", &UserCtrlInterface::put_PersonType, &UserCtrlInterface::get_PersonType},
};
constexpr PropertyText texts[] = {
    {"PhotoPath", &UserCtrlInterface::put_PhotoPath, &UserCtrlInterface::get_PhotoPath},
    {"personID", &UserCtrlInterface::put_personID, &UserCtrlInterface::get_personID},
    {"UnitCode", &UserCtrlInterface::put_UnitCode, &UserCtrlInterface::get_UnitCode},
    {"SkinPath", &UserCtrlInterface::put_SkinPath, &UserCtrlInterface::get_SkinPath},
};
constexpr std::int16_t someNumbers[] = {
    0, 1, -1, 4, std::numeric_limits<std::int16_t>::max(), std::numeric_limits<std::int16_t>::min()};
constexpr const char* someTexts[] = {"", "甲乙", "it's", " 01 ", "𠀀", "C:\\photos"};

class EveryMember : public testing::Test {
protected:
    [[nodiscard]] std::int16_t number(const Property16& row) {
        std::int16_t value = 99;
        EXPECT_EQ((entry.get()->*row.get)(&value), S_OK) << row.name;
        return value;
    }
    [[nodiscard]] std::string text(const PropertyText& row) {
        BSTR value = nullptr;
        EXPECT_EQ((entry.get()->*row.get)(&value), S_OK) << row.name;
        EXPECT_NE(value, nullptr) << row.name;
        return takeText(value);
    }

    ComPtr<UserCtrlObject> entry = makeObject<UserCtrlObject>();
    IDispatch& byName = *entry.get();
};

TEST_F(EveryMember, StartsWithZerosAndEmptyTexts) {
    for (const auto& row : numbers)
        EXPECT_EQ(number(row), 0) << row.name;
    for (const auto& row : texts)
        EXPECT_EQ(text(row), "") << row.name;
}

TEST_F(EveryMember, WrittenByNameIsReadByInterface) {
    for (const auto& row : numbers) {
        for (const std::int16_t value : someNumbers) {
            EXPECT_EQ(putValue(byName, row.name, Variant::of(value)).code, S_OK) << row.name;
            EXPECT_EQ(number(row), value) << row.name;
        }
    }
    for (const auto& row : texts) {
        for (const char* value : someTexts) {
            EXPECT_EQ(putValue(byName, row.name, Variant::of(value)).code, S_OK) << row.name;
            EXPECT_EQ(text(row), value) << row.name;
        }
    }
}

TEST_F(EveryMember, WrittenByInterfaceIsReadByNameInItsOwnType) {
    for (const auto& row : numbers) {
        for (const std::int16_t value : someNumbers) {
            EXPECT_EQ((entry.get()->*row.put)(value), S_OK);
            const Answer answer = get(byName, row.name);
            EXPECT_EQ(answer.code, S_OK);
            EXPECT_EQ(answer.value.type(), VT_I2) << row.name;
            EXPECT_EQ(answer.value.get().iVal, value) << row.name;
        }
    }
    for (const auto& row : texts) {
        for (const char* value : someTexts) {
            const Variant given = Variant::of(value);
            EXPECT_EQ((entry.get()->*row.put)(given.get().bstrVal), S_OK);
            const Answer answer = get(byName, row.name);
            EXPECT_EQ(answer.value.type(), VT_BSTR) << row.name;
            EXPECT_EQ(toText(answer.value.get()), value) << row.name;
        }
    }
}

TEST_F(EveryMember, ANullTextByInterfaceIsTheEmptyOne) {
    for (const auto& row : texts) {
        EXPECT_EQ(putValue(byName, row.name, Variant::of("x")).code, S_OK);
        EXPECT_EQ((entry.get()->*row.put)(nullptr), S_OK);
        EXPECT_EQ(text(row), "") << row.name;
    }
}

TEST_F(EveryMember, AReaderWithoutAPlaceToPutItFails) {
    for (const auto& row : numbers)
        EXPECT_EQ((entry.get()->*row.get)(nullptr), E_POINTER) << row.name;
    for (const auto& row : texts)
        EXPECT_EQ((entry.get()->*row.get)(nullptr), E_POINTER) << row.name;
    EXPECT_EQ(entry->get_Connection(nullptr), E_POINTER);
    EXPECT_EQ(entry->ShowPersonWh(nullptr), E_POINTER);
}

TEST_F(EveryMember, ARefusedValueLeavesTheOldOne) {
    for (const auto& row : numbers) {
        EXPECT_EQ(putValue(byName, row.name, Variant::of(std::int16_t{3})).code, S_OK);
        const Answer wide = putValue(byName, row.name, Variant::of(std::int32_t{32768}));
        EXPECT_EQ(wide.code, DISP_E_OVERFLOW) << row.name;
        EXPECT_EQ(wide.badArgument, 0U);
        const Answer word = putValue(byName, row.name, Variant::of("three"));
        EXPECT_EQ(word.code, DISP_E_TYPEMISMATCH) << row.name;
        EXPECT_EQ(word.badArgument, 0U);
        EXPECT_EQ(putValue(byName, row.name, Variant::null()).code, DISP_E_TYPEMISMATCH) << row.name;
        EXPECT_EQ(number(row), 3) << row.name;
    }
    for (const auto& row : texts) {
        EXPECT_EQ(putValue(byName, row.name, Variant::of("kept")).code, S_OK);
        EXPECT_EQ(putValue(byName, row.name, Variant::null()).code, DISP_E_TYPEMISMATCH) << row.name;
        const Variant nothing = Variant::of(static_cast<IDispatch*>(nullptr));
        EXPECT_EQ(putValue(byName, row.name, nothing).code, DISP_E_TYPEMISMATCH) << row.name;
        EXPECT_EQ(text(row), "kept") << row.name;
    }
}

TEST_F(EveryMember, OnlyTheConnectionIsPutByReference) {
    const Variant object = Variant::of(&byName);
    for (const auto& row : numbers) {
        EXPECT_EQ(putValue(byName, row.name, object, DISPATCH_PROPERTYPUTREF).code, DISP_E_MEMBERNOTFOUND);
    }
    for (const auto& row : texts) {
        EXPECT_EQ(putValue(byName, row.name, object, DISPATCH_PROPERTYPUTREF).code, DISP_E_MEMBERNOTFOUND);
    }
    const Variant connection = Variant::of(makeObject<ConnectionObject>());
    EXPECT_EQ(putValue(byName, "Connection", connection).code, DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(putValue(byName, "Connection", connection, DISPATCH_PROPERTYPUTREF).code, S_OK);
    // Some callers cannot tell, and ask for both.
    EXPECT_EQ(putValue(byName, "Connection", connection, DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF).code,
              S_OK);
}

TEST_F(EveryMember, PersonIDIsTheDefaultMember) {
    const Variant value = Variant::of("甲");
    EXPECT_EQ(idOf(byName, "personID"), DISPID_VALUE);
    EXPECT_EQ(invokeId(byName, DISPID_VALUE, DISPATCH_PROPERTYPUT, {&value.get()}).code, S_OK);
    EXPECT_EQ(toText(get(byName, "personID").value.get()), "甲");
    // So that the object itself stands for it where a text is wanted.
    const Variant itself = Variant::of(&byName);
    auto other = makeObject<UserCtrlObject>();
    EXPECT_EQ(putValue(*other.get(), "UnitCode", itself).code, S_OK);
    EXPECT_EQ(toText(get(*other.get(), "UnitCode").value.get()), "甲");
}

TEST_F(EveryMember, ConnectionReadBeforeAnyWritingIsANewUnopenedOneThatIsKept) {
    const Answer first = get(byName, "Connection");
    ASSERT_EQ(first.value.type(), VT_DISPATCH);
    ASSERT_NE(first.value.get().pdispVal, nullptr);
    EXPECT_EQ(toInteger32(get(*first.value.get().pdispVal, "State").value.get()), 0);
    ComPtr<IDispatch> again;
    EXPECT_EQ(entry->get_Connection(again.put()), S_OK);
    EXPECT_EQ(again.get(), first.value.get().pdispVal);
}

TEST_F(EveryMember, ConnectionReadAfterAWritingIsTheObjectThatWasWritten) {
    const auto mine = makeObject<ConnectionObject>();
    EXPECT_EQ(entry->putref_Connection(mine.get()), S_OK);
    EXPECT_EQ(get(byName, "Connection").value.get().pdispVal, mine.get());
    EXPECT_EQ(entry->putref_Connection(nullptr), S_OK);
    EXPECT_NE(get(byName, "Connection").value.get().pdispVal, mine.get());
}

TEST_F(EveryMember, AConnectionThatIsNoneIsRefusedWithItsDescription) {
    const auto mine = makeObject<ConnectionObject>();
    EXPECT_EQ(entry->putref_Connection(mine.get()), S_OK);
    const Answer answer = putValue(byName, "Connection", Variant::of(&byName), DISPATCH_PROPERTYPUTREF);
    EXPECT_EQ(answer.code, DISP_E_EXCEPTION);
    EXPECT_EQ(answer.scode, static_cast<SCODE>(0x800A000D));
    EXPECT_EQ(answer.source, "Quillmere");
    EXPECT_EQ(answer.description, "给出的对象不是数据库连接：没有 Execute 操作。");
    EXPECT_EQ(get(byName, "Connection").value.get().pdispVal, mine.get());
    EXPECT_EQ(putValue(byName, "Connection", Variant::of("register.db"), DISPATCH_PROPERTYPUTREF).code,
              DISP_E_TYPEMISMATCH);
}

TEST_F(EveryMember, AFailureByInterfaceLeavesItsDescriptionWithTheThread) {
    EXPECT_EQ(entry->putref_Connection(&byName), static_cast<HRESULT>(0x800A000D));
    const ErrorText left = takeErrorText();
    EXPECT_EQ(left.source, "Quillmere");
    EXPECT_EQ(left.description, "给出的对象不是数据库连接：没有 Execute 操作。");
    EXPECT_EQ(takeErrorText().description, "") << "taken once";
    ComPtr<ISupportErrorInfo> support = entry.query<ISupportErrorInfo>(IID_ISupportErrorInfo);
    ASSERT_TRUE(support);
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(userCtrlInterfaceId), S_OK);
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_IClassFactory), S_FALSE);
}

TEST_F(EveryMember, ShowPersonWhWithoutAToolkitFailsWithAClearDescription) {
    const Answer answer = invokeName(byName, "ShowPersonWh", DISPATCH_METHOD);
    EXPECT_EQ(answer.code, DISP_E_EXCEPTION);
    EXPECT_EQ(answer.scode, static_cast<SCODE>(0x800A01AD));
    EXPECT_EQ(answer.description, "组件旁边没有界面工具包（quillmere-toolkit），不能显示窗口。");
    VARIANT_BOOL saved = VARIANT_TRUE;
    EXPECT_EQ(entry->ShowPersonWh(&saved), static_cast<HRESULT>(0x800A01AD));
    EXPECT_EQ(saved, VARIANT_FALSE);
    EXPECT_EQ(takeErrorText().description, answer.description);
}

TEST_F(EveryMember, TheObjectIsOneUnderAllItsInterfaces) {
    const auto unknown = entry.query<IUnknown>(IID_IUnknown);
    EXPECT_EQ(entry.query<IDispatch>(IID_IDispatch).query<IUnknown>(IID_IUnknown).get(), unknown.get());
    EXPECT_EQ(entry.query<ISupportErrorInfo>(IID_ISupportErrorInfo).query<IUnknown>(IID_IUnknown).get(),
              unknown.get());
    EXPECT_TRUE(entry.query<UserCtrlInterface>(userCtrlInterfaceId));
    EXPECT_FALSE(entry.query<IClassFactory>(IID_IClassFactory));
    EXPECT_EQ(entry->QueryInterface(IID_IDispatch, nullptr), E_POINTER);
}

} // namespace
} // namespace quillmere::component::test

#include "Calling.h"

#include <gtest/gtest.h>

#include <array>

// The rules of late-bound calls, on the entry object.

namespace quillmere::component::test {
namespace {

class LateBound : public testing::Test {
protected:
    ComPtr<UserCtrlObject> entry = makeObject<UserCtrlObject>();
    IDispatch& object = *entry.get();
};

TEST_F(LateBound, NamesAreWithoutRegardToCase) {
    for (const char* name : {"OperationType", "operationtype", "OPERATIONTYPE"})
        EXPECT_EQ(idOf(object, name), 3) << name;
}

TEST_F(LateBound, AnUnknownNameHasNoNumber) {
    WideText name = toUtf16("Identity");
    LPOLESTR names = name.data();
    DISPID id = 7;
    EXPECT_EQ(object.GetIDsOfNames(IID_NULL, &names, 1, 0, &id), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(id, DISPID_UNKNOWN);
    EXPECT_EQ(object.GetIDsOfNames(IID_NULL, nullptr, 1, 0, &id), E_POINTER);
    EXPECT_EQ(object.GetIDsOfNames(IID_NULL, &names, 0, 0, &id), E_INVALIDARG);
}

TEST_F(LateBound, AParameterHasANumberWithinItsMember) {
    WideText member = toUtf16("personID");
    WideText known = toUtf16("VALUE");
    WideText unknown = toUtf16("worth");
    std::array<LPOLESTR, 3> names{member.data(), known.data(), unknown.data()};
    std::array<DISPID, 3> ids{};
    EXPECT_EQ(object.GetIDsOfNames(IID_NULL, names.data(), 2, 0, ids.data()), S_OK);
    EXPECT_EQ(ids[1], 0);
    EXPECT_EQ(object.GetIDsOfNames(IID_NULL, names.data(), 3, 0, ids.data()), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(ids[0], DISPID_VALUE);
    EXPECT_EQ(ids[1], 0);
    EXPECT_EQ(ids[2], DISPID_UNKNOWN);
}

TEST_F(LateBound, AMemberThatIsNotThereIsNotFound) {
    EXPECT_EQ(invokeId(object, 4711, DISPATCH_METHOD | DISPATCH_PROPERTYGET).code, DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(invokeName(object, "ShowPersonWh", DISPATCH_PROPERTYGET).code, DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(invokeName(object, "ZZtype", DISPATCH_METHOD).code, DISP_E_MEMBERNOTFOUND);
}

TEST_F(LateBound, APropertyIsReadByCallersWhoAskForAMethodToo) {
    EXPECT_EQ(invokeName(object, "ZZtype", DISPATCH_METHOD | DISPATCH_PROPERTYGET).code, S_OK);
}

TEST_F(LateBound, TooManyOrTooFewArgumentsAreCounted) {
    const Variant one = Variant::of(std::int16_t{1});
    EXPECT_EQ(invokeName(object, "ZZtype", DISPATCH_PROPERTYGET, {&one.get()}).code, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(invokeName(object, "ShowPersonWh", DISPATCH_METHOD, {&one.get()}).code, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(invokeName(object, "ZZtype", DISPATCH_PROPERTYPUT).code, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(invokeName(object, "ZZtype", DISPATCH_PROPERTYPUT, {&one.get(), &one.get()}).code,
              DISP_E_BADPARAMCOUNT);
}

TEST_F(LateBound, AnArgumentThatWasLeftOutIsNotOptionalHere) {
    VARIANT missing{};
    missing.vt = VT_ERROR;
    missing.scode = DISP_E_PARAMNOTFOUND;
    EXPECT_EQ(invokeName(object, "ZZtype", DISPATCH_PROPERTYPUT, {&missing}).code, DISP_E_PARAMNOTOPTIONAL);
}

TEST_F(LateBound, AWrongNameOfAnArgumentIsRefused) {
    Variant value = Variant::of(std::int16_t{1});
    VARIANT argument = value.get();
    DISPID wrong = 3;
    DISPPARAMS parameters{&argument, &wrong, 1, 1};
    EXPECT_EQ(object.Invoke(4, IID_NULL, 0, DISPATCH_PROPERTYPUT, &parameters, nullptr, nullptr, nullptr),
              DISP_E_NONAMEDARGS);
    parameters.cNamedArgs = 0;
    EXPECT_EQ(object.Invoke(4, IID_NULL, 0, DISPATCH_PROPERTYPUT, &parameters, nullptr, nullptr, nullptr),
              S_OK);
}

TEST_F(LateBound, ACallerMayWantNoResultAndNoDescription) {
    DISPPARAMS none{};
    EXPECT_EQ(object.Invoke(1, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr), S_OK);
    EXPECT_EQ(object.Invoke(2, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
              DISP_E_EXCEPTION);
    EXPECT_EQ(object.Invoke(1, IID_NULL, 0, DISPATCH_PROPERTYGET, nullptr, nullptr, nullptr, nullptr),
              E_POINTER);
}

TEST_F(LateBound, ThereIsNoTypeInformationAtRunTime) {
    UINT count = 9;
    EXPECT_EQ(object.GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 0U);
    ITypeInfo* info = nullptr;
    EXPECT_EQ(object.GetTypeInfo(0, 0, &info), E_NOTIMPL);
}

} // namespace
} // namespace quillmere::component::test

#include "Calling.h"

#include "component/controls/ButtonListObject.h"
#include "component/controls/PanelObject.h"
#include "component/server/ClassFactory.h"
#include "component/server/ServerClasses.h"
#include "metadata/FieldLoaders.h"
#include "metadata/Globals.h"
#include "panels/PanelCatalogue.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

// The classes beside the entry object: the panels, and the toolbar that no window places.

namespace quillmere::component::test {
namespace {

TEST(Classes, AreTheEntryObjectTheToolbarAndThePanelsOfTheCatalogue) {
    std::vector<std::string> expected{"IUserCtrl", "ctrlButtonList"};
    for (const PanelRow& row : panelCatalogue())
        expected.emplace_back(row.className);
    std::vector<std::string> names;
    std::set<std::uint32_t> numbers;
    for (const ServerClass& row : serverClasses()) {
        names.emplace_back(row.name);
        numbers.insert(row.number);
        EXPECT_LT(row.number, 0x100U) << "the room in the class ids";
        EXPECT_EQ(findClass(classIdOf(row)), &row);
    }
    EXPECT_EQ(names, expected);
    EXPECT_EQ(names.size(), 75U);
    EXPECT_EQ(numbers.size(), names.size());
    EXPECT_EQ(findClass(GUID{}), nullptr);
}

TEST(Classes, EachIsCreatedByItsFactory) {
    for (const ServerClass& row : serverClasses()) {
        const auto factory = makeObject<ClassFactory>(row);
        ComPtr<IDispatch> object;
        ASSERT_EQ(factory->CreateInstance(nullptr, IID_IDispatch, object.putVoid()), S_OK) << row.name;
        if (row.name == "IUserCtrl") continue;
        EXPECT_EQ(toText(call(*object.get(), "Name").get()), row.name);
    }
}

TEST(Classes, AFactoryRefusesToMakePartOfAnotherObject) {
    const auto factory = makeObject<ClassFactory>(serverClasses()[0]);
    const auto outer = makeObject<ButtonListObject>();
    void* object = outer.get();
    EXPECT_EQ(factory->CreateInstance(static_cast<IDispatch*>(outer.get()), IID_IUnknown, &object),
              CLASS_E_NOAGGREGATION);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IClassFactory, &object), E_NOINTERFACE);
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
    EXPECT_EQ(factory->QueryInterface(IID_IDispatch, &object), E_NOINTERFACE);
}

class PanelByName : public testing::Test {
protected:
    quillmere::test::TestDatabase database;
    ComPtr<PanelObject> panel = makeObject<PanelObject>("a1ctrlusera02");
    IDispatch& object = *panel.get();
};

TEST_F(PanelByName, IsFoundWithoutRegardToCase) {
    EXPECT_EQ(toText(call(object, "Name").get()), "A1ctrlUserA02");
    EXPECT_EQ(toText(call(*makeObject<PanelObject>("A1ctrlUserM08").get(), "Name").get()), "A1ctrluserM08");
}

TEST_F(PanelByName, KeepsItsDesignProperties) {
    for (const char* name : {"BackColor", "ForeColor", "BackStyle", "BorderStyle"}) {
        EXPECT_EQ(toInteger32(call(object, name).get()), 0) << name;
        put(object, name, Variant::of(std::int16_t{1}));
        EXPECT_EQ(toInteger32(call(object, name).get()), 1) << name;
    }
    put(object, "BackColor", Variant::of(static_cast<std::int32_t>(0x80000005)));
    EXPECT_EQ(toInteger32(call(object, "BackColor").get()), static_cast<std::int32_t>(0x80000005));
    EXPECT_FALSE(toBoolean(call(object, "Enabled").get()));
    put(object, "Enabled", Variant::of(true));
    EXPECT_TRUE(toBoolean(call(object, "Enabled").get()));
    put(object, "Font", Variant::of("宋体"));
    EXPECT_EQ(toText(call(object, "Font").get()), "宋体");
}

TEST_F(PanelByName, WhInfoIsThePanelsOwn) {
    const auto info = objectOf(call(object, "WhInfo"));
    put(*info.get(), "TabId", Variant::of("A02"));
    put(*info.get(), "personID", Variant::of("甲"));
    put(*info.get(), "id", Variant::of(std::int16_t{3}));
    put(*info.get(), "IsMult", Variant::of(true));
    put(*info.get(), "IsChange", Variant::of(true));
    put(*info.get(), "FldOrder", Variant::of("A0299"));
    const cWhInfo& own = panel->panel().WhInfo;
    EXPECT_EQ(own.TabId, "A02");
    EXPECT_EQ(own.personID, "甲");
    EXPECT_EQ(own.id, 3);
    EXPECT_TRUE(own.IsMult);
    EXPECT_TRUE(own.IsChange);
    EXPECT_EQ(own.FldOrder, "A0299");
    EXPECT_EQ(toText(call(*objectOf(call(object, "WhInfo")).get(), "TabId").get()), "A02");
    EXPECT_EQ(putValue(*info.get(), "id", Variant::of(std::int32_t{40000})).code, DISP_E_OVERFLOW);
}

TEST_F(PanelByName, TakesAndGivesFieldSets) {
    database.createCatalogue();
    for (const FieldRow& field : panel->panel().row().fields) {
        quillmere::test::FieldRow row;
        row.tblName = "A02";
        row.itemName = std::string(field.code);
        row.itemDesc = field.code == "A0203" ? "就读院校" : "";
        database.addField(row);
    }
    panel->panel().FieldItems = LoadFieldItems("A02");

    const auto items = objectOf(call(object, "FieldItems"));
    EXPECT_EQ(toInteger32(call(*items.get(), "Count").get()), 5);
    const auto item = objectOf(call(*items.get(), "Item", list(Variant::of("a02_a0203"))));
    EXPECT_EQ(toText(call(*item.get(), "ItemDesc").get()), "就读院校");
    EXPECT_EQ(toBoolean(call(*item.get(), "IsNUll").get()), true);
    const Variant unknown = Variant::of("A02_A0299");
    EXPECT_EQ(invokeName(*items.get(), "Item", DISPATCH_PROPERTYGET, {&unknown.get()}).scode,
              static_cast<SCODE>(0x800A0005));

    const auto other = makeObject<PanelObject>("A1ctrlUserA02");
    putReference(*other.get(), "FieldItems", Variant::of(items));
    EXPECT_EQ(other->panel().FieldItems, panel->panel().FieldItems);
    call(*other.get(), "setCtrl", list(Variant::of(items)));
}

TEST_F(PanelByName, RefusesAnObjectThatIsNoFieldSet) {
    const Variant stranger = Variant::of(&object);
    const Answer answer = invokeName(object, "setCtrl", DISPATCH_METHOD, {&stranger.get()});
    EXPECT_EQ(answer.code, DISP_E_EXCEPTION);
    EXPECT_EQ(answer.scode, static_cast<SCODE>(0x800A000D));
    const Variant none = Variant::of(static_cast<IDispatch*>(nullptr));
    EXPECT_EQ(invokeName(object, "setCtrl", DISPATCH_METHOD, {&none.get()}).scode,
              static_cast<SCODE>(0x800A005B));
}

TEST_F(PanelByName, SetDGItemsFailsWithTheFailureOfItsConnection) {
    put(*objectOf(call(object, "WhInfo")).get(), "TabId", Variant::of("A02"));
    publishConnection(nullptr);
    const Answer answer = invokeName(object, "setDGItems", DISPATCH_METHOD);
    EXPECT_EQ(answer.code, DISP_E_EXCEPTION);
    EXPECT_EQ(answer.scode, static_cast<SCODE>(0x800A0E7D));
}

TEST(ButtonListByName, KeepsAnObjectAndGivesItBack) {
    const auto bar = makeObject<ButtonListObject>();
    EXPECT_EQ(call(*bar.get(), "UControl").get().pdispVal, nullptr);
    const auto kept = makeObject<ButtonListObject>();
    putReference(*bar.get(), "UControl", Variant::of(kept));
    EXPECT_EQ(call(*bar.get(), "ucontrol").get().pdispVal, kept.get());
}

} // namespace
} // namespace quillmere::component::test

#include "Parts.h"
#include "Transcript.h"

#include <string>
#include <utility>
#include <vector>

namespace quillmere::component::test {

namespace {

/// A value that is written to a member, and what the line says of it.
struct Write {
    std::string_view member;
    std::string_view what;
    Variant value;
};

Variant dateOf(double days) {
    VARIANT date{};
    date.vt = VT_DATE;
    date.date = days;
    return Variant::copyOf(date);
}

std::vector<Write> writes() {
    std::vector<Write> all;
    const auto add = [&](std::string_view member, std::string_view what, Variant value) {
        all.push_back({member, what, std::move(value)});
    };
    add("OperationType", "16-bit 4", Variant::of(std::int16_t{4}));
    add("ZZtype", "32-bit 2", Variant::of(std::int32_t{2}));
    add("ZZtype", "text 12", Variant::of("12"));
    add("ZZtype", "real 2.5", Variant::of(2.5));
    add("ZZtype", "real 3.5", Variant::of(3.5));
    add("ZZtype", "true", Variant::of(true));
    add("ZZtype", "empty", Variant());
    add("PersonType", "least", Variant::of(std::int32_t{-32768}));
    add("PhotoPath", "text", Variant::of("C:\\照片\\𠮷.jpg"));
    add("personID", "text", Variant::of("{7C2D}"));
    add("UnitCode", "number", Variant::of(std::int32_t{340100}));
    add("UnitCode", "false", Variant::of(false));
    add("UnitCode", "date", dateOf(46347));
    add("SkinPath", "empty text", Variant::of(""));
    return all;
}

void tryWrites(IDispatch& entry) {
    for (const Write& write : writes()) {
        const std::string what = std::string(write.member) + " = " + std::string(write.what);
        const Answer answer = putValue(entry, write.member, write.value);
        if (answer.code == S_OK)
            line(what, get(entry, write.member));
        else
            line(what, answer);
    }
}

void tryDefaultMember(IDispatch& entry) {
    const Variant text = Variant::of("{A001}");
    line("default member, written", invokeId(entry, DISPID_VALUE, DISPATCH_PROPERTYPUT, {&text.get()}));
    line("default member, read", invokeId(entry, DISPID_VALUE, DISPATCH_PROPERTYGET));
    line("personID", get(entry, "personID"));
}

} // namespace

void tryMembers(IDispatch& entry) {
    heading("members");
    for (const char* name : {"Connection", "ShowPersonWh", "OperationType", "ZZtype", "PersonType",
                             "PhotoPath", "personID", "UnitCode", "SkinPath", "SKINPATH", "Identity"})
        line(name, std::to_string(idOf(entry, name)));
    tryWrites(entry);
    tryDefaultMember(entry);
}

void tryWrongCalls(IDispatch& entry) {
    heading("wrong calls");
    const Variant one = Variant::of(std::int16_t{1});
    const Variant null = Variant::null();
    line("ZZtype = abc", putValue(entry, "ZZtype", Variant::of("abc")));
    line("ZZtype = null", putValue(entry, "ZZtype", null));
    line("ZZtype = 40000", putValue(entry, "ZZtype", Variant::of(std::int32_t{40000})));
    line("ZZtype = text 40000", putValue(entry, "ZZtype", Variant::of("40000")));
    line("ZZtype = an object that reads as a text", putValue(entry, "ZZtype", Variant::of(&entry)));
    line("ZZtype by reference", putValue(entry, "ZZtype", one, DISPATCH_PROPERTYPUTREF));
    line("ZZtype as an operation", invokeName(entry, "ZZtype", DISPATCH_METHOD));
    line("ZZtype with an index", invokeName(entry, "ZZtype", DISPATCH_PROPERTYGET, {&one.get()}));
    line("ZZtype", get(entry, "ZZtype"));
    line("ShowPersonWh as a property", get(entry, "ShowPersonWh"));
    line("ShowPersonWh with an argument", invokeName(entry, "ShowPersonWh", DISPATCH_METHOD, {&one.get()}));
    line("member 4711", invokeId(entry, 4711, DISPATCH_METHOD | DISPATCH_PROPERTYGET));
}

} // namespace quillmere::component::test

// Values that cross the boundary of the in-process server: text in two encodings, and texts as other types.

#include "support/Fuzzing.h"

#include "component/automation/Conversions.h"
#include "component/automation/NumberText.h"
#include "component/automation/Utf16.h"
#include "platform/text/Text.h"

#include <cstring>

namespace {

using namespace quillmere;
using namespace quillmere::component;
using fuzz::failureOf;
using fuzz::hold;

void crosses(const std::string& text) {
    const std::string wellFormed = text::encode(text::decode(text));
    hold(toUtf8(toUtf16(text)) == wellFormed, "a text crosses as it is, ill-formed bytes apart");
    const Variant value = Variant::of(text);
    hold(component::toText(value.get()) == wellFormed && isText(value.get()), "and so in a value");
    const Variant copy = Variant::copyOf(value.get());
    hold(toCell(copy.get()) == data::Value(wellFormed), "and out of its copy into a cell");
}

void isConverted(const Variant& value, const data::Value& cell) {
    std::int32_t large = 0;
    const auto ofValue = failureOf([&] { large = toInteger32(value.get()); });
    const auto ofCell =
        failureOf([&] { hold(cell.toLong() == large || ofValue, "a number is the same on both sides"); });
    hold(ofValue == ofCell, "and fails alike");
    std::int16_t small = 0;
    if (!failureOf([&] { small = toInteger16(value.get()); }))
        hold(!ofValue && small == large, "in 16 bits too");
    bool truth = false;
    const auto ofTruth = failureOf([&] { truth = toBoolean(value.get()); });
    hold(ofTruth == failureOf([&] { hold(cell.toBoolean() == truth || ofTruth, "and as a boolean"); }),
         "a boolean fails alike");
}

void hasADay(const std::string& text) {
    double days = 0;
    std::memcpy(&days, text.data(), std::min(text.size(), sizeof days));
    std::string day;
    const auto failure = failureOf([&] { day = dateText(days); });
    hold(failure ? failure == Failure::Overflow : day.size() == 10 || day.size() == 19, "a day has its form");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string text = fuzz::Input(bytes, size).rest();
    crosses(text);
    hasADay(text);
    const std::string wellFormed = text::encode(text::decode(text));
    isConverted(Variant::of(wellFormed), data::Value(wellFormed));
    WideText wide(size / sizeof(OLECHAR), 0);
    std::memcpy(wide.data(), bytes, wide.size() * sizeof(OLECHAR));
    hold(fuzz::isUtf8(toUtf8(wide)), "any units become UTF-8");
    return 0;
}

// Arguments of the C interface: texts that may be none, and handles that nobody gave.

#include "support/Fuzzing.h"

#include "cinterface/Arguments.h"
#include "cinterface/Handles.h"

#include <cstring>

namespace {

using namespace quillmere;
using namespace quillmere::cinterface;
using fuzz::hold;

struct Thing : Handled {};
struct Other : Handled {};

void isAText(const std::string& text) {
    std::string taken;
    const auto failure = fuzz::failureOf([&] { taken = textOf("text", text.c_str()); });
    const std::string upToZero = text.c_str();
    hold(failure.has_value() != fuzz::isUtf8(upToZero), "a text is taken when it is UTF-8");
    hold(failure ? failure == Failure::InvalidCall : taken == upToZero, "as it is");
}

void isAHandle(const std::string& text) {
    const void* stranger = nullptr;
    std::memcpy(&stranger, text.data(), std::min(text.size(), sizeof stranger));
    const auto thing = std::make_shared<Thing>();
    const void* given = addHandle(thing);
    const auto nothing = [](auto&) {};
    hold(callOn<Thing>(given, nothing) == 0, "a handle that was given is known");
    hold(callOn<Other>(given, nothing) != 0, "but not as one of another kind");
    hold(stranger == given || callOn<Thing>(stranger, nothing) != 0, "any other number is found out");
    removeHandle(given);
    hold(callOn<Thing>(given, nothing) != 0, "and so is one that was released");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = fuzz::Input(data, size).rest();
    isAText(text);
    isAHandle(text);
    return 0;
}

#include "Transcript.h"

#include <array>
#include <cstdio>
#include <iostream>

namespace quillmere::component::test {

namespace {

std::string nameOf(VARTYPE type) {
    switch (type) {
    case VT_EMPTY:
        return "nothing";
    case VT_NULL:
        return "null";
    case VT_I2:
        return "16-bit integer";
    case VT_I4:
        return "32-bit integer";
    case VT_R8:
        return "real number";
    case VT_BOOL:
        return "Boolean";
    case VT_BSTR:
        return "text";
    case VT_DISPATCH:
        return "object";
    default:
        return "type " + std::to_string(type);
    }
}

} // namespace

std::string codeText(HRESULT code) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%08lX", static_cast<unsigned long>(code));
    return text.data();
}

std::string valueText(const VARIANT& value) {
    const std::string name = nameOf(value.vt);
    switch (value.vt) {
    case VT_I2:
    case VT_I4:
    case VT_R8:
    case VT_BOOL:
        return name + " " + toText(value);
    case VT_BSTR:
        return name + " \"" + toText(value) + "\"";
    case VT_DISPATCH:
        return value.pdispVal == nullptr ? "no object" : name;
    default:
        return name;
    }
}

std::string answerText(const Answer& answer) {
    if (answer.code == S_OK) return valueText(answer.value.get());
    if (answer.code != DISP_E_EXCEPTION) return codeText(answer.code);
    return codeText(answer.code) + " " + codeText(answer.scode) + " " + answer.source + ": " +
           answer.description;
}

void heading(std::string_view text) { std::cout << "\n== " << text << '\n'; }

void line(std::string_view what, std::string_view outcome) { std::cout << what << ": " << outcome << '\n'; }

void line(std::string_view what, const Answer& answer) { line(what, answerText(answer)); }

} // namespace quillmere::component::test

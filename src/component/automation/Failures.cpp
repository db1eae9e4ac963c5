#include "component/automation/Failures.h"

#include "component/automation/ComPtr.h"
#include "component/automation/Utf16.h"
#include "platform/Error.h"

#include <cstdint>
#include <exception>
#include <new>

namespace quillmere::component {

namespace {

constexpr auto controlRange = 0x800A0000U;
constexpr auto numberMask = 0xFFFFU;
constexpr const char* serverName = "Quillmere";

BSTR textOrNull(const std::string& text) noexcept {
    try {
        return newText(text);
    } catch (...) {
        return nullptr;
    }
}

} // namespace

HRESULT resultCodeOf(int number) {
    if (number < 0) return static_cast<HRESULT>(number);
    return static_cast<HRESULT>(controlRange | (static_cast<std::uint32_t>(number) & numberMask));
}

int numberOf(HRESULT code) {
    const auto bits = static_cast<std::uint32_t>(code);
    return (bits & ~numberMask) == controlRange ? static_cast<int>(bits & numberMask)
                                                : static_cast<int>(code);
}

FailureReport currentFailure() noexcept {
    try {
        try {
            throw;
        } catch (const Error& error) {
            return {resultCodeOf(error.number()), error.source(), error.description()};
        } catch (const std::bad_alloc&) {
            return {E_OUTOFMEMORY, {}, {}};
        } catch (const std::exception& failure) {
            return {E_FAIL, serverName, failure.what()};
        } catch (...) {
            return {E_UNEXPECTED, serverName, std::string(descriptionOf(Failure::Unspecified))};
        }
    } catch (...) {
        // There was no memory for the words.
        return {E_OUTOFMEMORY, {}, {}};
    }
}

HRESULT report(const FailureReport& failure) noexcept {
    try {
        ComPtr<ICreateErrorInfo> info;
        if (FAILED(CreateErrorInfo(info.put()))) return failure.code;
        WideText source = toUtf16(failure.source);
        WideText description = toUtf16(failure.description);
        info->SetSource(source.data());
        info->SetDescription(description.data());
        SetErrorInfo(0, info.query<IErrorInfo>(IID_IErrorInfo).get());
    } catch (...) {
        SetErrorInfo(0, nullptr);
    }
    return failure.code;
}

HRESULT report(const FailureReport& failure, EXCEPINFO* exception) noexcept {
    if (exception != nullptr) {
        *exception = {};
        exception->scode = failure.code;
        exception->bstrSource = textOrNull(failure.source);
        exception->bstrDescription = textOrNull(failure.description);
    }
    return DISP_E_EXCEPTION;
}

} // namespace quillmere::component

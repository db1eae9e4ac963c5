#include "quillmere.h"

#include "cinterface/Arguments.h"
#include "cinterface/Handles.h"
#include "quillmere/Version.h"

using namespace quillmere;
using namespace quillmere::cinterface;

namespace {

void tell(const LastFailure& last, std::int32_t* number, const char** source,
          const char** description) noexcept {
    if (number != nullptr) *number = last.number;
    if (source != nullptr) *source = last.source.c_str();
    if (description != nullptr) *description = last.description.c_str();
}

} // namespace

quillmere_status quillmere_failure(const void* handle, std::int32_t* number, const char** source,
                                   const char** description) noexcept {
    if (handle == nullptr) {
        tell(lastWithoutHandle(), number, source, description);
        return QUILLMERE_OK;
    }
    const std::shared_ptr<Handled> object = findHandled(handle);
    // Nothing is kept of it: that would put one failure in the place of another that is being asked for.
    if (!object) return QUILLMERE_WRONG_HANDLE;
    tell(object->last, number, source, description);
    return QUILLMERE_OK;
}

quillmere_status quillmere_version(const char** version) noexcept {
    return callWithoutHandle([&] { placeOf("version", version) = quillmere::version(); });
}

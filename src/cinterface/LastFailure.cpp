#include "cinterface/LastFailure.h"

#include "platform/Error.h"

namespace quillmere::cinterface {

LastFailure currentFailure() noexcept {
    LastFailure failure{static_cast<std::int32_t>(Failure::Unspecified), {}, {}};
    // No memory for the words is no reason to lose the number.
    try {
        try {
            throw;
        } catch (const Error& error) {
            failure.number = error.number();
            failure.source = error.source();
            failure.description = error.description();
        } catch (const std::exception& error) {
            failure.source = "Quillmere";
            failure.description = error.what();
        } catch (...) {
            failure.source = "Quillmere";
            failure.description = descriptionOf(Failure::Unspecified);
        }
    } catch (...) {
        failure.source.clear();
        failure.description.clear();
    }
    return failure;
}

LastFailure& lastWithoutHandle() noexcept {
    thread_local LastFailure last;
    return last;
}

} // namespace quillmere::cinterface

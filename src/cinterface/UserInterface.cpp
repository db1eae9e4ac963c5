#include "quillmere.h"

#include "cinterface/Arguments.h"
#include "cinterface/Objects.h"
#include "quillmere/Qt.h"

namespace quillmere::cinterface {

namespace {

/// The user interface belongs to one call at a time: a window is open, or the application is being ended.
class OneCall {
public:
    OneCall() {
        if (busy_.exchange(true))
            throw Error(Failure::InvalidCall, "维护窗口已经打开，现在不能执行此操作。", "Quillmere");
    }
    OneCall(const OneCall&) = delete;
    OneCall& operator=(const OneCall&) = delete;
    ~OneCall() { busy_ = false; }

private:
    static inline std::atomic<bool> busy_ = false;
};

/// Keeps an object from being released or closed.
class InUse {
public:
    explicit InUse(std::shared_ptr<Handled> object) : object_(std::move(object)) { mark(true); }
    InUse(const InUse&) = delete;
    InUse& operator=(const InUse&) = delete;
    ~InUse() { mark(false); }

private:
    void mark(bool inUse) {
        if (object_) object_->inUse = inUse;
    }

    std::shared_ptr<Handled> object_;
};

bool show(Entry& entry) {
    const OneCall only;
    const InUse keptEntry(findHandled(entry.handle));
    const InUse keptDatabase(entry.database);
    // Made anew for each window, since the host's application may have come or gone since the last.
    const qt::Toolkit toolkit;
    return entry.control.ShowPersonWh();
}

} // namespace

} // namespace quillmere::cinterface

using namespace quillmere;
using namespace quillmere::cinterface;

quillmere_status quillmere_show(quillmere_entry* entry, std::int32_t* saved) noexcept {
    return callOn<Entry>(entry, [&](Entry& object) {
        std::int32_t& result = placeOf("saved", saved);
        result = show(object) ? 1 : 0;
    });
}

quillmere_status quillmere_shutdown() noexcept {
    return callWithoutHandle([] {
        const OneCall only;
        qt::Toolkit::shutdown();
    });
}

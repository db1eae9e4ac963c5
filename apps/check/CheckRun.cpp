#include "check/CheckRun.h"

#include "check/CheckGroup.h"
#include "check/RegisterView.h"

#include "metadata/Globals.h"

#include <utility>

namespace quillmere::check {

namespace {

struct Published {
    explicit Published(std::shared_ptr<data::Connection> connection) {
        publishConnection(std::move(connection));
    }
    ~Published() { publishConnection(nullptr); }
    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;
};

} // namespace

Report checkRegister(std::shared_ptr<data::Connection> connection, const EngineIndexes& indexes) {
    const Published published(connection);
    return runChecks(RegisterView(std::move(connection), indexes));
}

} // namespace quillmere::check

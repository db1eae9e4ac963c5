#include "component/connection/Engines.h"

#include "platform/Error.h"
#include "platform/text/Text.h"
#include "quillmere/Sqlite.h"
#ifdef QUILLMERE_HAVE_POSTGRESQL
#include "quillmere/PostgreSql.h"
#endif

#include <string>

namespace quillmere::component {

namespace {

using Open = std::shared_ptr<data::Connection> (*)(std::string_view connectionString);

#ifndef QUILLMERE_HAVE_POSTGRESQL
std::shared_ptr<data::Connection> openPostgreSql(std::string_view /*connectionString*/) {
    throw Error(Failure::CannotCreateObject, "本组件没有包含 PostgreSQL 的连接。", "Quillmere");
}
#endif

struct Engine {
    std::string_view scheme;
    Open open;
};

constexpr Engine engines[] = {
    {"postgresql:", openPostgreSql},
    {"postgres:", openPostgreSql},
};

} // namespace

std::shared_ptr<data::Connection> openEngine(std::string_view connectionString) {
    for (const Engine& engine : engines) {
        if (text::startsWithNoCase(connectionString, engine.scheme)) return engine.open(connectionString);
    }
    return openSqlite(connectionString);
}

} // namespace quillmere::component

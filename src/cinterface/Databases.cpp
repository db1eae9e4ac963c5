#include "quillmere.h"

#include "cinterface/Arguments.h"
#include "cinterface/Objects.h"
#include "platform/data/Connection.h"
#include "quillmere/Sqlite.h"
#ifdef QUILLMERE_POSTGRESQL
#include "quillmere/PostgreSql.h"
#endif

#include <string_view>

namespace quillmere::cinterface {

namespace {

std::shared_ptr<data::Connection> openPlace(const std::string& place) {
    if (!std::string_view(place).starts_with("postgresql:")) return openSqlite(place);
#ifdef QUILLMERE_POSTGRESQL
    return openPostgreSql(place);
#else
    throw Error(Failure::InvalidCall, "本程序库不支持 PostgreSQL 数据库。", "Quillmere");
#endif
}

} // namespace

} // namespace quillmere::cinterface

using namespace quillmere;
using namespace quillmere::cinterface;

quillmere_status quillmere_open(const char* place, quillmere_database** database) noexcept {
    return callWithoutHandle([&] {
        quillmere_database*& result = placeOf("database", database);
        result = nullptr;
        const auto opened = std::make_shared<Database>();
        opened->connection = openPlace(textOf("place", place));
        result = static_cast<quillmere_database*>(addHandle(opened));
    });
}

quillmere_status quillmere_close(quillmere_database* database) noexcept {
    return callOn<Database>(database, [&](Database& object) {
        if (object.inUse)
            throw Error(Failure::InvalidCall, "维护窗口正在使用此数据库，不能关闭。", "Quillmere");
        object.connection->close();
        removeHandle(database);
    });
}

#include "quillmere.h"

#include "cinterface/Arguments.h"
#include "cinterface/Objects.h"
#include "platform/data/Connection.h"

using namespace quillmere;
using namespace quillmere::cinterface;

quillmere_status quillmere_create(quillmere_entry** entry) noexcept {
    return callWithoutHandle([&] {
        quillmere_entry*& result = placeOf("entry", entry);
        result = nullptr;
        result = static_cast<quillmere_entry*>(addHandle(std::make_shared<Entry>()));
    });
}

quillmere_status quillmere_release(quillmere_entry* entry) noexcept {
    return callOn<Entry>(entry, [&](const Entry& object) {
        if (object.inUse)
            throw Error(Failure::InvalidCall, "维护窗口正在使用此对象，不能释放。", "Quillmere");
        removeHandle(entry);
    });
}

quillmere_status quillmere_set_Connection(quillmere_entry* entry, quillmere_database* database) noexcept {
    return callOn<Entry>(entry, [&](Entry& object) {
        auto found = find<Database>(database);
        if (!found) throw Error(Failure::ObjectNotSet, "数据库的句柄无效，或已经关闭。", "Quillmere");
        object.control.setConnection(found->connection);
        object.database = std::move(found);
    });
}

quillmere_status quillmere_get_Connection(quillmere_entry* entry, quillmere_database** database) noexcept {
    return callOn<Entry>(entry, [&](const Entry& object) {
        quillmere_database*& result = placeOf("database", database);
        const bool open = object.database && object.database->connection->isOpen();
        result = open ? static_cast<quillmere_database*>(object.database->handle) : nullptr;
    });
}

#include "metadata/Identity.h"

#include "metadata/Globals.h"
#include "platform/data/Connection.h"
#include "platform/text/Text.h"

namespace quillmere {

namespace {

bool anyRow(const std::string& countStatement) {
    return gConn().query(countStatement).at(0, 0).toInteger16() >= 1;
}

} // namespace

std::string NewGuid() {
    gConn().execute(" delete from S_GUID ");
    gConn().execute("insert into S_GUID(val) values('a')");
    const data::RowSet made = gConn().query("select id from S_GUID where val='a'");
    // The identity is stored in braces, which are no part of it.
    return text::mid(made.at(0, 0).toText(), 2, 36);
}

bool PersonNameExists(std::string_view name) {
    return anyRow("select count(*) from A01 where A0101 = '" + std::string(name) + "'");
}

bool UnitNameExists(std::string_view name) {
    return anyRow("select count(*) from B01 where B0101 = '" + std::string(name) + "'");
}

} // namespace quillmere

#include "metadata/Catalogue.h"

#include "metadata/Globals.h"

namespace quillmere {

std::unique_ptr<data::Recordset> OpenRecordset(std::string_view sql, int /*lockKind*/) {
    auto records = std::make_unique<data::Recordset>();
    records->open(sql, gConn());
    return records;
}

bool GetIsMult(std::string_view tblname) {
    const std::string sql =
        " select Property from s_infotable  where TblName ='" + std::string(tblname) + "'";
    const auto records = OpenRecordset(sql);
    return !records->EOF_() && !records->Fields("Property").toBoolean();
}

} // namespace quillmere

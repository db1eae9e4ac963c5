#pragma once

#include "platform/data/Recordset.h"

#include <memory>
#include <string>
#include <string_view>

namespace quillmere {

/// The general way to read: a client-side static recordset on the shared connection, opened and on
/// its first row. `lockKind` is 1 pessimistic, 2 optimistic, 3 batch optimistic, anything else
/// read-only; a static cursor that nobody writes through reads alike under all of them. The caller
/// owns and closes the result.
[[nodiscard]] std::unique_ptr<data::Recordset> OpenRecordset(std::string_view sql, int lockKind = 0);

/// Whether an information set holds several records: the negation of `Property` in s_infotable.
/// False for a table that is not listed; InvalidUseOfNull for a null `Property`.
[[nodiscard]] bool GetIsMult(std::string_view tblname);

} // namespace quillmere

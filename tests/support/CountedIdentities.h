#pragma once

#include "platform/data/Connection.h"

namespace quillmere::test {

/// Makes the database's identities count up, so that a run can be repeated to the letter.
inline void countIdentities(data::Connection& connection) {
    for (const char* statement :
         {"create table counted (n integer)", "insert into counted values (0)",
          "create trigger identities after insert on S_GUID begin update counted set n=n+1; update S_GUID "
          "set "
          "id=(select '{' || printf('%08d',n) || '-0000-4000-8000-000000000000}' from counted); end"})
        connection.execute(statement);
}

} // namespace quillmere::test

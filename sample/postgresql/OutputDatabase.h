#pragma once

#include "sample/SampleRegister.h"

#include <functional>
#include <memory>
#include <string>

namespace quillmere::sample {

/// Lets `fill` make a register's tables in the database on a PostgreSQL server, on a connection that is a
/// CopyTarget too, and the schema jet before when it is missing. The tables become those of the schema
/// `data`, in place of what was there, only when `fill` has returned; the connection that comes back reads
/// them. Raises PermissionDenied when there are tables in the schema and `replace` is false, what opening
/// raises, and what `fill` raises.
std::shared_ptr<data::Connection> fillDatabase(const std::string& address, bool replace,
                                               const std::function<void(data::Connection&)>& fill);

/// Makes the register in the schema `data` of a database on a PostgreSQL server, and the schema jet when it
/// is missing. The register appears, or is replaced, only when it is complete; it is then connected to.
/// Raises PermissionDenied when there are tables in the schema and `replace` is false, what opening raises,
/// and what building raises.
std::shared_ptr<data::Connection> buildDatabase(const std::string& address, const Options& options,
                                                bool replace);

} // namespace quillmere::sample

#pragma once

#include "platform/data/Connection.h"
#include "sample/Catalogue.h"
#include "sample/Dialect.h"

#include <string>
#include <vector>

namespace quillmere::sample {

/// The statements that make the catalogue tables, from `catalogue.sql`.
[[nodiscard]] std::vector<std::string> catalogueStatements(const Dialect& dialect);

[[nodiscard]] std::string codeTableStatement(const std::string& table, const Dialect& dialect);

/// The data table of an information set: its fields in catalogue order, of the types that they are
/// declared with. A value of the wrong kind fails in the statement that brings it.
[[nodiscard]] std::string dataTableStatement(const SetRow& set, const Dialect& dialect);

/// The indexes that the statements in use find. The identity is a unique key of the sets with one record
/// for each, `UX_A01_A00` and so on; they keep a second clerk from storing a second one. Identity and
/// number are the unique key of the other sets where the engine checks it at the end of a statement. Where
/// it checks row by row they are an index, `IX_A02_A00`: a renumbering that broke off halfway could not be
/// made good, since the statement that raises all numbers passes over numbers that are still taken.
[[nodiscard]] std::vector<std::string> indexStatements(const std::vector<SetRow>& sets,
                                                       const Dialect& dialect);

/// Makes every table of the register in an empty database, and the indexes of the data tables.
void createTables(data::Connection& connection, const std::vector<SetRow>& sets, const Dialect& dialect);
void createIndexes(data::Connection& connection, const std::vector<SetRow>& sets, const Dialect& dialect);
/// The two together.
void createSchema(data::Connection& connection, const std::vector<SetRow>& sets, const Dialect& dialect);

} // namespace quillmere::sample

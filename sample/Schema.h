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

/// The indexes that the statements in use find. The key of `A01`, `B01` and `P01` is unique, under
/// the names `UX_A01_A00`, `UX_B01_A00`, `UX_P01_A00`. The sequence of a multi-record set is not:
/// it repeats for a moment while records are renumbered.
[[nodiscard]] std::vector<std::string> indexStatements(const std::vector<SetRow>& sets);

/// Makes every table of the register in an empty database, and the indexes of the data tables.
void createTables(data::Connection& connection, const std::vector<SetRow>& sets, const Dialect& dialect);
void createIndexes(data::Connection& connection, const std::vector<SetRow>& sets);
/// The two together.
void createSchema(data::Connection& connection, const std::vector<SetRow>& sets, const Dialect& dialect);

} // namespace quillmere::sample

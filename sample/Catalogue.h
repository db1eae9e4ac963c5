#pragma once

#include "platform/data/Connection.h"

#include <string>
#include <vector>

namespace quillmere::sample {

/// A field of an information set, as the catalogue describes it.
struct FieldRow {
    std::string name;
    std::string type;
};

/// An information set with its fields, in catalogue order.
struct SetRow {
    std::string name;
    bool single = false;
    std::vector<FieldRow> fields;
};

/// The information sets of the embedded catalogue. Raises BadArguments when a field names a set
/// that is not there, or a set has no field.
[[nodiscard]] std::vector<SetRow> informationSets();

/// The names of the embedded code tables.
[[nodiscard]] std::vector<std::string> codeTableNames();

/// Writes the rows of the catalogue tables and of the code tables; the tables are there and empty.
void writeCatalogue(data::Connection& connection);
void writeCodeTables(data::Connection& connection);

} // namespace quillmere::sample

#pragma once

struct sqlite3;

namespace quillmere::sqlite {

/// Gives the database the functions of the catalogue's dialect that SQLite lacks: `len(text)`,
/// `mid(text, start)`, `mid(text, start, count)` and `format(value, picture)`. Characters are code
/// points, positions count from 1, and a null argument gives null.
void addFunctions(sqlite3* database);

} // namespace quillmere::sqlite

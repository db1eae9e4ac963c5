#include "sample/Dialect.h"

namespace quillmere::sample {
namespace {

// A date type would turn 2026.10 into a number, so dates are text on every engine.
constexpr Dialect sqliteDialect{
    .text = "TEXT COLLATE NOCASE",
    .boolean = "BOOLEAN",
    .integer = "INTEGER",
    .number = "NUMERIC",
    .guidDefault = "('{' || hex(randomblob(4)) || '-' || hex(randomblob(2)) || '-4' || "
                   "substr(hex(randomblob(2)),2) || '-' || substr('89AB',1 + (random() & 3),1) || "
                   "substr(hex(randomblob(2)),2) || '-' || hex(randomblob(6)) || '}')",
};

constexpr Dialect postgreSqlDialect{
    .text = "text COLLATE jet_ci",
    .boolean = "boolean",
    .integer = "integer",
    .number = "float8",
    .guidDefault = "('{' || upper(gen_random_uuid()::text) || '}')",
};

} // namespace

const Dialect& dialectOf(Engine engine) {
    return engine == Engine::PostgreSql ? postgreSqlDialect : sqliteDialect;
}

} // namespace quillmere::sample

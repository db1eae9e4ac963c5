#include "sample/Dialect.h"

namespace quillmere::sample {
namespace {

/// A clerk's role reads and empties its own session's row alone. The owner of the table is not bound.
constexpr std::string_view ownIdentityOnly[] = {
    "alter table S_GUID add column session integer not null default pg_backend_pid()",
    "alter table S_GUID enable row level security",
    "create policy own_session on S_GUID using (session = pg_backend_pid())",
};

// A date type would turn 2026.10 into a number, so dates are text on every engine.
constexpr Dialect sqliteDialect{
    .text = "TEXT COLLATE NOCASE",
    .boolean = "BOOLEAN",
    .integer = "INTEGER",
    .number = "NUMERIC",
    .guidDefault = "('{' || hex(randomblob(4)) || '-' || hex(randomblob(2)) || '-4' || "
                   "substr(hex(randomblob(2)),2) || '-' || substr('89AB',1 + (random() & 3),1) || "
                   "substr(hex(randomblob(2)),2) || '-' || hex(randomblob(6)) || '}')",
    .identityGuard = {},
    .deferrableKeys = false,
};

constexpr Dialect postgreSqlDialect{
    .text = "text COLLATE jet_ci",
    .boolean = "boolean",
    .integer = "integer",
    .number = "float8",
    .guidDefault = "('{' || upper(gen_random_uuid()::text) || '}')",
    .identityGuard = ownIdentityOnly,
    .deferrableKeys = true,
};

} // namespace

const Dialect& dialectOf(Engine engine) {
    return engine == Engine::PostgreSql ? postgreSqlDialect : sqliteDialect;
}

} // namespace quillmere::sample

#pragma once

#include "EngineContract.h"

namespace quillmere::sqlite {

/// The column types of a database in SQLite that keeps the contract of Connection.
inline data::ColumnTypes columnTypes() {
    return {
        .text = "text collate nocase",
        .longText = "text collate nocase",
        .integer = "integer",
        .real = "real",
        .boolean = "boolean",
        .identity = "text not null default ('{' || hex(randomblob(4)) || '-' || hex(randomblob(2)) || '-' || "
                    "hex(randomblob(2)) || '-' || hex(randomblob(2)) || '-' || hex(randomblob(6)) || '}')",
    };
}

} // namespace quillmere::sqlite

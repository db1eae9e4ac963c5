#pragma once

#include "check/EngineIndexes.h"

namespace quillmere::check {

class PostgreSqlIndexes final : public EngineIndexes {
public:
    [[nodiscard]] std::optional<std::vector<Index>> indexesOf(data::Connection& connection,
                                                              std::string_view table) const override;
};

} // namespace quillmere::check

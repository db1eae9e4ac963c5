#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::data {
class Connection;
}

namespace quillmere::check {

/// What only the engine itself can tell of a table. Everything else is asked in statements that every
/// engine takes.
class EngineIndexes {
public:
    /// The columns of one index, in their order.
    using Index = std::vector<std::string>;

    EngineIndexes() = default;
    EngineIndexes(const EngineIndexes&) = delete;
    EngineIndexes& operator=(const EngineIndexes&) = delete;
    virtual ~EngineIndexes() = default;

    /// The indexes of a table, keys included; none when the engine does not tell.
    [[nodiscard]] virtual std::optional<std::vector<Index>> indexesOf(data::Connection& connection,
                                                                      std::string_view table) const = 0;
};

} // namespace quillmere::check

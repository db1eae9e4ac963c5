#pragma once

#include "copy/Store.h"

namespace quillmere::copy {

/// The tables of the schema in which statements find the catalogue.
class PostgreSqlStore final : public Store {
public:
    using Store::Store;

    [[nodiscard]] sample::Engine engine() const override { return sample::Engine::PostgreSql; }
    void beginReading() override;
    [[nodiscard]] std::vector<Table> tables() const override;
    [[nodiscard]] std::vector<std::string> others() const override;
    /// In lower case, as the server reads names without quotes.
    [[nodiscard]] std::string nameFor(const std::string& name) const override;
    void read(const Table& table, const std::vector<std::string>& columns, const Visit& visit) override;
};

} // namespace quillmere::copy

#pragma once

#include "copy/Store.h"

namespace quillmere::copy {

class SqliteStore final : public Store {
public:
    using Store::Store;

    [[nodiscard]] sample::Engine engine() const override { return sample::Engine::Sqlite; }
    void beginReading() override { connection().execute("begin"); }
    /// Raises Unspecified for a table without row numbers, by which rows are read.
    [[nodiscard]] std::vector<Table> tables() const override;
    [[nodiscard]] std::vector<std::string> others() const override;
    [[nodiscard]] std::string nameFor(const std::string& name) const override { return name; }
    void read(const Table& table, const std::vector<std::string>& columns, const Visit& visit) override;
};

} // namespace quillmere::copy

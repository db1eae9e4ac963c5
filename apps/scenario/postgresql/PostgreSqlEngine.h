#pragma once

#include "scenario/Engine.h"

#include <string>
#include <string_view>

namespace quillmere::scenario {

/// A schema of its own in a database on a server, for each time that a script asks for a fresh one. What else
/// is in that database is neither read nor changed, but for the schema jet, which is installed when it is
/// missing.
class PostgreSqlEngine final : public Engine {
public:
    explicit PostgreSqlEngine(std::string_view address) : address_(address) {}
    ~PostgreSqlEngine() override;

    std::shared_ptr<data::Connection> openFresh() override;
    [[nodiscard]] sample::Engine dialect() const override { return sample::Engine::PostgreSql; }

private:
    void drop();

    std::string address_;
    /// Empty when there is none.
    std::string schema_;
};

} // namespace quillmere::scenario

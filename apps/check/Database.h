#pragma once

#include <memory>
#include <string>

namespace quillmere::data {
class Connection;
}

namespace quillmere::check {

class EngineIndexes;

/// A register behind its engine.
struct Database {
    std::shared_ptr<data::Connection> connection;
    std::unique_ptr<EngineIndexes> indexes;
};

/// Opens a register by its name: a file of SQLite, or what an engine's own prefix leads to. Raises Error
/// for one that cannot be opened.
[[nodiscard]] Database openDatabase(const std::string& name);

} // namespace quillmere::check

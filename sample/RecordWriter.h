#pragma once

#include "platform/data/Connection.h"
#include "sample/InsertBatch.h"
#include "sample/Pools.h"
#include "sample/Random.h"
#include "sample/Recipes.h"
#include "sample/RowMaker.h"
#include "sample/Subject.h"

#include <array>
#include <string>
#include <vector>

namespace quillmere::sample {

/// Writes the records of the sets that the menus offer beside the basic ones: the curriculum of people, and
/// application, plan, reports and closing of projects, by type and stage.
class RecordWriter {
public:
    RecordWriter(data::Connection& connection, const Pools& pools);

    /// Who works: the sets of the person menu.
    void writeCurriculum(const Subject& subject, Random& random);
    /// What the project has reached: applied for, under way or closed.
    void writeProject(const Subject& subject, Random& random);
    void flush();

private:
    static constexpr std::size_t types = 8;
    using Row = std::vector<std::string>;
    using Indexes = std::vector<std::size_t>;

    /// A set's table. A row that is numbered over the whole table waits for its number until the end.
    struct Table {
        const SetRecipe* recipe;
        /// What fills each column behind key and sequence, by type; null for nothing.
        std::array<std::vector<const FieldRecipe*>, types> columns;
        InsertBatch batch;
        std::vector<std::vector<Row>> waiting;
    };

    void addTable(data::Connection& connection, const SetRecipe& recipe);
    void chooseTables(std::size_t type);
    [[nodiscard]] Indexes tablesOf(const std::vector<std::string>& sets) const;
    void writeTables(const Indexes& tables, const Subject& subject, Random& random);
    void writeSet(Table& table, const Subject& subject, Random& random, RowMaker& maker);
    [[nodiscard]] static Row rowOf(const Table& table, const Subject& subject, RowMaker& maker);
    static void numberOverTheTable(Table& table);

    const Pools& pools_;
    std::vector<SetRecipe> recipes_;
    std::vector<Table> tables_;
    std::array<Indexes, types> curriculum_;
    std::array<Indexes, types> application_;
    std::array<Indexes, types> progress_;
    std::array<Indexes, types> closing_;
};

} // namespace quillmere::sample

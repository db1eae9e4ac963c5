// Any condition of a query: the adapter, which keeps queries without their texts and puts the texts back in,
// gives the rows that the engine gives to the statement as it stands.

#include "support/Chance.h"
#include "support/Fuzzing.h"
#include "support/WatchedEngine.h"

#include "platform/data/RowSet.h"

#include <optional>

namespace {

namespace fuzz = quillmere::fuzz;
using fuzz::hold;

/// None when the engine's own interface would show a value otherwise: a real with other digits, a text up to
/// a zero.
std::optional<std::string> linesOf(const quillmere::data::RowSet& rows) {
    std::string lines;
    for (std::size_t row = 0; row < rows.rowCount(); ++row) {
        for (const auto& value : rows.row(row)) {
            const std::string shown = value.isNull() ? "(null)" : value.toText();
            if (value.isReal() || shown.find('\0') != std::string::npos) return std::nullopt;
            lines.append(shown).append("|");
        }
        lines.append("\n");
    }
    return lines;
}

constexpr std::string_view items = "select A00,A0203,A0299 from A02 where ";

} // namespace

/// Two conditions, a line each; the second is asked for when the first is kept.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input input(data, size);
    fuzz::WatchedEngine engine;
    engine.directly("create table A02 (A00 text collate nocase, A0203 text, A0299 integer);"
                    "insert into A02 values('{1}','甲',1),('{2}','乙',2),('{3}',null,null),('{a}','','3')");
    for (int i = 0; i < 2; ++i) {
        const std::string condition = input.line();
        if (fuzz::mayDiffer(condition)) continue;
        const std::string sql = std::string(items) + condition;
        std::optional<std::string> given;
        const auto failure = fuzz::failureOf([&] { given = linesOf(engine.connection().query(sql)); });
        if (failure || !given) continue;
        const auto direct = engine.tryDirectly(sql);
        hold(!direct || *direct == given, "the adapter gives the rows that the engine gives");
    }
    return 0;
}

// Any text as a statement: the adapter for SQLite runs exactly one, or none.

#include "support/Fuzzing.h"
#include "support/WatchedEngine.h"

namespace {

using quillmere::fuzz::hold;

bool isEnd(std::string_view text) { return text.find_first_not_of(" \t\r\n\f;") == std::string_view::npos; }

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    namespace fuzz = quillmere::fuzz;
    const std::string sql = fuzz::Input(data, size).rest();
    fuzz::WatchedEngine engine;
    engine.directly("create table A02 (A00 text collate nocase, A0203 text, A0299 integer, A0298 boolean);"
                    "insert into A02 values('{1}','甲',1,true),('{2}','乙',2,false)");
    const auto failure = fuzz::failureOf([&] { (void)engine.connection().query(sql); });
    hold(engine.ran().size() <= 1, "a call runs one statement at most");
    hold(failure || engine.ran().size() == 1, "a call that succeeds has run a statement");
    if (engine.ran().empty()) return 0;
    const std::string& first = engine.ran().front();
    hold(sql.starts_with(first) && isEnd(std::string_view(sql).substr(first.size())),
         "when a statement runs there is nothing behind it");
    return 0;
}

// Any texts in the statement that changes one row: on SQLite no other row changes.

#include "support/Fuzzing.h"
#include "support/WatchedEngine.h"

/// A line with the text of one column, and the text of the next.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    namespace fuzz = quillmere::fuzz;
    fuzz::Input input(data, size);
    const std::string first = input.line();
    const std::string second = input.rest();

    fuzz::WatchedEngine engine;
    engine.directly("create table P02 (A00 text collate nocase, P0203 text, P0204 text);"
                    "insert into P02 values('{1}','a','b'),('{2}','c','d'),('{3}','e','f')");
    const std::string others = "select rowid,* from P02 where rowid<>1 order by rowid";
    const std::string before = engine.directly(others);
    const auto failure = fuzz::failureOf([&] {
        engine.connection().execute("update P02 set P0203='" + first + "',P0204='" + second +
                                    "' where A00='{1}'");
    });
    fuzz::hold(engine.directly(others) == before, "a change of one row changes no other");
    const bool plain = (first + second).find_first_of(std::string("'\0", 2)) == std::string::npos;
    fuzz::hold(!plain || !failure, "texts without a quote are stored");
    if (plain && fuzz::isUtf8(first + second)) {
        fuzz::hold(engine.directly("select P0203,P0204 from P02 where rowid=1") ==
                       first + "|" + second + "|\n",
                   "as they are");
    }
    return 0;
}

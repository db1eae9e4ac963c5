// What the system adds to the time that the engine needs for the same statements. Exits with 1 when a
// statement too many, or too few, is sent; the times are printed and judged by whoever reads them.

#include "BareSqlite.h"
#include "CodeSelector.h"
#include "OpenRecord.h"
#include "RecordWork.h"
#include "Window.h"
#include "adapters/sqlite/SqliteConnection.h"
#include "sample/SampleRegister.h"
#ifdef QUILLMERE_WITH_POSTGRESQL
#include "postgresql/BareServer.h"
#include "quillmere/PostgreSql.h"
#include "sample/postgresql/OutputDatabase.h"
#endif

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace {

/// A folder that goes with its contents.
class WorkFolder {
public:
    WorkFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "quillmere-bench-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no folder to work in");
        path_ = pattern;
    }
    ~WorkFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    [[nodiscard]] std::string file(const char* name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};

using Recorded = std::shared_ptr<quillmere::data::RecordingConnection>;

/// What a clerk does in the window, on whatever engine.
void measureWindow(const Recorded& connection, quillmere::bench::BareEngine& engine) {
    using namespace quillmere;
    connection->keepStatements(false);
    const auto first = [&connection](const char* query) {
        return connection->query(query).at(0, std::size_t{0}).toText();
    };
    bench::withWindow(connection, first("select A00 from A01 order by A0199"), [&](frmPersonWh& window) {
        bench::measureOpenRecord(window, *connection, engine);
        bench::measureMenu(window, *connection, engine);
    });
    // In a later stage records are locked.
    const std::string open = first("select A01.A00 from A01 join P01 on P01.A00=A01.A00 where P0123='01' and "
                                   "A01.A00 in (select A00 from A02) order by A0199");
    bench::withWindow(connection, open, [&](frmPersonWh& window) {
        bench::measureGrid(window, *connection, engine);
        bench::measureSave(window, *connection, engine);
    });
}

void measure(const std::string& path, std::size_t keptQueries) {
    using namespace quillmere;
    const auto connection =
        std::make_shared<data::RecordingConnection>(sqlite::open({.path = path, .keptQueries = keptQueries}));
    bench::BareSqlite engine(path);
    measureWindow(connection, engine);
    bench::measureCodeSelector(connection, engine);
}

/// On the sample register, which is made in the database of that address. Raises when it holds tables.
void measureServer(const std::string& address) {
#ifdef QUILLMERE_WITH_POSTGRESQL
    using namespace quillmere;
    (void)sample::buildDatabase(address, {}, false);
    bench::BareServer engine(address);
    measureWindow(std::make_shared<data::RecordingConnection>(openPostgreSql(address)), engine);
#else
    throw std::runtime_error("built without PostgreSQL: " + address);
#endif
}

/// The bare engine compiles each statement anew; so does the system when it keeps none.
void measureAll() {
    using namespace quillmere;
    const WorkFolder folder;
    const std::string path = folder.file("register.db");
    {
        const auto building = sqlite::open({.path = path, .create = true});
        sample::build(*building, {});
        bench::addLargeCodeTables(*building);
    }
    const sqlite::OpenOptions defaults;
    std::printf("as it is used, the last %zu queries kept compiled\n", defaults.keptQueries);
    measure(path, defaults.keptQueries);
    std::printf("without any query kept compiled\n");
    measure(path, 0);
}

} // namespace

// Without arguments on SQLite; "--database postgresql:URI" on a server.
int main(int count, char** arguments) {
    constexpr std::string_view server = "postgresql:";
    try {
        if (count == 1) {
            measureAll();
        } else if (count == 3 && std::string_view(arguments[1]) == "--database" &&
                   std::string_view(arguments[2]).starts_with(server)) {
            measureServer(arguments[2] + server.size());
        } else {
            std::fprintf(stderr, "usage: quillmere-bench [--database postgresql:URI]\n");
            return 2;
        }
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "quillmere-bench: %s\n", failure.what());
        return 1;
    }
    return 0;
}

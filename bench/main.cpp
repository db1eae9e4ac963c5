// What the system adds to the time that the engine needs for the same statements. Exits with 1 when a
// statement too many, or too few, is sent; the times are printed and judged by whoever reads them.

#include "BareEngine.h"
#include "CodeSelector.h"
#include "OpenRecord.h"
#include "Window.h"
#include "adapters/sqlite/SqliteConnection.h"
#include "sample/SampleRegister.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

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

void measure(const std::string& path, std::size_t keptQueries) {
    using namespace quillmere;
    auto connection =
        std::make_shared<data::RecordingConnection>(sqlite::open({.path = path, .keptQueries = keptQueries}));
    connection->keepStatements(false);
    const std::string personID =
        connection->query("select A00 from A01 order by A0199").at(0, std::size_t{0}).toText();

    bench::BareEngine engine(path);
    bench::withWindow(connection, personID, [&](frmPersonWh& window) {
        bench::measureOpenRecord(window, *connection, engine);
        bench::measureMenu(window, *connection, engine);
    });
    bench::measureCodeSelector(connection, engine);
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

int main() {
    try {
        measureAll();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "quillmere-bench: %s\n", failure.what());
        return 1;
    }
    return 0;
}

#include "Registers.h"

#include "BareSqlite.h"
#include "BenchData.h"
#include "adapters/sqlite/SqliteConnection.h"
#include "sample/OutputFile.h"
#include "sample/SampleRegister.h"
#ifdef QUILLMERE_WITH_POSTGRESQL
#include "postgresql/BareServer.h"
#include "quillmere/PostgreSql.h"
#include "sample/postgresql/OutputDatabase.h"
#endif

#include <cstdio>
#include <stdexcept>

namespace quillmere::bench {

namespace {

sample::Options optionsFor(std::size_t persons) {
    sample::Options options;
    options.persons = static_cast<int>(persons);
    return options;
}

void makeFile(const std::string& path, std::size_t persons) {
    std::fprintf(stderr, "making a register of %zu persons in %s\n", persons, path.c_str());
    sample::fillFile(path, false, [&](const auto& connection) {
        sample::build(*connection, optionsFor(persons));
        addLists(*connection);
        addCodeTables(*connection);
    });
}

Register openFile(const Source& source, std::size_t persons) {
    const std::string path = source.folder / ("persons-" + std::to_string(persons) + ".db");
    if (!std::filesystem::exists(path)) makeFile(path, persons);
    return {persons,
            std::make_shared<data::RecordingConnection>(
                sqlite::open({.path = path, .keptQueries = source.keptQueries})),
            std::make_shared<BareSqlite>(path)};
}

#ifdef QUILLMERE_WITH_POSTGRESQL
Register openServer(const std::string& address, std::size_t persons) {
    addLists(*sample::buildDatabase(address, optionsFor(persons), false));
    return {persons, std::make_shared<data::RecordingConnection>(openPostgreSql(address)),
            std::make_shared<BareServer>(address)};
}
#else
Register openServer(const std::string& address, std::size_t /*persons*/) {
    throw std::runtime_error("built without PostgreSQL: " + address);
}
#endif

} // namespace

Register openRegister(const Source& source, std::size_t persons) {
    Register opened = source.server.empty() ? openFile(source, persons) : openServer(source.server, persons);
    opened.connection->keepStatements(false);
    return opened;
}

} // namespace quillmere::bench

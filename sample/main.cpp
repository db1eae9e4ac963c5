#include "adapters/sqlite/SqliteConnection.h"
#include "platform/Error.h"
#include "sample/Arguments.h"
#include "sample/OutputFile.h"
#include "sample/photos/PhotoFolder.h"
#ifdef QUILLMERE_WITH_POSTGRESQL
#include "sample/postgresql/OutputDatabase.h"
#endif

#include <cstdlib>
#include <exception>
#include <iostream>
#include <memory>

namespace {

constexpr int usageStatus = 2;

/// Makes the register that is asked for, and connects to it.
std::shared_ptr<quillmere::data::Connection> buildRegister(const quillmere::sample::Arguments& arguments) {
    using namespace quillmere::sample;
    if (!arguments.database.empty()) {
#ifdef QUILLMERE_WITH_POSTGRESQL
        return buildDatabase(arguments.database, arguments.options, arguments.force);
#else
        throw UsageError("PostgreSQL is not built in");
#endif
    }
    buildFile(arguments.output, arguments.options, arguments.force);
    return quillmere::sqlite::open({.path = arguments.output, .writeAheadLog = false});
}

int run(const std::vector<std::string>& words) {
    using namespace quillmere::sample;
    const Arguments arguments = parseArguments(words);
    if (arguments.help) {
        std::cout << helpText();
        return EXIT_SUCCESS;
    }
    const auto made = buildRegister(arguments);
    if (!arguments.photos.empty()) writePhotos(*made, arguments.photos);
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run({argv + (argc > 0 ? 1 : 0), argv + argc});
    } catch (const quillmere::sample::UsageError& error) {
        std::cerr << "quillmere-sample: " << error.what() << "\n\n" << quillmere::sample::helpText();
        return usageStatus;
    } catch (const std::exception& error) {
        std::cerr << "quillmere-sample: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}

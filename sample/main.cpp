#include "adapters/sqlite/SqliteConnection.h"
#include "platform/Error.h"
#include "sample/Arguments.h"
#include "sample/OutputFile.h"
#include "sample/photos/PhotoFolder.h"

#include <cstdlib>
#include <exception>
#include <iostream>

namespace {

constexpr int usageStatus = 2;

int run(const std::vector<std::string>& words) {
    using namespace quillmere::sample;
    const Arguments arguments = parseArguments(words);
    if (arguments.help) {
        std::cout << helpText();
        return EXIT_SUCCESS;
    }
    buildFile(arguments.output, arguments.options, arguments.force);
    if (!arguments.photos.empty()) {
        writePhotos(*quillmere::sqlite::open({.path = arguments.output, .writeAheadLog = false}),
                    arguments.photos);
    }
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

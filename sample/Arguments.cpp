#include "sample/Arguments.h"

#include <charconv>
#include <limits>
#include <set>

namespace quillmere::sample {
namespace {

template <typename Number>
Number numberOf(const std::string& option, const std::string& value, Number highest) {
    Number number{};
    const char* end = value.data() + value.size();
    const auto [stop, error] = std::from_chars(value.data(), end, number);
    if (error != std::errc{} || stop != end || number < Number{0} || number > highest) {
        throw UsageError(option + " takes a whole number from 0 to " + std::to_string(highest) + ", not '" +
                         value + "'");
    }
    return number;
}

constexpr int mostRecords = 1000000;

} // namespace

Arguments parseArguments(const std::vector<std::string>& arguments) {
    Arguments result;
    std::set<std::string> seen;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& option = arguments[i];
        const auto value = [&]() -> const std::string& {
            if (i + 1 == arguments.size()) throw UsageError(option + " needs a value");
            return arguments[++i];
        };
        if (!seen.insert(option).second) throw UsageError(option + " is given twice");
        if (option == "--help" || option == "-h") {
            result.help = true;
        } else if (option == "--force") {
            result.force = true;
        } else if (option == "--empty") {
            result.options.people = false;
        } else if (option == "--output") {
            result.output = value();
        } else if (option == "--database") {
            result.database = value();
        } else if (option == "--photos") {
            result.photos = value();
        } else if (option == "--persons") {
            result.options.persons = numberOf(option, value(), mostRecords);
        } else if (option == "--units") {
            result.options.units = numberOf(option, value(), mostRecords);
        } else if (option == "--seed") {
            result.options.seed = numberOf(option, value(), std::numeric_limits<std::uint64_t>::max());
        } else {
            throw UsageError("unknown option '" + option + "'");
        }
    }
    if (result.help) return result;
    if (result.output.empty() && result.database.empty()) throw UsageError("--output is missing");
    if (!result.output.empty() && !result.database.empty())
        throw UsageError("--output and --database exclude each other");
    return result;
}

std::string_view helpText() {
    return "usage: quillmere-sample --output FILE [--persons N] [--units N] [--seed N] [--photos DIR]\n"
           "                        [--empty] [--force]\n"
           "       quillmere-sample --database ADDRESS [the same]\n"
           "\n"
           "Makes a sample register in an SQLite file, or in a database on a PostgreSQL server: the\n"
           "catalogue, the code tables, and made-up people, units and projects.\n"
           "\n"
           "  --output FILE   the file to make\n"
           "  --database postgresql://ROLE@SERVER/DATABASE\n"
           "                  instead: the database; its schema data is filled\n"
           "  --persons N     how many people, up to a million (200)\n"
           "  --units N       how many units, up to a million (20)\n"
           "  --seed N        another number makes other people (20260115)\n"
           "  --photos DIR    leaves portraits of one person in three there\n"
           "  --empty         the catalogue and the code tables alone\n"
           "  --force         replaces a file, or a schema data, that is there\n"
           "  --help          this text\n";
}

} // namespace quillmere::sample

#include "Options.h"

#include "platform/convert/PlainNumber.h"

#include <stdexcept>

namespace quillmere::bench {

namespace {

std::size_t numberOf(std::string_view text) {
    const auto number = convert::plainNumber<std::size_t>(text);
    if (!number) throw std::invalid_argument("not a number: " + std::string(text));
    return *number;
}

std::vector<std::size_t> numbersOf(std::string_view list) {
    std::vector<std::size_t> numbers;
    while (true) {
        const std::size_t comma = list.find(',');
        numbers.push_back(numberOf(list.substr(0, comma)));
        if (comma == std::string_view::npos) return numbers;
        list.remove_prefix(comma + 1);
    }
}

std::string addressOf(const std::string& text) {
    constexpr std::string_view server = "postgresql:";
    if (!text.starts_with(server)) throw std::invalid_argument("not an address of a server: " + text);
    return text.substr(server.size());
}

} // namespace

Options parseOptions(const std::vector<std::string>& arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& option = arguments[i];
        const auto value = [&]() -> const std::string& {
            if (i + 1 == arguments.size()) throw std::invalid_argument(option + " needs a value");
            return arguments[++i];
        };
        if (option == "--registers")
            options.registers = value();
        else if (option == "--persons")
            options.persons = numbersOf(value());
        else if (option == "--database")
            options.server = addressOf(value());
        else if (option == "--json")
            options.json = value();
        else if (option == "--kept-queries")
            options.keptQueries = numberOf(value());
        else if (option == "--smoke")
            options.smoke = true;
        else if (option == "--help")
            options.help = true;
        else if (option.starts_with("--benchmark_"))
            options.others.push_back(option);
        else
            throw std::invalid_argument("unknown option " + option);
    }
    // A server has one register at a time.
    if (!options.server.empty() && options.persons.size() > 1)
        throw std::invalid_argument("--database takes one number of persons");
    return options;
}

std::string_view helpText() {
    return "[--registers FOLDER] [--persons N,N...] [--json FILE] [--smoke] ...\n"
           "\n"
           "  --registers FOLDER  keeps the registers that it makes there, and uses those that are there\n"
           "  --persons N,N...    the sizes of the registers (1000)\n"
           "  --database postgresql:URI\n"
           "                      on a server, in a database without tables, instead of SQLite files\n"
           "  --json FILE         leaves the results there as well\n"
           "  --kept-queries N    how many queries the system keeps compiled, 0 for none (128)\n"
           "  --smoke             every case once, to see that it works\n"
           "  --benchmark_...     the options of Google Benchmark, as --benchmark_filter=open\n";
}

} // namespace quillmere::bench

#include "Arrows.h"

#include <algorithm>
#include <array>
#include <regex>
#include <sstream>

namespace quillmere::architecture {
namespace {

struct Layer {
    std::string_view name;
    /// The layers it may include, besides itself.
    std::vector<std::string_view> below;
    /// Headers that are not of the standard library; a pattern, empty for none.
    std::string_view product;
};

const std::vector<Layer>& layers() {
    static const std::vector<Layer> rows{
        {"vocabulary", {}, ""},
        {"quillmere", {}, ""},
        {"platform", {}, ""},
        {"metadata", {"platform"}, ""},
        {"binding", {"platform", "metadata"}, ""},
        {"photos", {"platform", "metadata"}, ""},
        {"panels", {"platform", "metadata", "binding", "photos"}, ""},
        {"save", {"platform", "metadata", "binding", "photos", "panels"}, ""},
        {"shell", {"platform", "metadata", "binding", "photos", "panels", "save", "quillmere"}, ""},
        {"component",
         {"platform", "metadata", "binding", "photos", "panels", "save", "shell", "quillmere"},
         "windows\\.h|oleauto\\.h|olectl\\.h|dlfcn\\.h|fcntl\\.h|unistd\\.h|sys/stat\\.h"},
        {"quillmere.h", {}, "stdint\\.h"},
        {"cinterface", {"platform", "quillmere", "quillmere.h"}, ""},
        {"adapters/sqlite", {"platform", "quillmere"}, "sqlite3\\.h"},
        {"adapters/postgresql", {"platform", "quillmere"}, "libpq-fe\\.h|postgresql/libpq-fe\\.h"},
        {"adapters/journal", {"platform", "quillmere"}, "fcntl\\.h|unistd\\.h|sys/file\\.h|sys/stat\\.h"},
        {"adapters/qt", {"platform", "quillmere"}, "Q[A-Z]\\w*|Qt\\w+/\\w+(\\.h)?"},
    };
    return rows;
}

/// Each between blanks.
constexpr std::string_view standardHeaders =
    " algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono"
    " cinttypes climits clocale cmath codecvt compare complex concepts condition_variable coroutine"
    " csetjmp csignal cstdarg cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype deque"
    " exception execution filesystem format forward_list fstream functional future initializer_list"
    " iomanip ios iosfwd iostream istream iterator latch limits list locale map memory memory_resource"
    " mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator"
    " semaphore set shared_mutex source_location span sstream stack stdexcept stop_token streambuf"
    " string string_view strstream syncstream system_error thread tuple type_traits typeindex typeinfo"
    " unordered_map unordered_set utility valarray variant vector version"
    " ";

/// Public headers with what hosts and the system talk to each other about; every layer may include them.
constexpr std::array<std::string_view, 5> vocabulary{"quillmere/Connection.h", "quillmere/Error.h",
                                                     "quillmere/RowSet.h", "quillmere/Value.h",
                                                     "quillmere/Version.h"};

const Layer* findLayer(std::string_view name) {
    const auto found = std::find_if(layers().begin(), layers().end(),
                                    [&](const Layer& layer) { return layer.name == name; });
    return found == layers().end() ? nullptr : &*found;
}

bool isStandard(const std::string& header) {
    return standardHeaders.find(" " + header + " ") != std::string_view::npos;
}

bool isProductOf(const Layer& layer, const std::string& header) {
    return !layer.product.empty() && std::regex_match(header, std::regex(std::string(layer.product)));
}

/// Why `layer` may not include `header`, whatever it is quoted with; empty when it may.
std::string objection(const Layer& layer, const std::string& header, bool angled) {
    const std::string_view target = layerOf(header);
    if (!target.empty()) {
        if (target == layer.name || target == "vocabulary" ||
            std::ranges::find(layer.below, target) != layer.below.end())
            return "";
        return std::string(layer.name) + " may not include " + std::string(target);
    }
    if (!angled) return "\"" + header + "\" is not written relative to src/, or is of no known layer";
    if (isStandard(header) || isProductOf(layer, header)) return "";
    return std::string(layer.name) + " may not include <" + header + ">";
}

std::string_view withoutRoot(std::string_view path) {
    for (const std::string_view root : {"src/", "include/"})
        if (path.starts_with(root)) return path.substr(root.size());
    return path;
}

} // namespace

std::string_view layerOf(std::string_view path) {
    if (std::ranges::find(vocabulary, path) != vocabulary.end()) return "vocabulary";
    for (const Layer& layer : layers())
        if (path == layer.name ||
            (path.starts_with(layer.name) && path.substr(layer.name.size()).starts_with('/')))
            return layer.name;
    return {};
}

std::vector<Breach> breachesIn(std::string_view path, std::string_view text) {
    static const std::regex include(R"(^\s*#\s*include\s*(["<])([^">]+)[">].*)");
    static const std::regex anyInclude(R"(^\s*#\s*include\b.*)");
    const Layer* layer = findLayer(layerOf(withoutRoot(path)));
    if (layer == nullptr) return {{std::string(path), 1, "a file outside every known layer"}};

    std::vector<Breach> breaches;
    std::istringstream lines{std::string(text)};
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        if (!std::regex_match(line, anyInclude)) continue;
        std::smatch match;
        const std::string reason = std::regex_match(line, match, include)
                                       ? objection(*layer, match[2], match[1] == "<")
                                       : "an include whose header cannot be read off";
        if (!reason.empty()) breaches.push_back({std::string(path), number, reason});
    }
    return breaches;
}

} // namespace quillmere::architecture

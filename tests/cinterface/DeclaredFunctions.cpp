#include "cinterface/DeclaredFunctions.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>

namespace quillmere::cinterface {

namespace {

std::string header() {
    std::ifstream file(QUILLMERE_SOURCE_DIR "/include/quillmere.h");
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

std::vector<std::string> functionsBeginningWith(const std::vector<std::string>& arguments) {
    static const std::regex declaration(R"(QUILLMERE_API quillmere_status\s+(\w+)\(([^)]*)\))");
    std::vector<std::string> names;
    const std::string text = header();
    for (auto found = std::sregex_iterator(text.begin(), text.end(), declaration);
         found != std::sregex_iterator(); ++found) {
        const std::string given = (*found)[2];
        if (std::ranges::any_of(arguments, [&](const auto& each) { return given.starts_with(each); }))
            names.push_back((*found)[1]);
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::string> declaredFunctions() { return functionsBeginningWith({""}); }

} // namespace quillmere::cinterface

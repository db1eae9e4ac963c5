#include "regression/Fuzzers.h"
#include "support/Fuzzing.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

// The inputs that are kept, seeds and findings of old, without a fuzzing engine.

namespace quillmere::fuzz {
namespace {

namespace fs = std::filesystem;

std::string contentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class Corpus : public testing::TestWithParam<Fuzzer> {
protected:
    static void run(const std::string& content) {
        GetParam().run(reinterpret_cast<const std::uint8_t*>(content.data()), content.size());
    }
};

TEST_P(Corpus, EveryKeptInputHoldsItsProperties) {
    std::set<fs::path> inputs;
    for (const auto& entry : fs::directory_iterator(fs::path(QUILLMERE_CORPUS) / GetParam().name))
        inputs.insert(entry.path());
    ASSERT_FALSE(inputs.empty());
    for (const fs::path& input : inputs) {
        SCOPED_TRACE(input.filename());
        try {
            run(contentOf(input));
        } catch (const Broken& broken) {
            ADD_FAILURE() << broken.property;
        }
    }
}

TEST_P(Corpus, TheEmptyInputHoldsTheProperties) {
    try {
        run({});
    } catch (const Broken& broken) {
        FAIL() << broken.property;
    }
}

INSTANTIATE_TEST_SUITE_P(Of, Corpus, testing::ValuesIn(fuzzers().begin(), fuzzers().end()),
                         [](const auto& tested) { return std::string(tested.param.name); });

} // namespace
} // namespace quillmere::fuzz

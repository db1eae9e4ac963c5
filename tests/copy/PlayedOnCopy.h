#pragma once

#include "MovedEngine.h"

#include "scenario/ModelToolkit.h"
#include "scenario/Runner.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

namespace quillmere::copy::test {

/// Scripts that save, delete, renumber and show rows of the sample register, asking for it once each.
inline constexpr std::array scripts{"main-job/new-unit", "window/record-list", "window/delete-person",
                                    "window/code-selector"};

[[nodiscard]] inline std::string contentOf(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << file;
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Plays the script on a copied register; its transcript is the delivered one.
inline void expectItPlaysAlike(const std::string& name, MovedEngine& engine) {
    const std::string path = std::string(QUILLMERE_SOURCE_DIR) + "/tests/scenarios/" + name;
    scenario::ModelToolkit toolkit;
    std::ostringstream transcript;
    std::ostringstream complaints;
    const scenario::Status status =
        scenario::playScript(contentOf(path + ".scn"), name, {toolkit, engine}, "", transcript, complaints);
    EXPECT_EQ(status, scenario::Status::Held) << complaints.str();
    EXPECT_EQ(transcript.str(), contentOf(path + ".out")) << name;
    EXPECT_EQ(engine.moves(), 1) << name;
}

} // namespace quillmere::copy::test

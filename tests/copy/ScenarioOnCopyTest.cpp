#include "CopyBench.h"
#include "PlayedOnCopy.h"

#include <quillmere/Sqlite.h>

namespace quillmere::copy::test {
namespace {

class ScenarioOnCopy : public testing::TestWithParam<const char*> {};

TEST_P(ScenarioOnCopy, PlaysAlike) {
    const Folder folder;
    MovedEngine engine(folder.file("first.db"), [&folder](const std::string& file) {
        EXPECT_EQ(run({file, folder.file("second.db")}).status, Status::Copied);
        return openSqlite(folder.file("second.db"));
    });
    expectItPlaysAlike(GetParam(), engine);
}

INSTANTIATE_TEST_SUITE_P(Scripts, ScenarioOnCopy, testing::ValuesIn(scripts));

} // namespace
} // namespace quillmere::copy::test

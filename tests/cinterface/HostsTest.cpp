#include "cinterface/Host.h"
#include "cinterface/Program.h"

// The example hosts where there is nothing to show: what they print, and how they end. What a clerk does in
// the windows that they open is played on a screen of its own.

namespace quillmere::cinterface {
namespace {

struct ExampleHost {
    const char* name;
    std::string command;
};

std::ostream& operator<<(std::ostream& stream, const ExampleHost& host) { return stream << host.name; }

class ExampleHosts : public testing::TestWithParam<ExampleHost> {
protected:
    void SetUp() override {
#ifdef QUILLMERE_SANITIZED
        if (std::string(GetParam().name) == "Python")
            GTEST_SKIP() << "an interpreter without sanitizers cannot load a library with them";
#endif
    }

    static Ended runHost(const std::string& words) { return run(GetParam().command + " " + words); }
};

TEST_P(ExampleHosts, TellWhatIsWrongWithTheRegister) {
    const Ended ended = runHost("/nowhere/人才.db 1 1");
    EXPECT_EQ(1, ended.status);
    EXPECT_EQ("SQLite 53: 找不到数据库文件：/nowhere/人才.db\n", ended.output);
}

TEST_P(ExampleHosts, TellThatATypeIsOutOfRange) {
    const RegisterFile file;
    const Ended ended = runHost("'" + file.path() + "' " + file.person() + " 70000");
    EXPECT_EQ(1, ended.status);
    EXPECT_EQ("Quillmere 6: 溢出\n", ended.output);
}

TEST_P(ExampleHosts, TellThatThereIsNoDisplay) {
    const RegisterFile file;
    const Ended ended = run("env -u DISPLAY -u WAYLAND_DISPLAY -u XDG_RUNTIME_DIR QT_QPA_PLATFORM=xcb " +
                            GetParam().command + " '" + file.path() + "' " + file.person() + " 1");
    EXPECT_EQ(1, ended.status);
    EXPECT_EQ("Quillmere 5: 没有可以使用的显示器，不能显示窗口。\n", ended.output);
}

TEST_P(ExampleHosts, TellHowTheyAreCalled) {
    const Ended ended = runHost("");
    EXPECT_EQ(1, ended.status);
    EXPECT_EQ(0U, ended.output.find("usage: ")) << ended.output;
}

INSTANTIATE_TEST_SUITE_P(, ExampleHosts,
                         testing::Values(ExampleHost{"C", C_HOST},
                                         ExampleHost{"Python", "LD_LIBRARY_PATH=" QUILLMERE_C_FOLDER
                                                               " " PYTHON " -B " PYTHON_HOST}),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace quillmere::cinterface

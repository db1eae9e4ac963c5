#include "ServerFolder.h"

#include "adapters/sqlite/SqliteConnection.h"
#include "sample/SampleRegister.h"

#include <gtest/gtest.h>

// The server driven by a program that knows it by name alone, with three toolkits beside it.

namespace quillmere::component::test {
namespace {

namespace fs = std::filesystem;

/// The host, run on a sample register with a server that has this toolkit.
class Hosting {
public:
    explicit Hosting(const fs::path& toolkit) : server(toolkit) {
        sqlite::OpenOptions options;
        options.path = database();
        options.create = true;
        connection = sqlite::open(options);
        sample::build(*connection, {});
        person = cell("select A00 from A01 where A0136='02' order by A0199");
    }

    [[nodiscard]] std::string database() const { return (server.home().path() / "register.db").string(); }
    [[nodiscard]] std::string cell(std::string_view sql) const {
        const auto rows = connection->query(sql);
        return rows.empty() ? "" : rows.at(0, 0).toTextOrEmpty();
    }
    [[nodiscard]] Outcome maintain(const std::string& arguments) const {
        // Qt's own remarks on the platform without a screen are not the host's.
        return run("QT_LOGGING_RULES='*=false' '" NAME_HOST "' '" + database() + "' " + arguments);
    }

    ServerFolder server;
    std::shared_ptr<data::Connection> connection;
    std::string person;
};

void expectBothResults(const Hosting& hosting) {
    ASSERT_FALSE(hosting.person.empty());
    const Outcome saved = hosting.maintain(hosting.person + " 2 4");
    EXPECT_EQ(saved.output, "saved\n");
    EXPECT_EQ(saved.code, 0);
    const Outcome nothing = hosting.maintain(hosting.person + " 2 7");
    EXPECT_EQ(nothing.output, "nothing saved\n");
    EXPECT_EQ(nothing.code, 0);
}

TEST(NameHost, SavesThroughTheWindowOfAToolkitWithoutAScreen) {
    expectBothResults(Hosting(TOOLKITS "/screenless/quillmere-toolkit.so"));
}

TEST(NameHost, ABrokenCatalogueComesOutAsNumberSourceAndDescription) {
    const Hosting hosting(TOOLKITS "/screenless/quillmere-toolkit.so");
    hosting.connection->execute("drop table TS_SetCustomize");
    const Outcome outcome = hosting.maintain(hosting.person + " 2");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.output.starts_with("-2147217900 SQLite: ")) << outcome.output;
    EXPECT_NE(outcome.output.find("TS_SetCustomize"), std::string::npos) << outcome.output;
}

TEST(NameHost, AnArgumentThatDoesNotFitIsTold) {
    const Hosting hosting(TOOLKITS "/screenless/quillmere-toolkit.so");
    const Outcome outcome = hosting.maintain(hosting.person + " 40000");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_NE(outcome.output.find("8002000A"), std::string::npos) << outcome.output;
}

TEST(NameHost, WithoutAToolkitIsToldSo) {
    const Hosting hosting({});
    const Outcome outcome = hosting.maintain(hosting.person + " 2");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.output, "429 Quillmere: 组件旁边没有界面工具包（quillmere-toolkit），不能显示窗口。\n");
}

TEST(NameHost, AToolkitThatCannotBeLoadedIsTold) {
    const Hosting hosting("/dev/null");
    const Outcome outcome = hosting.maintain(hosting.person + " 2");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.output.starts_with("429 Quillmere: 界面工具包不能加载：")) << outcome.output;
}

TEST(NameHost, WithoutARegistrationIsToldSo) {
    const DataHome home;
    const Outcome outcome = run("'" NAME_HOST "' register.db x 2");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.output, "429 Quillmere: 没有注册名为 Quillmere.IUserCtrl 的组件。\n");
}

#ifdef WITH_QT
TEST(NameHost, SavesThroughARealWindow) {
    expectBothResults(Hosting(TOOLKITS "/companion/quillmere-toolkit.so"));
}

TEST(NameHost, AFailureLeavesTheRealToolkit) {
    const Hosting hosting(QT_TOOLKIT);
    hosting.connection->execute("drop table TS_SetCustomize");
    const Outcome outcome = hosting.maintain(hosting.person + " 2");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.output.starts_with("-2147217900 SQLite: ")) << outcome.output;
}
#endif

TEST(Regsvr, RegistersAServerAndTakesItBack) {
    const DataHome home;
    EXPECT_EQ(run("'" REGSVR "' '" SERVER "'").output, "");
    EXPECT_TRUE(fs::exists(home.file()));
    EXPECT_EQ(run("'" REGSVR "' -u '" SERVER "'").code, 0);
    EXPECT_FALSE(fs::exists(home.file()));
}

TEST(Regsvr, TellsWhatIsNoServer) {
    const DataHome home;
    EXPECT_EQ(run("'" REGSVR "'").code, 2);
    const Outcome missing = run("'" REGSVR "' /nowhere/server.so");
    EXPECT_EQ(missing.code, 1);
    EXPECT_NE(missing.output.find("/nowhere/server.so"), std::string::npos);
}

TEST(Regsvr, TellsWhyARegistrationIsRefused) {
    const DataHome home;
    fs::create_directories(home.folder());
    fs::permissions(home.folder(), fs::perms::all);
    const Outcome outcome = run("'" REGSVR "' '" SERVER "'");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_NE(outcome.output.find("其他用户可以修改"), std::string::npos) << outcome.output;
    EXPECT_FALSE(fs::exists(home.file()));
}

} // namespace
} // namespace quillmere::component::test

#include "../support/FailureNumber.h"
#include "SqliteFolder.h"
#include "adapters/sqlite/SqliteConnection.h"
#include "quillmere/Sqlite.h"

#include <fstream>

namespace quillmere::sqlite {
namespace {

class OpenRegister : public SqliteFolder {
protected:
    /// A register as far as opening looks: the table of the information sets is there.
    void makeRegister(const std::string& table = "s_infotable") const {
        const auto connection = open({.path = path(), .create = true});
        connection->execute("create table " + table + " (tblname text collate nocase primary key)");
        connection->execute("insert into " + table + " values('A01')");
    }

    void expectFailure(const std::string& file, Failure failure, const std::string& description) const {
        try {
            (void)openSqlite(file);
            ADD_FAILURE() << "nothing was raised";
        } catch (const Error& error) {
            EXPECT_EQ(error.number(), number(failure));
            EXPECT_EQ(error.description(), description);
        }
    }
};

TEST_F(OpenRegister, ARegisterIsReadAndWritten) {
    makeRegister();
    const auto connection = openSqlite(path());
    connection->execute("insert into s_infotable values('A02')");
    EXPECT_EQ(connection->query("select * from s_infotable").rowCount(), 2U);
}

TEST_F(OpenRegister, TheNameOfTheCatalogueIsReadWithoutRegardToCase) {
    makeRegister("S_InfoTable");
    EXPECT_TRUE(openSqlite(path())->isOpen());
}

TEST_F(OpenRegister, AStatementWaitsFiveSecondsForAnotherProgram) {
    makeRegister();
    EXPECT_EQ(openSqlite(path())->query("pragma busy_timeout").at(0, 0), data::Value(5000));
}

TEST_F(OpenRegister, AMissingFileIsToldAndNotMade) {
    expectFailure(path(), Failure::FileNotFound, "找不到数据库文件：" + path());
    EXPECT_FALSE(std::filesystem::exists(path()));
}

TEST_F(OpenRegister, AFileThatIsNoDatabaseIsTold) {
    std::ofstream(path()) << std::string(4096, 'x');
    expectFailure(path(), Failure::Unspecified, "文件不是数据库：file is not a database");
}

TEST_F(OpenRegister, ADatabaseThatIsNoRegisterIsTold) {
    makeRegister("other");
    expectFailure(path(), Failure::Unspecified, "数据库中没有人才信息目录（缺少表 s_infotable）：" + path());
}

TEST_F(OpenRegister, AnEmptyFileIsNoRegister) {
    std::ofstream(path()).close();
    expectFailure(path(), Failure::Unspecified, "数据库中没有人才信息目录（缺少表 s_infotable）：" + path());
}

TEST_F(OpenRegister, AFolderIsTold) {
    expectFailure(folder, Failure::Unspecified, "打不开数据库文件：unable to open database file");
}

TEST_F(OpenRegister, AReadOnlyRegisterIsReadAndNotWritten) {
    makeRegister();
    forbidWriting(path());
    const OrdinaryUser user;
    const auto connection = openSqlite(path());
    EXPECT_EQ(connection->query("select * from s_infotable").rowCount(), 1U);
    const auto insert = [&] { connection->execute("insert into s_infotable values('A02')"); };
    EXPECT_EQ(failureOf(insert), number(Failure::Unspecified));
    EXPECT_EQ(connection->query("select * from s_infotable").rowCount(), 1U);
}

} // namespace
} // namespace quillmere::sqlite

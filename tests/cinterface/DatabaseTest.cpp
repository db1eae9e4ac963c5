#include "cinterface/Host.h"

namespace quillmere::cinterface {
namespace {

quillmere_database* connectionOf(quillmere_entry* entry) {
    quillmere_database* database = nullptr;
    EXPECT_EQ(QUILLMERE_OK, quillmere_get_Connection(entry, &database));
    return database;
}

/// Opening that place fails, and leaves no handle. The description.
std::string refusal(const char* place, quillmere_status status) {
    int other = 0;
    auto* database = reinterpret_cast<quillmere_database*>(&other);
    EXPECT_EQ(status, quillmere_open(place, &database));
    EXPECT_EQ(nullptr, database);
    return told(nullptr).description;
}

using DatabaseTest = RegisterTest;

TEST_F(DatabaseTest, IsTheOneThatTheEntryWasToldOf) { EXPECT_EQ(database, connectionOf(entry)); }

TEST_F(DatabaseTest, IsNoneForANewEntry) {
    quillmere_entry* other = nullptr;
    ASSERT_EQ(QUILLMERE_OK, quillmere_create(&other));
    EXPECT_EQ(nullptr, connectionOf(other));
    EXPECT_EQ(QUILLMERE_OK, quillmere_release(other));
}

TEST_F(DatabaseTest, IsNoneForAnEntryOnceItIsClosed) {
    EXPECT_EQ(QUILLMERE_OK, quillmere_close(database));
    EXPECT_EQ(nullptr, connectionOf(entry));
    EXPECT_EQ(QUILLMERE_WRONG_HANDLE, quillmere_close(database));
}

TEST_F(DatabaseTest, LetsGoOfItsFileWhenItIsClosed) {
    const std::string log = file.path() + "-wal";
    EXPECT_TRUE(std::filesystem::exists(log));
    EXPECT_EQ(QUILLMERE_OK, quillmere_close(database));
    EXPECT_FALSE(std::filesystem::exists(log));
}

TEST_F(DatabaseTest, StaysOpenWhenAnEntryIsReleased) {
    quillmere_entry* other = nullptr;
    ASSERT_EQ(QUILLMERE_OK, quillmere_create(&other));
    prepare(other);
    EXPECT_EQ(QUILLMERE_OK, quillmere_release(other));
    EXPECT_EQ(database, connectionOf(entry));
}

TEST_F(DatabaseTest, ThatIsWrongIsRefusedByTheEntryWhichKeepsTheOneItHad) {
    quillmere_database* closed = nullptr;
    ASSERT_EQ(QUILLMERE_OK, quillmere_open(file.path().c_str(), &closed));
    ASSERT_EQ(QUILLMERE_OK, quillmere_close(closed));
    auto* anEntry = reinterpret_cast<quillmere_database*>(entry);
    for (quillmere_database* wrong : {static_cast<quillmere_database*>(nullptr), closed, anEntry}) {
        EXPECT_EQ(QUILLMERE_WRONG_HANDLE, quillmere_set_Connection(entry, wrong));
        EXPECT_EQ("数据库的句柄无效，或已经关闭。", told(entry).description);
        EXPECT_EQ(database, connectionOf(entry));
    }
}

TEST_F(DatabaseTest, IsRefusedNoPlaceToPutItsHandle) {
    EXPECT_EQ(QUILLMERE_INVALID_CALL, quillmere_get_Connection(entry, nullptr));
    EXPECT_EQ("参数 database 为空（NULL）。", told(entry).description);
    EXPECT_EQ(QUILLMERE_INVALID_CALL, quillmere_open(file.path().c_str(), nullptr));
    EXPECT_EQ("参数 database 为空（NULL）。", told(nullptr).description);
}

TEST_F(DatabaseTest, IsRefusedWhereThereIsNone) {
    EXPECT_EQ("找不到数据库文件：/nowhere/人才.db", refusal("/nowhere/人才.db", QUILLMERE_FILE_NOT_FOUND));
    EXPECT_EQ("SQLite", told(nullptr).source);
    EXPECT_EQ("参数 place 为空（NULL）。", refusal(nullptr, QUILLMERE_INVALID_CALL));
    EXPECT_EQ("参数 place 不是 UTF-8 文本。", refusal("\xFF.db", QUILLMERE_INVALID_CALL));
    EXPECT_NE("", refusal("", QUILLMERE_FILE_NOT_FOUND));
    EXPECT_NE("", refusal(file.folder().c_str(), QUILLMERE_UNSPECIFIED));
}

TEST_F(DatabaseTest, OfPostgreSqlIsNotLookedForAmongTheFiles) {
    int other = 0;
    auto* none = reinterpret_cast<quillmere_database*>(&other);
    const quillmere_status status = quillmere_open("postgresql:///register?host=/nowhere", &none);
    EXPECT_NE(QUILLMERE_OK, status);
    EXPECT_NE(QUILLMERE_FILE_NOT_FOUND, status);
    EXPECT_EQ(nullptr, none);
    // Whether the library has been built with it or not.
    const std::string all = told(nullptr).source + told(nullptr).description;
    EXPECT_NE(std::string::npos, all.find("PostgreSQL")) << all;
}

} // namespace
} // namespace quillmere::cinterface

#include "register/NameInitials.h"
#include "register/SearchThread.h"

#include "RealPerson.h"
#include "adapters/sqlite/SqliteConnection.h"
#include "platform/data/ObservedConnections.h"

#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <set>

namespace quillmere::host {
namespace {

struct InitialsRow {
    const char* name;
    const char* letters;
    bool matches;
};

TEST(RegisterInitialsTest, NamesAreFoundByTheInitialsOfTheirPinyin) {
    const InitialsRow rows[] = {
        {"张三", "zs", true},     {"张三", "z", true},        {"张三", "s", true},
        {"张三", "ZS", true},     {"张三", "sz", false},      {"张三", "zss", false},
        {"欧阳望舒", "ws", true}, {"欧阳望舒", "oyws", true}, {"欧阳望舒", "os", false},
        {"孙欣怡", "sxy", true},  {"单晟", "ss", true},       {"单晟", "ds", true},
        {"曾鑫", "zx", true},     {"翟璐", "zl", true},       {"仇雯", "qw", true},
        {"Tom Li", "tl", false},  {"Tom Li", "omli", true},   {"阿卜杜·热合曼", "abdrhm", true},
        {"", "z", false},         {"㐀", "q", false},
    };
    for (const InitialsRow& row : rows)
        EXPECT_EQ(matchesInitials(QString::fromUtf8(row.name), QString::fromUtf8(row.letters)), row.matches)
            << row.name << ' ' << row.letters;
}

TEST(RegisterInitialsTest, OnlyLettersCanBeInitials) {
    EXPECT_TRUE(areInitials(u"zs"));
    EXPECT_TRUE(areInitials(u"ZS"));
    for (const QStringView other : {u"", u"z s", u"张", u"zs1", u"é"})
        EXPECT_FALSE(areInitials(other)) << other.toString().toStdString();
}

TEST(RegisterInitialsTest, TheTableHoldsEachCharacterOfGb2312Once) {
    std::set<char16_t> seen;
    for (const InitialRow& row : initialRows) {
        for (const char16_t character : row.characters)
            EXPECT_TRUE(seen.insert(character).second) << QString(QChar(character)).toStdString();
    }
    EXPECT_EQ(seen.size(), 6763U);
    EXPECT_GE(*seen.begin(), 0x4E00);
    EXPECT_LE(*seen.rbegin(), 0x9FFF);
}

class RegisterSearchTest : public testing::Test {
protected:
    static constexpr int manyPersons = 45000;

    RegisterSearchTest() {
        connection = connect();
        connection->execute("create table A01 (A00 text, A0199 integer, A0101 text collate nocase, "
                            "A0103 text collate nocase, A0114 text collate nocase, A0136 text)");
        connection->execute("create index IX_A01_A0101 on A01 (A0101)");
        connection->execute("create unique index UX_A01_A00 on A01 (A00)");
        connection->execute("create table P01 (A00 text, P0123 text)");
        connection->execute("create index IX_P01_P0123 on P01 (P0123, A00)");
    }

    [[nodiscard]] std::shared_ptr<data::Connection> connect() const {
        return sqlite::open({.path = path.toStdString(), .create = true});
    }

    void fill() const {
        connection->execute(
            "insert into A01 (A00,A0199,A0101) with recursive n(i) as (select 1 union all select "
            "i+1 from n where i<" +
            std::to_string(manyPersons) + ") select 'p'||i, i, '张三' from n");
    }

    void add(RecordKey key, const std::string& name, const std::string& unit = {}) const {
        connection->execute("insert into A01 (rowid,A00,A0101,A0114) values(" + std::to_string(key) + ",'" +
                            std::to_string(key) + "','" + name + "','" + unit + "')");
    }

    void addProject(RecordKey key, const std::string& stage) const {
        connection->execute("insert into P01 values('" + std::to_string(key) + "','" + stage + "')");
    }

    [[nodiscard]] static Query asking(const char* text) {
        Query query;
        query.text = QString::fromUtf8(text);
        return query;
    }

    [[nodiscard]] std::vector<RecordKey> keysFor(const char* text) const { return keysFor(asking(text)); }

    [[nodiscard]] std::vector<RecordKey> keysFor(const Query& query) const {
        std::vector<RecordKey> keys;
        EXPECT_TRUE(search(*connection, query, [&keys](const SearchStep& step) {
            keys.insert(keys.end(), step.keys.begin(), step.keys.end());
            return true;
        }));
        return keys;
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("register.db"));
    std::shared_ptr<data::Connection> connection;
};

using Keys = std::vector<RecordKey>;

TEST_F(RegisterSearchTest, NamesThatBeginSoComeFirstThenTheNewest) {
    add(1, "古望");
    add(2, "望舒");
    add(3, "甲", "望京医院");
    add(4, "甲");
    EXPECT_EQ(keysFor("望"), Keys({2, 3, 1}));
}

TEST_F(RegisterSearchTest, InitialsComeBesideTheLettersThemselves) {
    add(1, "Zsolt");
    add(2, "张三");
    add(3, "李四", "ZS仪器厂");
    add(4, "李四");
    EXPECT_EQ(keysFor("zs"), Keys({1, 3, 2}));
}

TEST_F(RegisterSearchTest, ARecordWithoutANameIsFoundByItsUnit) {
    connection->execute("insert into A01 (rowid,A00,A0114) values(7,'x','望京医院')");
    EXPECT_EQ(keysFor("望"), Keys({7}));
}

TEST_F(RegisterSearchTest, AnEmptyRegisterIsLookedThrough) { EXPECT_TRUE(keysFor("望").empty()); }

TEST_F(RegisterSearchTest, AStageAloneFindsItsRecordsFromTheNewestOnEachOnce) {
    for (RecordKey key = 1; key <= 4; ++key)
        add(key, "甲");
    addProject(1, "02");
    addProject(2, "01");
    addProject(4, "02");
    addProject(4, "02");
    Query query;
    query.stage = QStringLiteral("02");
    EXPECT_EQ(keysFor(query), Keys({4, 1}));
    connection->execute("update A01 set A0136='04' where rowid=1");
    query.type = 4;
    EXPECT_EQ(keysFor(query), Keys({1}));
}

TEST_F(RegisterSearchTest, AStageBesideATextFindsWhatIsBoth) {
    add(1, "望舒");
    add(2, "望舒");
    add(3, "甲", "望京医院");
    add(4, "甲");
    for (const RecordKey key : {1, 3, 4})
        addProject(key, "03");
    Query query = asking("望");
    query.stage = QStringLiteral("03");
    EXPECT_EQ(keysFor(query), Keys({1, 3}));
}

TEST_F(RegisterSearchTest, AStageIsLookedUpInTheIndexesAlone) {
    data::RecordingConnection recording(connection);
    Query query;
    query.stage = QStringLiteral("02");
    EXPECT_TRUE(search(recording, query, [](const SearchStep&) { return true; }));
    ASSERT_EQ(recording.statements().size(), 1U);
    const data::RowSet plan = connection->query("explain query plan " + recording.statements().front());
    ASSERT_GE(plan.rowCount(), 2U);
    EXPECT_EQ(plan.at(0, std::string_view("detail")).toText(),
              "SEARCH P01 USING COVERING INDEX IX_P01_P0123 (P0123=?)");
    EXPECT_EQ(plan.at(1, std::string_view("detail")).toText(),
              "SEARCH A01 USING COVERING INDEX UX_A01_A00 (A00=?)");
}

TEST_F(RegisterSearchTest, TheBeginningOfNamesIsLookedUpInTheIndex) {
    data::RecordingConnection recording(connection);
    EXPECT_FALSE(search(recording, asking("望"), [](const SearchStep&) { return false; }));
    ASSERT_EQ(recording.statements().size(), 1U);
    const data::RowSet plan = connection->query("explain query plan " + recording.statements().front());
    ASSERT_EQ(plan.rowCount(), 1U);
    const std::string detail = plan.at(0, std::string_view("detail")).toText();
    EXPECT_NE(detail.find("SEARCH A01 USING COVERING INDEX IX_A01_A0101"), std::string::npos) << detail;
}

TEST_F(RegisterSearchTest, ARegisterIsLookedThroughInSlicesAndCanBeLeftBetweenThem) {
    fill();
    std::vector<int> permille;
    std::size_t found = 0;
    EXPECT_TRUE(search(*connection, asking("zs"), [&](const SearchStep& step) {
        permille.push_back(step.permille);
        found += step.keys.size();
        return true;
    }));
    EXPECT_EQ(permille, std::vector<int>({0, 444, 888, 1000}));
    EXPECT_EQ(found, static_cast<std::size_t>(manyPersons));

    int steps = 0;
    EXPECT_FALSE(search(*connection, asking("zs"), [&](const SearchStep&) { return ++steps < 2; }));
    EXPECT_EQ(steps, 2);
}

/// A search thread, and what is heard of it.
class RegisterSearchThreadTest : public RegisterSearchTest {
protected:
    test::Screen screen;
    std::vector<RecordKey> keys;
    std::exception_ptr failure;
    int done = 0;
    QThread* heardOn = nullptr;

    void hear(const SearchNews& news) {
        heardOn = QThread::currentThread();
        keys.insert(keys.end(), news.keys.begin(), news.keys.end());
        failure = news.failure;
        if (news.done) ++done;
    }
};

TEST_F(RegisterSearchThreadTest, TellsOnTheThreadThatAsked) {
    add(2, "望舒");
    SearchThread thread([this] { return connect(); }, [this](const SearchNews& news) { hear(news); });
    thread.start(asking("望"));
    EXPECT_TRUE(thread.isRunning());
    ASSERT_TRUE(test::waitUntil([this] { return done == 1; }));
    EXPECT_FALSE(thread.isRunning());
    EXPECT_EQ(keys, Keys({2}));
    EXPECT_EQ(heardOn, QThread::currentThread());
}

TEST_F(RegisterSearchThreadTest, TheNewestSearchWins) {
    fill();
    add(100000, "望舒");
    SearchThread thread([this] { return connect(); }, [this](const SearchNews& news) { hear(news); });
    for (int i = 0; i < 5; ++i)
        thread.start(asking("zs"));
    thread.start(asking("望"));
    ASSERT_TRUE(test::waitUntil([this] { return done > 0; }));
    EXPECT_EQ(keys, Keys({100000}));
    EXPECT_EQ(done, 1);
}

TEST_F(RegisterSearchThreadTest, NothingIsHeardOfASearchThatIsCalledOff) {
    fill();
    SearchThread thread([this] { return connect(); }, [this](const SearchNews& news) { hear(news); });
    thread.start(asking("zs"));
    thread.cancel();
    EXPECT_FALSE(thread.isRunning());
    thread.start(asking("不在"));
    ASSERT_TRUE(test::waitUntil([this] { return done > 0; }));
    EXPECT_TRUE(keys.empty());
    EXPECT_EQ(done, 1);
}

TEST_F(RegisterSearchThreadTest, AFailureIsToldAndTheNextSearchGoesOn) {
    add(2, "望舒");
    bool fails = true;
    SearchThread thread(
        [&] {
            if (std::exchange(fails, false)) throw std::runtime_error("no file");
            return connect();
        },
        [this](const SearchNews& news) { hear(news); });
    thread.start(asking("望"));
    ASSERT_TRUE(test::waitUntil([this] { return done == 1; }));
    EXPECT_TRUE(failure != nullptr);
    thread.start(asking("望"));
    ASSERT_TRUE(test::waitUntil([this] { return done == 2; }));
    EXPECT_TRUE(failure == nullptr);
    EXPECT_EQ(keys, Keys({2}));
}

} // namespace
} // namespace quillmere::host

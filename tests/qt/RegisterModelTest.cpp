#include "register/RegisterModel.h"

#include "adapters/sqlite/SqliteConnection.h"
#include "platform/Error.h"
#include "platform/data/ObservedConnections.h"
#include "sample/SampleRegister.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

namespace quillmere::host {
namespace {

class RegisterModelTest : public testing::Test {
protected:
    explicit RegisterModelTest(int persons = 3, int units = 2) {
        sample::Options options;
        options.persons = persons;
        options.units = units;
        sample::build(*engine, options);
    }

    [[nodiscard]] std::string cell(std::string_view sql) const {
        return engine->query(sql).at(0, std::size_t{0}).toText();
    }

    void addPerson(const std::string& id, const std::string& name, const std::string& number) const {
        const std::string running = "(select max(A0199)+1 from A01)";
        engine->execute("insert into A01 (A00,A0199,A0101,A0103) values('" + id + "'," + running + ",'" +
                        name + "','" + number + "')");
    }

    [[nodiscard]] QStringList names() const {
        QStringList result;
        for (int row = 0; row < model.rowCount(); ++row)
            result << model.index(row, 0).data().toString();
        return result;
    }

    [[nodiscard]] QStringList found(Kind kind, const QString& search) {
        show(kind, search);
        return names();
    }

    /// Everything, or what a search finds.
    void show(Kind kind, const QString& text) {
        Query query;
        query.kind = kind;
        query.text = text;
        if (query.isEverything()) return model.showAll(kind);
        std::vector<RecordKey> keys;
        ASSERT_TRUE(search(*connection, query, [&keys](const SearchStep& step) {
            keys.insert(keys.end(), step.keys.begin(), step.keys.end());
            return true;
        }));
        model.showFound(query, keys);
    }

    std::shared_ptr<data::Connection> engine = sqlite::openInMemory();
    std::shared_ptr<data::FailingConnection> connection = std::make_shared<data::FailingConnection>(engine);
    RegisterList list{connection};
    RegisterModel model{list};
};

TEST_F(RegisterModelTest, ShowsTheNewestFirst) {
    addPerson("first", "甲", "1");
    addPerson("second", "乙", "2");
    const QStringList all = found(Kind::Persons, {});
    ASSERT_EQ(all.size(), 5);
    EXPECT_EQ(all.mid(0, 2), QStringList({"乙", "甲"}));
}

TEST_F(RegisterModelTest, ShowsNamesInPlaceOfCodes) {
    engine->execute("insert into A01 (A00,A0199,A0101,A0104,A0106,A0103,A0114,A0136,A0137) values('x',9000,"
                    "'祁望舒','2','1988-04-16','110105198804169960','规划院','07','2026')");
    engine->execute("insert into P01 (A00,P0109,P0123) values('x','古桥保护','02')");
    show(Kind::Persons, QStringLiteral("祁望舒"));
    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_EQ(model.entry(0).id, "x");
    EXPECT_EQ(model.entry(0).sponsorshipType, 7);
    EXPECT_EQ(model.entry(0).cells, QStringList({"祁望舒", "女", "1988-04-16", "110105198804169960", "规划院",
                                                 "技能人才资助（G类）", "2026", "古桥保护", "在研"}));
}

TEST_F(RegisterModelTest, ARecordWithNothingButItsKeyIsShown) {
    engine->execute("insert into A01 (A00,A0199) values('bare',9000)");
    model.showAll(Kind::Persons);
    EXPECT_EQ(model.rowOf("bare"), 0);
    EXPECT_EQ(model.entry(0).sponsorshipType, 1);
    EXPECT_EQ(model.entry(0).cells.join(QString()), QString());
}

TEST_F(RegisterModelTest, FindsPersonsByAPartOfTheName) {
    addPerson("x", "欧阳望舒", "1");
    EXPECT_EQ(found(Kind::Persons, QStringLiteral("阳望")), QStringList({"欧阳望舒"}));
    EXPECT_EQ(model.total(), 1);
}

TEST_F(RegisterModelTest, FindsPersonsByIdentityCard) {
    addPerson("x", "甲", "99010119800101991X");
    EXPECT_EQ(found(Kind::Persons, QStringLiteral("990101")), QStringList({"甲"}));
    EXPECT_EQ(found(Kind::Persons, QStringLiteral("991x")), QStringList({"甲"}));
}

TEST_F(RegisterModelTest, BlanksAroundASearchDoNotCount) {
    addPerson("x", "祁望舒", "1");
    EXPECT_EQ(found(Kind::Persons, QStringLiteral("  祁望舒 ")), QStringList({"祁望舒"}));
}

TEST_F(RegisterModelTest, FindsUnitsByNameIdentityAndBureau) {
    engine->execute("insert into B01 (A00,B0199,B0101,B0104) values('UNIT-7F',9000,'望舒桥梁院','9876')");
    for (const char* search : {"舒桥", "unit-7f", "987"})
        EXPECT_EQ(found(Kind::Units, QString::fromUtf8(search)), QStringList({"望舒桥梁院"})) << search;
    EXPECT_EQ(model.entry(0).sponsorshipType, collectiveType);
}

TEST_F(RegisterModelTest, QuotesAndWildcardsAreSearchedAsTheyAre) {
    addPerson("quote", "O''Neill", "1");
    addPerson("percent", "50%", "2");
    addPerson("line", "a_b", "3");
    addPerson("mark", "well!", "4");
    EXPECT_EQ(found(Kind::Persons, QStringLiteral("'")), QStringList({"O'Neill"}));
    EXPECT_EQ(found(Kind::Persons, QStringLiteral("%")), QStringList({"50%"}));
    EXPECT_EQ(found(Kind::Persons, QStringLiteral("_")), QStringList({"a_b"}));
    EXPECT_EQ(found(Kind::Persons, QStringLiteral("!")), QStringList({"well!"}));
    EXPECT_EQ(found(Kind::Persons, QStringLiteral("' or '1'='1")), QStringList());
    EXPECT_EQ(model.total(), 0);
}

TEST_F(RegisterModelTest, AFailingDatabaseLeavesWhatIsShown) {
    const QStringList before = found(Kind::Persons, {});
    connection->failOn("from (select", "磁盘读写错误");
    EXPECT_EQ(failureOf([&] { model.showAll(Kind::Units); }), number(Failure::StatementFailed));
    EXPECT_EQ(model.kind(), Kind::Persons);
    EXPECT_TRUE(model.query().isEverything());
    EXPECT_EQ(names(), before);
}

TEST_F(RegisterModelTest, TheTypeOfNewRecordsIsThatOfTheRegister) {
    engine->execute("update ZZStyle set ZZType='5'");
    EXPECT_EQ(list.newRecordType(), 5);
    list.setNewRecordType(6);
    EXPECT_EQ(cell("select ZZType from ZZStyle"), "6");
    EXPECT_EQ(list.newRecordType(), 6);
}

TEST_F(RegisterModelTest, WithoutAValidSettingNewRecordsAreOfTypeOne) {
    engine->execute("update ZZStyle set ZZType='9'");
    EXPECT_EQ(list.newRecordType(), 1);
    engine->execute("delete from ZZStyle");
    EXPECT_EQ(list.newRecordType(), 1);
}

TEST_F(RegisterModelTest, SettingTheTypeMakesTheSettingThatIsMissing) {
    engine->execute("delete from ZZStyle");
    list.setNewRecordType(3);
    EXPECT_EQ(cell("select count(*) from ZZStyle"), "1");
    EXPECT_EQ(list.newRecordType(), 3);
    EXPECT_EQ(cell("select length(ZZYear) from ZZStyle"), "4");
}

TEST_F(RegisterModelTest, KnowsTheSevenTypesByName) {
    const std::vector<SponsorshipType> types = list.sponsorshipTypes();
    ASSERT_EQ(types.size(), 7U);
    for (std::size_t i = 0; i < types.size(); ++i)
        EXPECT_EQ(types[i].number, static_cast<int>(i) + 1);
    EXPECT_EQ(types[5].name, QStringLiteral("集体项目资助（F类）"));
}

class RegisterModelPagesTest : public RegisterModelTest {
protected:
    static constexpr int persons = 2 * RegisterModel::pageSize + 50;

    RegisterModelPagesTest() : RegisterModelTest(persons, 0) { model.showAll(Kind::Persons); }
};

TEST_F(RegisterModelPagesTest, RowsComeAPageAtATime) {
    EXPECT_EQ(model.total(), persons);
    EXPECT_EQ(model.rowCount(), RegisterModel::pageSize);
    model.fetchMore({});
    EXPECT_EQ(model.rowCount(), 2 * RegisterModel::pageSize);
    ASSERT_TRUE(model.canFetchMore({}));
    model.fetchMore({});
    EXPECT_EQ(model.rowCount(), persons);
    EXPECT_FALSE(model.canFetchMore({}));
    for (int row = 0; row < persons; ++row) {
        const std::string running = std::to_string(persons - row);
        ASSERT_EQ(model.entry(row).id, cell("select A00 from A01 where A0199=" + running)) << row;
    }
}

TEST_F(RegisterModelPagesTest, ReadingAgainReadsAsManyRowsAsThereWere) {
    model.fetchMore({});
    model.showAll(Kind::Persons);
    EXPECT_EQ(model.rowCount(), 2 * RegisterModel::pageSize);
    show(Kind::Persons, QStringLiteral("1"));
    EXPECT_LE(model.rowCount(), RegisterModel::pageSize);
}

TEST_F(RegisterModelPagesTest, RowsDeletedMeanwhileEndTheList) {
    engine->execute("delete from A01 where A0199<=" + std::to_string(persons - RegisterModel::pageSize));
    model.fetchMore({});
    EXPECT_EQ(model.rowCount(), RegisterModel::pageSize);
    EXPECT_FALSE(model.canFetchMore({}));
}

TEST_F(RegisterModelPagesTest, WhatASearchFindsComesAPageAtATimeToo) {
    show(Kind::Persons, QStringLiteral("9"));
    const int total = model.total();
    ASSERT_GT(total, RegisterModel::pageSize);
    EXPECT_EQ(model.rowCount(), RegisterModel::pageSize);
    while (model.canFetchMore({}))
        model.fetchMore({});
    EXPECT_EQ(model.rowCount(), total);
    EXPECT_EQ(model.total(), total);
}

TEST_F(RegisterModelPagesTest, WhatIsFoundLaterFillsTheFirstPageAndIsFetchedBeyond) {
    Query query;
    query.text = QStringLiteral("x");
    model.showFound(query, {1, 2});
    EXPECT_EQ(model.rowCount(), 2);
    std::vector<RecordKey> more;
    for (RecordKey key = 3; key <= RegisterModel::pageSize + 10; ++key)
        more.push_back(key);
    model.addFound(more);
    EXPECT_EQ(model.rowCount(), RegisterModel::pageSize);
    EXPECT_EQ(model.total(), RegisterModel::pageSize + 10);
    model.fetchMore({});
    EXPECT_EQ(model.rowCount(), RegisterModel::pageSize + 10);
    EXPECT_EQ(model.entry(0).id, cell("select A00 from A01 where rowid=1"));
    EXPECT_EQ(model.entry(105).id, cell("select A00 from A01 where rowid=106"));
}

TEST_F(RegisterModelPagesTest, FoundRecordsThatAreGoneAreLeftOut) {
    engine->execute("delete from A01 where rowid in (2,4)");
    Query query;
    query.text = QStringLiteral("x");
    model.showFound(query, {1, 2, 3, 4, 5});
    EXPECT_EQ(model.rowCount(), 3);
    EXPECT_EQ(model.total(), 3);
    EXPECT_EQ(model.entry(1).id, cell("select A00 from A01 where rowid=3"));
}

TEST_F(RegisterModelPagesTest, AFailingPageEndsTheList) {
    connection->failAfter(1, "磁盘读写错误");
    model.fetchMore({});
    EXPECT_EQ(model.rowCount(), RegisterModel::pageSize);
    EXPECT_FALSE(model.canFetchMore({}));
}

} // namespace
} // namespace quillmere::host

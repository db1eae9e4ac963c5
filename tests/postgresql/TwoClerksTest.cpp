#include "TwoClerks.h"
#include "../support/FailureNumber.h"
#include "adapters/sqlite/SqliteConnection.h"
#include "platform/ui/VerticalMenu.h"
#include "sample/SampleRegister.h"
#include "support/ScriptedPerson.h"

#include <string>
#include <vector>

// No lock is taken anywhere: what two clerks do to each other is shown here, and what the tables' own keys
// keep them from.

namespace quillmere::postgresql {
namespace {

using Lines = std::vector<std::string>;

void open(frmPersonWh& window, std::string_view caption) {
    const auto& groups = window.menu().groups();
    for (std::size_t group = 0; group < groups.size(); ++group) {
        for (std::size_t item = 0; item < groups[group].items.size(); ++item) {
            if (groups[group].items[item].caption == caption)
                (void)window.menu().clickItem(static_cast<int>(group) + 1, static_cast<int>(item) + 1);
        }
    }
}

void type(frmPersonWh& window, std::string_view widget, std::string_view text) {
    if (!window.moveFocus(test::controlOf<ui::Control>(window, widget)))
        throw Error(Failure::InvalidCall, std::string(widget));
    window.selectAll();
    test::typeText(window, text);
}

void press(frmPersonWh& window, std::string_view key) {
    (void)window.toolbar().clickButton(window.toolbarButton(key));
}

/// A role with no more rights than clerks' programs need.
class ClerksRole {
public:
    ClerksRole(data::Connection& connection, const FreshSchema& schema)
        : connection_(connection), schema_(schema.name()), name_(schema.name() + "_clerk") {
        connection_.execute("create role " + name_ + " login password 'clerk'");
        connection_.execute("grant usage on schema " + schema_ + " to " + name_);
        connection_.execute("grant select, insert, update, delete on all tables in schema " + schema_ +
                            " to " + name_);
    }
    ~ClerksRole() {
        connection_.execute("drop owned by " + name_);
        connection_.execute("drop role " + name_);
    }
    ClerksRole(const ClerksRole&) = delete;
    ClerksRole& operator=(const ClerksRole&) = delete;

    /// The way into the register with it.
    [[nodiscard]] OpenOptions register_() const {
        return {.address = TestServer::addressWith(name_, "clerk"), .schema = schema_};
    }

private:
    data::Connection& connection_;
    std::string schema_;
    std::string name_;
};

/// A person who is entered and saved.
ClerksWork newPerson(const std::string& name) {
    return {0, "nobody-00000000-0000-0000-0000-000000000000", [name](frmPersonWh& window) {
                type(window, "A01_A0101_v", name);
                press(window, "Save");
            }};
}

class TwoClerks : public PostgreSqlBench {
protected:
    void SetUp() override {
        PostgreSqlBench::SetUp();
        if (IsSkipped()) return;
        sample::Options options;
        options.persons = 2;
        options.units = 1;
        options.engine = sample::Engine::PostgreSql;
        sample::build(*connection, options);
        connection->execute("update s_infoitem set \"IsNUll\"=true, \"Check\"=''");
        person = linesOf("select A00 from A01 where A0199=1").front();
        // In a later stage the records of a person are locked.
        connection->execute("update P01 set P0123='01'");
        connection->execute("delete from A02");
        connection->execute("delete from A10");
        for (const char* study : {"1,'1999-09','甲'", "2,'2003-09','乙'"}) {
            connection->execute("insert into A02 (A00,A0299,A0201,A0203) values ('" + person + "'," + study +
                                ")");
        }
    }

    /// The cells of each row, with a bar between them.
    [[nodiscard]] Lines linesOf(const std::string& query) const {
        const data::RowSet rows = connection->query(query);
        Lines lines;
        for (std::size_t row = 0; row < rows.rowCount(); ++row) {
            std::string line;
            for (const data::Value& value : rows.row(row))
                line += (line.empty() ? "" : "|") + value.toTextOrEmpty();
            lines.push_back(line);
        }
        return lines;
    }
    [[nodiscard]] Lines studies() const {
        return linesOf("select A0299,A0203 from A02 order by A0299,A0203");
    }

    /// A further study of the person, entered and saved.
    [[nodiscard]] ClerksWork newStudy(const std::string& begun, const std::string& school) const {
        return {4, person, [=](frmPersonWh& window) {
                    open(window, "主要学习经历");
                    press(window, "Add");
                    type(window, "A02_A0201_v", begun);
                    type(window, "A02_A0203_v", school);
                    press(window, "Save");
                }};
    }
    /// The first study on show, with another school.
    [[nodiscard]] ClerksWork changedStudy(const std::string& school) const {
        return {4, person, [=](frmPersonWh& window) {
                    open(window, "主要学习经历");
                    type(window, "A02_A0203_v", school);
                    press(window, "Save");
                }};
    }

    /// The record of the set that has one, with another text.
    [[nodiscard]] ClerksWork singleRecord(const std::string& text) const {
        return {4, person, [=](frmPersonWh& window) {
                    open(window, "创新点及主要业绩");
                    type(window, "A10_A1001_v", text);
                    press(window, "Save");
                }};
    }

    /// The way into the register for those who own it.
    [[nodiscard]] OpenOptions owner() const {
        return {.address = TestServer::address(), .schema = schema->name()};
    }
    /// Of the persons that were entered, with their running numbers.
    [[nodiscard]] Lines newPersons() const {
        return linesOf("select A0101,A0199 from A01 where A0199>2 order by A0199,A0101");
    }

    std::string person;
};

void expectRefused(const Clerk& clerk, std::string_view key) {
    ASSERT_EQ(clerk.boxes().size(), 1U);
    EXPECT_TRUE(clerk.boxes().front().starts_with("信息保存|")) << clerk.boxes().front();
    EXPECT_NE(clerk.boxes().front().find(key), std::string::npos) << clerk.boxes().front();
}

// ---- two identities at once

/// Both have made an identity before either reads hers.
void makeIdentitiesTogether(Clerk& first, Clerk& second) {
    for (Clerk* clerk : {&first, &second})
        clerk->workUntil("insert into S_GUID");
    for (Clerk* clerk : {&first, &second})
        clerk->workUntil("select id from S_GUID");
    for (Clerk* clerk : {&first, &second})
        clerk->workUntil("select * from A01 where a00 ='");
}

TEST_F(TwoClerks, WhoOwnTheTablesTakeOneIdentityForTwoPersonsAndTheKeyRefusesTheSecond) {
    Clerk first(owner(), newPerson("秦志"));
    Clerk second(owner(), newPerson("白帆"));
    makeIdentitiesTogether(first, second);
    EXPECT_EQ(first.next(), second.next());
    first.finish();
    second.finish();
    EXPECT_EQ(first.boxes(), Lines{"提示|保存成功!"});
    expectRefused(second, "ux_a01_a00");
    EXPECT_EQ(newPersons(), Lines{"秦志|3"});
    EXPECT_EQ(linesOf("select count(*) from P01 where A00=(select A00 from A01 where A0199=3)"), Lines{"1"});
}

TEST_F(TwoClerks, OneIdentityIsStoredForTwoPersonsWithoutTheKeys) {
    connection->execute("drop index UX_A01_A00");
    connection->execute("drop index UX_P01_A00");
    Clerk first(owner(), newPerson("秦志"));
    Clerk second(owner(), newPerson("白帆"));
    makeIdentitiesTogether(first, second);
    first.finish();
    second.finish();
    // Both are told that all is well, and from now on whatever is changed is changed for both.
    EXPECT_EQ(first.boxes(), Lines{"提示|保存成功!"});
    EXPECT_EQ(second.boxes(), Lines{"提示|保存成功!"});
    EXPECT_EQ(newPersons(), (Lines{"秦志|3", "白帆|4"}));
    EXPECT_EQ(linesOf("select count(distinct A00) from A01 where A0199>2"), Lines{"1"});
}

TEST_F(TwoClerks, WhoOwnTheTablesSweepAwayTheIdentityThatTheOtherIsAboutToRead) {
    Clerk first(owner(), newPerson("秦志"));
    Clerk second(owner(), newPerson("白帆"));
    first.workUntil("select id from S_GUID");
    second.workUntil("insert into S_GUID");
    first.finish();
    second.finish();
    EXPECT_NE(first.failure(), "");
    EXPECT_EQ(second.boxes(), Lines{"提示|保存成功!"});
    EXPECT_EQ(newPersons(), Lines{"白帆|3"});
}

TEST_F(TwoClerks, WithAClerksRoleTakeAnIdentityEach) {
    const ClerksRole role(*connection, *schema);
    Clerk first(role.register_(), newPerson("秦志"));
    Clerk second(role.register_(), newPerson("白帆"));
    makeIdentitiesTogether(first, second);
    EXPECT_NE(first.next(), second.next());
    first.finish();
    second.finish();
    EXPECT_EQ(first.boxes(), Lines{"提示|保存成功!"});
    EXPECT_EQ(second.boxes(), Lines{"提示|保存成功!"});
    EXPECT_EQ(linesOf("select count(distinct A00) from A01 where A0199>2"), Lines{"2"});
}

TEST_F(TwoClerks, WithAClerksRoleLeaveTheOthersIdentityAlone) {
    const ClerksRole role(*connection, *schema);
    Clerk first(role.register_(), newPerson("秦志"));
    Clerk second(role.register_(), newPerson("白帆"));
    first.workUntil("select id from S_GUID");
    second.workUntil("insert into S_GUID");
    first.finish();
    second.finish();
    EXPECT_EQ(first.failure(), "");
    EXPECT_EQ(newPersons(), (Lines{"秦志|3", "白帆|4"}));
}

// ---- running numbers

TEST_F(TwoClerks, TakeTheSameRunningNumberAndBothAreStored) {
    const ClerksRole role(*connection, *schema);
    Clerk first(role.register_(), newPerson("秦志"));
    Clerk second(role.register_(), newPerson("白帆"));
    for (Clerk* clerk : {&first, &second})
        clerk->workUntil("insert into A01");
    first.finish();
    second.finish();
    // No key on the running number: it only orders the list, and a refused save would be the greater harm.
    EXPECT_EQ(first.boxes(), Lines{"提示|保存成功!"});
    EXPECT_EQ(second.boxes(), Lines{"提示|保存成功!"});
    EXPECT_EQ(newPersons(), (Lines{"白帆|3", "秦志|3"}));
}

TEST_F(TwoClerks, EnterOneNameAndNeitherIsAsked) {
    const ClerksRole role(*connection, *schema);
    Clerk first(role.register_(), newPerson("秦志"));
    Clerk second(role.register_(), newPerson("秦志"));
    for (Clerk* clerk : {&first, &second})
        clerk->workUntil("insert into A01");
    first.finish();
    second.finish();
    EXPECT_EQ(first.boxes(), Lines{"提示|保存成功!"});
    EXPECT_EQ(second.boxes(), Lines{"提示|保存成功!"});
    EXPECT_EQ(newPersons(), (Lines{"秦志|3", "秦志|3"}));
}

// ---- two new records of one set

TEST_F(TwoClerks, AddToOneSetAndTheSecondSaveRemovesTheFirst) {
    Clerk first(owner(), newStudy("200609", "丙"));
    Clerk second(owner(), newStudy("200709", "丁"));
    for (Clerk* clerk : {&first, &second})
        clerk->workUntil("delete from A02");
    first.finish();
    second.finish();
    // Both hold the number 3, and a save begins with the removal of that number: no key can tell.
    EXPECT_EQ(first.boxes(), Lines{});
    EXPECT_EQ(second.boxes(), Lines{});
    EXPECT_EQ(studies(), (Lines{"1|甲", "2|乙", "3|丁"}));
}

TEST_F(TwoClerks, InsertOneNumberAndTheKeyRefusesTheSecond) {
    Clerk first(owner(), newStudy("200609", "丙"));
    Clerk second(owner(), newStudy("200709", "丁"));
    for (Clerk* clerk : {&first, &second})
        clerk->workUntil("insert into A02");
    first.finish();
    second.finish();
    EXPECT_EQ(first.boxes(), Lines{});
    expectRefused(second, "ux_a02_a00");
    EXPECT_EQ(studies(), (Lines{"1|甲", "2|乙", "3|丙"}));
}

TEST_F(TwoClerks, OneNumberIsStoredTwiceWithoutTheKey) {
    connection->execute("alter table A02 drop constraint UX_A02_A00");
    Clerk first(owner(), newStudy("200609", "丙"));
    Clerk second(owner(), newStudy("200709", "丁"));
    for (Clerk* clerk : {&first, &second})
        clerk->workUntil("insert into A02");
    first.finish();
    second.finish();
    EXPECT_EQ(second.boxes(), Lines{});
    EXPECT_EQ(studies(), (Lines{"1|甲", "2|乙", "3|丙", "3|丁"}));
}

TEST_F(TwoClerks, StoreTheOneRecordOfASetAndTheKeyRefusesTheSecond) {
    Clerk first(owner(), singleRecord("甲法"));
    Clerk second(owner(), singleRecord("乙法"));
    for (Clerk* clerk : {&first, &second})
        clerk->workUntil("insert into A10");
    first.finish();
    second.finish();
    expectRefused(second, "ux_a10_a00");
    EXPECT_EQ(linesOf("select A1001 from A10"), Lines{"甲法"});
}

TEST_F(TwoClerks, TheOneRecordOfASetIsStoredTwiceWithoutTheKey) {
    connection->execute("drop index UX_A10_A00");
    Clerk first(owner(), singleRecord("甲法"));
    Clerk second(owner(), singleRecord("乙法"));
    for (Clerk* clerk : {&first, &second})
        clerk->workUntil("insert into A10");
    first.finish();
    second.finish();
    EXPECT_EQ(second.boxes(), Lines{});
    EXPECT_EQ(linesOf("select count(*) from A10"), Lines{"2"});
}

TEST_F(TwoClerks, ChangeTheOneRecordOfASetAndTheLaterSaveStands) {
    Clerk first(owner(), singleRecord("甲法"));
    first.workUntil("delete from A10");
    Clerk second(owner(), singleRecord("乙法"));
    second.finish();
    first.finish();
    EXPECT_EQ(first.boxes(), Lines{});
    EXPECT_EQ(second.boxes(), Lines{});
    EXPECT_EQ(linesOf("select A1001 from A10"), Lines{"甲法"});
}

// ---- renumbering against a save

TEST_F(TwoClerks, ASaveRemovesTheRecordThatHasTakenItsNumberMeanwhile) {
    Clerk first(owner(), changedStudy("甲新"));
    first.workUntil("delete from A02");
    Clerk second(owner(), newStudy("199009", "丙"));
    second.finish();
    EXPECT_EQ(studies(), (Lines{"1|丙", "2|甲", "3|乙"}));
    first.finish();
    // The new study has become number 1, under which the other clerk had opened another: that one now
    // stands there twice, and the new one is gone. Nobody is told, and no key can tell.
    EXPECT_EQ(first.boxes(), Lines{});
    EXPECT_EQ(linesOf("select A0203 from A02 order by A0203"), (Lines{"甲", "甲新", "乙"}));
}

TEST_F(TwoClerks, ARecordThatIsOpenedWhileNumbersAreRaisedIsStoredTwice) {
    Clerk first(owner(), changedStudy("甲新"));
    first.workUntil("update A02 set A0299 = 1");
    Clerk second(owner(), changedStudy("甲又"));
    second.workUntil("delete from A02");
    first.finish();
    second.finish();
    EXPECT_EQ(second.boxes(), Lines{});
    EXPECT_EQ(linesOf("select A0203 from A02 order by A0203"), (Lines{"甲新", "甲又", "乙"}));
}

TEST_F(TwoClerks, TwoRenumberingsAtOnceEndInOneOrder) {
    Clerk first(owner(), newStudy("200609", "丙"));
    first.workUntil("update A02 set A0299 = 2");
    Clerk second(owner(), newStudy("200709", "丁"));
    second.finish();
    first.finish();
    EXPECT_EQ(first.boxes(), Lines{});
    EXPECT_EQ(second.boxes(), Lines{});
    EXPECT_EQ(studies(), (Lines{"1|甲", "2|乙", "3|丙", "4|丁"}));
}

// ---- why the key of a numbered set is checked at the end of a statement

/// What a renumbering leaves that broke off behind its first record, and the statement that begins the next.
constexpr const char* halfDone[] = {"delete from A02", "insert into A02 (A00,A0299) values ('x',1)",
                                    "insert into A02 (A00,A0299) values ('x',201)"};
constexpr auto raising = "update A02 set A0299 = A0299 +200 where a00='x'";

void renumberHalfDone(data::Connection& connection) {
    for (const char* statement : halfDone)
        connection.execute(statement);
    connection.execute(raising);
}

TEST_F(TwoClerks, TheKeyLetsABrokenRenumberingBeMadeGood) {
    renumberHalfDone(*connection);
    EXPECT_EQ(linesOf("select A0299 from A02 order by A0299"), (Lines{"201", "401"}));
}

TEST_F(TwoClerks, AKeyThatIsCheckedRowByRowWouldNot) {
    connection->execute("alter table A02 drop constraint UX_A02_A00");
    connection->execute("create unique index UX_A02 on A02 (A00,A0299)");
    EXPECT_EQ(failureOf([&] { renumberHalfDone(*connection); }), number(Failure::ConstraintFailed));

    const auto sqlite = sqlite::openInMemory();
    sample::build(*sqlite, {.people = false});
    renumberHalfDone(*sqlite);
    sqlite->execute("delete from A02");
    sqlite->execute("create unique index UX_A02 on A02 (A00,A0299)");
    EXPECT_EQ(failureOf([&] { renumberHalfDone(*sqlite); }), number(Failure::ConstraintFailed));
}

} // namespace
} // namespace quillmere::postgresql

#include "TwoClerksBench.h"

// No lock is taken anywhere: what two clerks do to each other who enter a person each, and what the tables'
// own keys and the rights of their role keep them from.

namespace quillmere::postgresql {
namespace {

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

class TwoNewPersons : public TwoClerksBench {
protected:
    /// Of the persons that were entered, with their running numbers.
    [[nodiscard]] Lines newPersons() const {
        return linesOf("select A0101,A0199 from A01 where A0199>2 order by A0199,A0101");
    }
};

/// Both have made an identity before either reads hers.
void makeIdentitiesTogether(Clerk& first, Clerk& second) {
    workUntil("insert into S_GUID", first, second);
    workUntil("select id from S_GUID", first, second);
    workUntil("select * from A01 where a00 ='", first, second);
}

TEST_F(TwoNewPersons, WhoOwnTheTablesTakeOneIdentityForTwoPersonsAndTheKeyRefusesTheSecond) {
    Clerk first(owner(), newPerson("秦志"));
    Clerk second(owner(), newPerson("白帆"));
    makeIdentitiesTogether(first, second);
    EXPECT_EQ(first.next(), second.next());
    first.finish();
    second.finish();
    EXPECT_EQ(first.boxes(), savedBox);
    expectRefused(second, "ux_a01_a00");
    EXPECT_EQ(newPersons(), Lines{"秦志|3"});
    EXPECT_EQ(linesOf("select count(*) from P01 where A00=(select A00 from A01 where A0199=3)"), Lines{"1"});
}

TEST_F(TwoNewPersons, OneIdentityIsStoredForTwoPersonsWithoutTheKeys) {
    connection->execute("drop index UX_A01_A00");
    connection->execute("drop index UX_P01_A00");
    Clerk first(owner(), newPerson("秦志"));
    Clerk second(owner(), newPerson("白帆"));
    makeIdentitiesTogether(first, second);
    first.finish();
    second.finish();
    // Both are told that all is well, and from now on whatever is changed is changed for both.
    EXPECT_EQ(first.boxes(), savedBox);
    EXPECT_EQ(second.boxes(), savedBox);
    EXPECT_EQ(newPersons(), (Lines{"秦志|3", "白帆|4"}));
    EXPECT_EQ(linesOf("select count(distinct A00) from A01 where A0199>2"), Lines{"1"});
}

TEST_F(TwoNewPersons, WhoOwnTheTablesSweepAwayTheIdentityThatTheOtherIsAboutToRead) {
    Clerk first(owner(), newPerson("秦志"));
    Clerk second(owner(), newPerson("白帆"));
    first.workUntil("select id from S_GUID");
    second.workUntil("insert into S_GUID");
    first.finish();
    second.finish();
    EXPECT_NE(first.failure(), "");
    EXPECT_EQ(second.boxes(), savedBox);
    EXPECT_EQ(newPersons(), Lines{"白帆|3"});
}

TEST_F(TwoNewPersons, WithAClerksRoleTakeAnIdentityEach) {
    const ClerksRole role(*connection, *schema);
    Clerk first(role.register_(), newPerson("秦志"));
    Clerk second(role.register_(), newPerson("白帆"));
    makeIdentitiesTogether(first, second);
    EXPECT_NE(first.next(), second.next());
    first.finish();
    second.finish();
    EXPECT_EQ(first.boxes(), savedBox);
    EXPECT_EQ(second.boxes(), savedBox);
    EXPECT_EQ(linesOf("select count(distinct A00) from A01 where A0199>2"), Lines{"2"});
}

TEST_F(TwoNewPersons, WithAClerksRoleLeaveTheOthersIdentityAlone) {
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

TEST_F(TwoNewPersons, TakeTheSameRunningNumberAndBothAreStored) {
    const ClerksRole role(*connection, *schema);
    Clerk first(role.register_(), newPerson("秦志"));
    Clerk second(role.register_(), newPerson("白帆"));
    meetBefore("insert into A01", first, second);
    // No key on the running number: it only orders the list, and a refused save would be the greater harm.
    EXPECT_EQ(first.boxes(), savedBox);
    EXPECT_EQ(second.boxes(), savedBox);
    EXPECT_EQ(newPersons(), (Lines{"白帆|3", "秦志|3"}));
}

TEST_F(TwoNewPersons, EnterOneNameAndNeitherIsAsked) {
    const ClerksRole role(*connection, *schema);
    Clerk first(role.register_(), newPerson("秦志"));
    Clerk second(role.register_(), newPerson("秦志"));
    meetBefore("insert into A01", first, second);
    EXPECT_EQ(first.boxes(), savedBox);
    EXPECT_EQ(second.boxes(), savedBox);
    EXPECT_EQ(newPersons(), (Lines{"秦志|3", "秦志|3"}));
}

} // namespace
} // namespace quillmere::postgresql

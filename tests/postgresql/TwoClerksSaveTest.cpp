#include "TwoClerksBench.h"

// No lock is taken anywhere: what two clerks do to each other who save into one set of one person, and what
// the tables' own keys keep them from.

namespace quillmere::postgresql {
namespace {

class TwoSaves : public TwoClerksBench {
protected:
    /// The record of the set that has one, with another text.
    [[nodiscard]] ClerksWork singleRecord(const std::string& text) const {
        return {4, person, [=](frmPersonWh& window) {
                    open(window, "创新点及主要业绩");
                    type(window, "A10_A1001_v", text);
                    press(window, "Save");
                }};
    }
};

TEST_F(TwoSaves, AddToOneSetAndTheSecondSaveRemovesTheFirst) {
    Clerk first(owner(), newStudy("200609", "丙"));
    Clerk second(owner(), newStudy("200709", "丁"));
    meetBefore("delete from A02", first, second);
    // Both hold the number 3, and a save begins with the removal of that number: no key can tell.
    EXPECT_EQ(first.boxes(), noBox);
    EXPECT_EQ(second.boxes(), noBox);
    EXPECT_EQ(studies(), (Lines{"1|甲", "2|乙", "3|丁"}));
}

TEST_F(TwoSaves, InsertOneNumberAndTheKeyRefusesTheSecond) {
    Clerk first(owner(), newStudy("200609", "丙"));
    Clerk second(owner(), newStudy("200709", "丁"));
    meetBefore("insert into A02", first, second);
    EXPECT_EQ(first.boxes(), noBox);
    expectRefused(second, "ux_a02_a00");
    EXPECT_EQ(studies(), (Lines{"1|甲", "2|乙", "3|丙"}));
}

TEST_F(TwoSaves, OneNumberIsStoredTwiceWithoutTheKey) {
    connection->execute("alter table A02 drop constraint UX_A02_A00");
    Clerk first(owner(), newStudy("200609", "丙"));
    Clerk second(owner(), newStudy("200709", "丁"));
    meetBefore("insert into A02", first, second);
    EXPECT_EQ(second.boxes(), noBox);
    EXPECT_EQ(studies(), (Lines{"1|甲", "2|乙", "3|丙", "3|丁"}));
}

TEST_F(TwoSaves, StoreTheOneRecordOfASetAndTheKeyRefusesTheSecond) {
    Clerk first(owner(), singleRecord("甲法"));
    Clerk second(owner(), singleRecord("乙法"));
    meetBefore("insert into A10", first, second);
    expectRefused(second, "ux_a10_a00");
    EXPECT_EQ(linesOf("select A1001 from A10"), Lines{"甲法"});
}

TEST_F(TwoSaves, TheOneRecordOfASetIsStoredTwiceWithoutTheKey) {
    connection->execute("drop index UX_A10_A00");
    Clerk first(owner(), singleRecord("甲法"));
    Clerk second(owner(), singleRecord("乙法"));
    meetBefore("insert into A10", first, second);
    EXPECT_EQ(second.boxes(), noBox);
    EXPECT_EQ(linesOf("select count(*) from A10"), Lines{"2"});
}

TEST_F(TwoSaves, ChangeTheOneRecordOfASetAndTheLaterSaveStands) {
    Clerk first(owner(), singleRecord("甲法"));
    first.workUntil("delete from A10");
    Clerk second(owner(), singleRecord("乙法"));
    second.finish();
    first.finish();
    EXPECT_EQ(first.boxes(), noBox);
    EXPECT_EQ(second.boxes(), noBox);
    EXPECT_EQ(linesOf("select A1001 from A10"), Lines{"甲法"});
}

} // namespace
} // namespace quillmere::postgresql

#include "save/WalkBench.h"

namespace quillmere {
namespace {

using MaskedWalkTest = test::WalkBench;

TEST_F(MaskedWalkTest, AnUnfilledMaskedVarcharIsStoredAsTheEmptyText) {
    buildMask("varchar");
    write("A0102", "____年__月");
    expectStored(",A0102", ",''");
}

TEST_F(MaskedWalkTest, AnUnfilledMaskedDateIsLeftOut) {
    buildMask("datetime");
    write("A0102", "____年__月");
    expectStored("", "");
}

TEST_F(MaskedWalkTest, ARequiredNumberInAMaskedBoxThatIsFilledPassesAndIsNotStored) {
    build("A01", {{field::number("A0102", "x"), "int"}});
    item("A0102").IsNUll = false;
    write("A0102", "2026");
    expectStored("", "");
}

TEST_F(MaskedWalkTest, AMaskedBoxHasNoInputCheckAndNoLengthCheck) {
    buildMask("varchar");
    item("A0102").Check = "A 1";
    write("A0102", characters(256));
    expectStored(",A0102", ",'" + characters(256) + "'");
}

// Check boxes.

TEST_F(MaskedWalkTest, ACheckBoxStoresItsStateAsQuotedText) {
    build("A01", {{field::check("A0102", "x"), "bit"}, {field::check("A0103", "y"), "bit"}});
    widget<ui::CheckBox>("A0102").setValue(1);
    expectStored(",A0102,A0103", ",'1','0'");
}

TEST_F(MaskedWalkTest, ACheckBoxIsStoredWhateverTheTypeAndNeverChecked) {
    build("A01", {{field::check("A0102", "x"), "float"}});
    item("A0102").IsNUll = false;
    item("A0102").Check = "L 9";
    expectStored(",A0102", ",'0'");
}

} // namespace
} // namespace quillmere

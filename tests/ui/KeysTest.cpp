#include "platform/ui/Keys.h"

#include "platform/Error.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace quillmere::test {

namespace {

using ui::parseKeys;
using Strokes = std::vector<ui::KeyStroke>;

constexpr int plain = ui::shift::None;
constexpr int withShift = ui::shift::Shift;

} // namespace

TEST(KeysTest, TheEmptySequencePressesNothing) { EXPECT_TRUE(parseKeys("").empty()); }

TEST(KeysTest, TabIsOneKey) { EXPECT_EQ((Strokes{{ui::key::Tab, plain}}), parseKeys("{tab}")); }

TEST(KeysTest, APlusHoldsShiftForTheNextKeyAlone) {
    EXPECT_EQ((Strokes{{ui::key::Home, plain}, {ui::key::End, withShift}}), parseKeys("{Home}+{End}"));
    EXPECT_EQ((Strokes{{ui::key::Tab, withShift}, {ui::key::Tab, plain}}), parseKeys("+{tab}{tab}"));
}

TEST(KeysTest, EveryNameStandsForItsKey) {
    struct Row {
        std::string_view sequence;
        int code;
    };
    constexpr Row rows[] = {
        {"{backspace}", ui::key::Backspace},
        {"{delete}", ui::key::Delete},
        {"{down}", ui::key::Down},
        {"{end}", ui::key::End},
        {"{enter}", ui::key::Enter},
        {"{esc}", ui::key::Escape},
        {"{home}", ui::key::Home},
        {"{left}", ui::key::Left},
        {"{right}", ui::key::Right},
        {"{tab}", ui::key::Tab},
        {"{up}", ui::key::Up},
    };
    for (const Row& row : rows)
        EXPECT_EQ((Strokes{{row.code, plain}}), parseKeys(row.sequence)) << row.sequence;
}

TEST(KeysTest, CaseOfANameDoesNotMatter) {
    for (const auto* sequence : {"{TAB}", "{Tab}", "{tAb}"})
        EXPECT_EQ((Strokes{{ui::key::Tab, plain}}), parseKeys(sequence)) << sequence;
}

TEST(KeysTest, AnythingElseIsAnInvalidCall) {
    for (const auto* sequence :
         {"tab", "{tab", "tab}", "{}", "{hme}", "{ tab}", "{tab }", "{{tab}", "{tab}}", "{tab} ", "^{end}",
          "{ｔａｂ}", "{制表}", "{tab}{none}", "+", "{tab}+", "++{tab}", "+x"}) {
        try {
            const auto strokes = parseKeys(sequence);
            ADD_FAILURE() << sequence << " gave " << strokes.size() << " keys";
        } catch (const Error& error) {
            EXPECT_EQ(static_cast<int>(Failure::InvalidCall), error.number()) << sequence;
        }
    }
}

} // namespace quillmere::test

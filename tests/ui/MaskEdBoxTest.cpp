#include "platform/ui/MaskEdBox.h"

#include "platform/text/Text.h"
#include "platform/ui/Form.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace quillmere::ui {
namespace {

/// A masked box with the focus on an open form.
class Bench {
public:
    explicit Bench(std::string mask = "####年##月##日")
        : box(form.add<MaskEdBox>("box", std::move(mask), "f")) {}

    void work(const std::function<void()>& what) {
        person.show(form, [&](Form&) {
            ASSERT_TRUE(form.moveFocus(box));
            what();
        });
    }

    /// Plays keys: names in angle brackets ("<Home>", "<+Left>" with Shift), "[text]" pastes, every
    /// other character is typed.
    void play(std::string_view keys) {
        while (!keys.empty()) {
            const char closing = keys.front() == '<' ? '>' : ']';
            const auto close = keys.find(closing);
            if (keys.front() == '<') {
                press(keys.substr(1, close - 1));
                keys.remove_prefix(close + 1);
            } else if (keys.front() == '[') {
                form.paste(keys.substr(1, close - 1));
                keys.remove_prefix(close + 1);
            } else {
                const std::string first = text::left(keys, 1);
                test::typeText(form, first);
                keys.remove_prefix(first.size());
            }
        }
    }

    void press(std::string_view name) {
        if (name == "All") return form.selectAll();
        std::string sequence = name.front() == '+' ? "+{" : "{";
        sequence += name.substr(name.front() == '+' ? 1 : 0);
        for (const KeyStroke& stroke : parseKeys(sequence + "}"))
            form.pressKey(stroke);
    }

    test::ScriptedPerson person;
    Form form{"frm", "frm"};
    MaskEdBox& box;
};

TEST(MaskEdBoxTest, AFreshBoxShowsTheMaskWithItsPromptCharacters) {
    const MaskEdBox box("box", "####年##月", "yyyy年mm月", U'*');
    EXPECT_EQ(box.Text(), "****年**月");
    EXPECT_EQ(box.emptyText(), "****年**月");
    EXPECT_EQ(box.MaskText(), "####年##月");
    EXPECT_EQ(box.Format(), "yyyy年mm月");
    EXPECT_EQ(box.PromptChar(), U'*');
}

struct Row {
    std::string name;
    std::string mask;
    std::string keys;
    std::string text;
    std::size_t caret;
    std::size_t selected = 0;
};

constexpr auto year = "####";
constexpr auto month = "####年##月";
constexpr auto day = "####年##月##日";
constexpr auto dashed = "####-##-##";

class MaskKeysTest : public testing::TestWithParam<Row> {};

TEST_P(MaskKeysTest, KeysGive) {
    const Row& row = GetParam();
    Bench bench(row.mask);
    bench.work([&] {
        bench.play(row.keys);
        EXPECT_EQ(bench.box.Text(), row.text);
        EXPECT_EQ(bench.box.SelStart(), row.caret);
        EXPECT_EQ(bench.box.SelLength(), row.selected);
    });
}

const auto rowName = [](const testing::TestParamInfo<Row>& row) { return row.param.name; };

INSTANTIATE_TEST_SUITE_P(
    Typing, MaskKeysTest,
    testing::Values(Row{"OneDigit", year, "1", "1___", 1}, Row{"AFullYear", year, "1990", "1990", 4},
                    Row{"NothingBehindTheEnd", year, "19905", "1990", 4},
                    Row{"DigitsPassOverLiterals", day, "19900312", "1990年03月12日", 10},
                    Row{"DigitsPassOverDashes", dashed, "19900312", "1990-03-12", 10},
                    Row{"TheCaretWaitsBeforeALiteral", month, "1990", "1990年__月", 4},
                    Row{"LettersAreRefused", month, "1a九-+ ①9", "19__年__月", 2},
                    Row{"ThePromptCharacterIsRefused", month, "1_9", "19__年__月", 2},
                    Row{"TheMasksOwnSignIsRefused", month, "1#9", "19__年__月", 2},
                    Row{"FullWidthDigitsAreDigits", month, "１９９００３", "1990年03月", 7},
                    Row{"ALiteralJumpsBehindItsPlace", day, "1990年3月5日", "1990年3_月5_日", 11},
                    Row{"ALiteralThatIsPassedDoesNotJumpBack", day, "1990年年3", "1990年3_月__日", 6},
                    Row{"ADashJumps", dashed, "19-3-5", "19__-3_-5_", 9},
                    Row{"OverwritesWhatIsThere", year, "1990<Home>2", "2990", 1},
                    Row{"OverwritesBehindALiteral", month, "199003<Home><Right><Right><Right><Right>1",
                        "1990年13月", 6}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    Erasing, MaskKeysTest,
    testing::Values(Row{"BackspaceEmptiesThePlaceBefore", year, "199<Backspace>", "19__", 2},
                    Row{"BackspacePassesOverALiteral", month, "19900<Backspace><Backspace>", "199_年__月", 3},
                    Row{"BackspaceAtTheFrontDoesNothing", year, "1990<Home><Backspace>", "1990", 0},
                    Row{"BackspaceBehindAClosingLiteral", month, "199003<End><Backspace>", "1990年0_月", 6},
                    Row{"DeleteEmptiesThePlaceBehind", year, "1990<Home><Delete>", "_990", 0},
                    Row{"DeletePassesOverALiteral", month, "199003<Home><Right><Right><Right><Right><Delete>",
                        "1990年_3月", 5},
                    Row{"DeleteAtTheEndDoesNothing", month, "199003<End><Delete>", "1990年03月", 8},
                    Row{"DeleteEmptiesTheSelection", month, "199003<Home><+Right><+Right><Delete>",
                        "__90年03月", 0},
                    Row{"BackspaceEmptiesTheSelection", month, "199003<All><Backspace>", "____年__月", 0},
                    Row{"LiteralsInASelectionStay", month, "199003<Home><Right><Right><Right><+End><Delete>",
                        "199_年__月", 3},
                    Row{"TypingReplacesTheSelection", month, "199003<All>2", "2___年__月", 1},
                    Row{"ARefusedKeyLeavesTheSelection", month, "199003<All>x", "1990年03月", 0, 8}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    Moving, MaskKeysTest,
    testing::Values(
        Row{"HomeAndEnd", month, "<End>", "____年__月", 8}, Row{"Home", month, "19<Home>", "19__年__月", 0},
        Row{"LeftStopsAtTheFront", year, "1<Left><Left><Left>", "1___", 0},
        Row{"RightStopsAtTheEnd", year, "<End><Right><Right>", "____", 4},
        Row{"HomeThenShiftEndSelectsAll", month, "19<Home><+End>", "19__年__月", 0, 8},
        Row{"ShiftHomeSelectsToTheFront", month, "199<+Home>", "199_年__月", 0, 3},
        Row{"ShiftLeftExtendsStepByStep", month, "1990<+Left><+Left>", "1990年__月", 2, 2},
        Row{"ShiftRightTakesBackShiftLeft", month, "1990<+Left><+Left><+Right>", "1990年__月", 3, 1},
        Row{"LeftLeavesASelectionAtItsFront", month, "<Home><Right><+End><Left>", "____年__月", 1},
        Row{"RightLeavesASelectionAtItsEnd", month, "1990<+Home><Right>", "1990年__月", 4}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    Pasting, MaskKeysTest,
    testing::Values(Row{"ADashedMonth", month, "[1990-03]", "1990年03月", 7},
                    Row{"DigitsOnly", day, "[19900312]", "1990年03月12日", 10},
                    Row{"AShortGroupMovesOn", month, "[1990年3月]", "1990年3_月", 8},
                    Row{"SlashesAndShortGroups", day, "[1990/3/5]", "1990年3_月5_日", 9},
                    Row{"BlanksAroundAndBetween", day, "[ 1990 - 03 - 12 ]", "1990年03月12日", 11},
                    Row{"FullWidthDigits", month, "[１９９０．０３]", "1990年03月", 7},
                    Row{"TooMuchIsCut", year, "[1990-03-12]", "1990", 4},
                    Row{"FromTheCaretOn", month, "1990年[03]", "1990年03月", 7},
                    Row{"ReplacesTheSelection", month, "199003<All>[2001]", "2001年__月", 4},
                    Row{"WithoutADigitChangesNothing", month, "199003<All>[不详]", "1990年03月", 0, 8},
                    Row{"AHalfFilledBoxPastesAsItIs", month, "1990<All>[____年１2月]", "____年12月", 8}),
    rowName);

struct SetRow {
    std::string name;
    std::string text;
    std::string keys;
    std::string after;
};

class MaskSetTextTest : public testing::TestWithParam<SetRow> {};

TEST_P(MaskSetTextTest, ATextOfAnotherShapeStaysUntilAPersonEdits) {
    const SetRow& row = GetParam();
    Bench bench(month);
    bench.work([&] {
        bench.box.setText(row.text);
        EXPECT_EQ(bench.box.Text(), row.text);
        bench.play(row.keys);
        EXPECT_EQ(bench.box.Text(), row.after);
    });
}

INSTANTIATE_TEST_SUITE_P(Shapes, MaskSetTextTest,
                         testing::Values(SetRow{"Empty", "", "1990", "1990年__月"},
                                         SetRow{"EmptyThenALiteral", "", "年3", "____年3_月"},
                                         SetRow{"Stored", "1990-03", "<Home>2", "2990年03月"},
                                         SetRow{"TooLong", "1990年03月12日", "<Home>2", "2990年03月"},
                                         SetRow{"NoDigit", "不详", "<Home>2", "2___年__月"},
                                         SetRow{"AllSelected", "1990-03", "<All>2", "2___年__月"}),
                         [](const testing::TestParamInfo<SetRow>& row) { return row.param.name; });

TEST(MaskEdBoxTest, SettingTheTextRaisesChangeAtOnceAndOnlyWhenItDiffers) {
    MaskEdBox box("box", year, "####");
    std::string seen;
    box.Change.connect([&] { seen += box.Text() + ";"; });
    box.setText("1990");
    EXPECT_EQ(seen, "1990;");
    box.setText("1990");
    EXPECT_EQ(seen, "1990;");
}

TEST(MaskEdBoxTest, AKeyThatChangesNothingRaisesNoChange) {
    Bench bench(year);
    bench.work([&] {
        int changes = 0;
        bench.box.Change.connect([&] { ++changes; });
        bench.play("x<Home><Delete><Backspace>[abc]");
        EXPECT_EQ(changes, 0);
        bench.play("1");
        EXPECT_EQ(changes, 1);
    });
}

TEST(MaskEdBoxTest, AHandlerMaySwallowOrChangeTheDigit) {
    Bench bench(year);
    bench.work([&] {
        bench.box.KeyPress.connect([](char32_t& character) {
            if (character == U'1') character = 0;
            if (character == U'2') character = U'8';
        });
        bench.play("123");
        EXPECT_EQ(bench.box.Text(), "83__");
    });
}

TEST(MaskEdBoxTest, AHandlerOfGotFocusPutsTheCaretToTheFront) {
    Bench bench(month);
    auto& other = bench.form.add<MaskEdBox>("other", year, "####");
    bench.box.GotFocus.connect([&] { bench.box.setSelStart(0); });
    bench.work([&] {
        bench.play("199003");
        ASSERT_TRUE(bench.form.moveFocus(other));
        ASSERT_TRUE(bench.form.moveFocus(bench.box));
        EXPECT_EQ(bench.box.SelStart(), 0U);
    });
}

TEST(MaskEdBoxTest, ASelectionIsCutToTheText) {
    MaskEdBox box("box", year, "####");
    box.setSelection(2, 50);
    EXPECT_EQ(box.SelStart(), 2U);
    EXPECT_EQ(box.SelLength(), 2U);
    box.setSelStart(50);
    EXPECT_EQ(box.SelStart(), 4U);
}

/// What holds for a mask whatever a person does.
void expectInvariants(const MaskEdBox& box, const std::string& history) {
    const std::u32string mask = text::decode(box.MaskText());
    const std::u32string shown = text::decode(box.Text());
    ASSERT_EQ(shown.size(), mask.size()) << history;
    ASSERT_LE(box.SelStart() + box.SelLength(), mask.size()) << history;
    for (std::size_t i = 0; i < mask.size(); ++i) {
        const bool digit = (shown[i] >= U'0' && shown[i] <= U'9') || shown[i] == U'_';
        ASSERT_TRUE(mask[i] == U'#' ? digit : shown[i] == mask[i]) << history << " -> " << box.Text();
    }
}

TEST(MaskEdBoxTest, NoSequenceOfKeysBreaksTheMask) {
    const std::vector<std::string> keys{
        "0",        "7",       "５",          "年",          "月",           "-",
        "x",        "①",       "_",           "#",           "<Home>",       "<End>",
        "<Left>",   "<Right>", "<+Left>",     "<+Right>",    "<+Home>",      "<+End>",
        "<Delete>", "<All>",   "<Backspace>", "[1990-03-1]", "[____年12月]", "[张]",
        "[2001.9]"};
    std::mt19937 random(20240229);
    for (const char* mask : {month, dashed}) {
        Bench bench(mask);
        bench.work([&] {
            for (int sequence = 0; sequence < 1000; ++sequence) {
                std::string history;
                bench.box.setText(bench.box.emptyText());
                for (int i = 0; i < 12; ++i) {
                    const std::string& key = keys[random() % keys.size()];
                    history += key;
                    bench.play(key);
                    ASSERT_NO_FATAL_FAILURE(expectInvariants(bench.box, history));
                }
            }
        });
        if (testing::Test::HasFatalFailure()) return;
    }
}

} // namespace
} // namespace quillmere::ui

#include "TextBoxBench.h"

#include "platform/text/Text.h"

#include <random>

namespace quillmere::ui {
namespace {

struct Row {
    std::string name;
    std::string before;
    std::size_t start;
    std::size_t length;
    /// Keys in braces, or a text to type.
    std::string keys;
    std::string text;
    std::size_t caret;
    std::size_t selected = 0;
    bool multiLine = false;
    std::size_t maxLength = 0;
};

using TextBoxKeysTest = TextBoxBench;

class TextBoxKeys : public TextBoxBench, public testing::WithParamInterface<Row> {};

TEST_P(TextBoxKeys, KeysGive) {
    const Row& row = GetParam();
    box.setText(row.before);
    box.setMultiLine(row.multiLine);
    box.setMaxLength(row.maxLength);
    work([&] {
        box.setSelection(row.start, row.length);
        if (row.keys.starts_with("{") || row.keys.starts_with("+{"))
            press(row.keys);
        else
            type(row.keys);
        EXPECT_EQ(box.Text(), row.text);
        EXPECT_EQ(box.SelStart(), row.caret);
        EXPECT_EQ(box.SelLength(), row.selected);
    });
}

INSTANTIATE_TEST_SUITE_P(
    Keys, TextBoxKeys,
    testing::Values(Row{"TypesAtTheCaret", "张丰", 1, 0, "三", "张三丰", 2},
                    Row{"TypingReplacesTheSelection", "张三丰", 1, 2, "飞", "张飞", 2},
                    Row{"Backspace", "张三", 2, 0, "{Backspace}", "张", 1},
                    Row{"BackspaceAtTheFront", "张三", 0, 0, "{Backspace}", "张三", 0},
                    Row{"BackspaceTakesTheSelection", "张三丰", 0, 2, "{Backspace}", "丰", 0},
                    Row{"Delete", "张三", 0, 0, "{Delete}", "三", 0},
                    Row{"DeleteAtTheEnd", "张三", 2, 0, "{Delete}", "张三", 2},
                    Row{"DeleteTakesTheSelection", "张三丰", 1, 1, "{Delete}", "张丰", 1},
                    Row{"EnterStaysOutOfOneLine", "ab", 1, 0, "{Enter}", "ab", 1},
                    Row{"EnterBreaksALine", "ab", 1, 0, "{Enter}", "a\r\nb", 3, 0, true},
                    Row{"BackspaceTakesALineBreakAsOne", "a\r\nb", 3, 0, "{Backspace}", "ab", 1, 0, true},
                    Row{"DeleteTakesALineBreakAsOne", "a\r\nb", 1, 0, "{Delete}", "ab", 1, 0, true},
                    Row{"RightGoesOverALineBreakAsOne", "a\r\nb", 1, 0, "{Right}", "a\r\nb", 3, 0, true},
                    Row{"LeftGoesOverALineBreakAsOne", "a\r\nb", 3, 0, "{Left}", "a\r\nb", 1, 0, true},
                    Row{"NoHalfALineBreakWhereOnePlaceIsLeft", "ab", 1, 0, "{Enter}", "ab", 1, 0, true, 3},
                    Row{"EscapeEntersNothing", "ab", 1, 0, "{Esc}", "ab", 1},
                    Row{"HomeThenShiftEnd", "张三丰", 2, 0, "{Home}+{End}", "张三丰", 0, 3},
                    Row{"ShiftHome", "张三丰", 2, 0, "+{Home}", "张三丰", 0, 2},
                    Row{"ShiftLeftTwice", "张三丰", 3, 0, "+{Left}+{Left}", "张三丰", 1, 2},
                    Row{"ShiftLeftThenRight", "张三丰", 3, 0, "+{Left}+{Left}+{Right}", "张三丰", 2, 1},
                    Row{"ShiftRightOverTheOtherEnd", "张三丰", 1, 0, "+{Left}+{Right}+{Right}", "张三丰", 1,
                        1},
                    Row{"LeftLeavesASelectionAtItsFront", "张三丰", 1, 2, "{Left}", "张三丰", 1},
                    Row{"RightLeavesASelectionAtItsEnd", "张三丰", 0, 2, "{Right}", "张三丰", 2},
                    Row{"MaxLengthCountsCharacters", "", 0, 0, "张三丰无忌", "张三丰", 3, 0, false, 3},
                    Row{"AFullBoxTakesAReplacement", "张三丰", 2, 1, "飞", "张三飞", 3, 0, false, 3},
                    Row{"AFullBoxKeepsItsText", "张三丰", 0, 0, "飞", "张三丰", 0, 0, false, 3}),
    [](const testing::TestParamInfo<Row>& row) { return row.param.name; });

TEST_F(TextBoxKeysTest, TheCharacterOfADeletionByWordEntersNothing) {
    work([&] {
        form.typeCharacter(127);
        EXPECT_EQ(box.Text(), "");
    });
}

TEST_F(TextBoxKeysTest, NoSequenceOfKeysBreaksTheBox) {
    const Texts keys{"{Home}",  "{End}",  "{Left}",      "{Right}",  "+{Left}", "+{Right}",
                     "+{Home}", "+{End}", "{Backspace}", "{Delete}", "{Enter}"};
    const Texts pieces{"张", "a", "１", "\r\n", "三\r\n四", "abcdefgh", "𠮷"};
    constexpr std::size_t most = 7;
    box.setMultiLine(true);
    box.setMaxLength(most);
    std::mt19937 random(20240229);
    work([&] {
        for (int sequence = 0; sequence < 2000; ++sequence) {
            std::string history;
            box.setText("");
            for (int i = 0; i < 12; ++i) {
                const auto kind = random() % 3;
                const std::string& entry =
                    kind == 0 ? keys[random() % keys.size()] : pieces[random() % pieces.size()];
                history += entry + "|";
                if (kind == 0)
                    press(entry);
                else if (kind == 1)
                    type(entry);
                else
                    form.paste(entry);
                const std::string& shown = box.Text();
                ASSERT_LE(text::length(shown), most) << history;
                ASSERT_LE(box.SelStart() + box.SelLength(), text::length(shown)) << history;
                // Every line break is whole.
                const std::string joined = text::replaceAll(shown, "\r\n", "");
                ASSERT_EQ(joined.find_first_of("\r\n"), std::string::npos) << history;
            }
        }
    });
}

} // namespace
} // namespace quillmere::ui

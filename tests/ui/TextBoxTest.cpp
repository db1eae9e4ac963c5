#include "platform/ui/TextBox.h"

#include "platform/text/Text.h"
#include "platform/ui/Form.h"
#include "platform/ui/UserControl.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace quillmere::ui {
namespace {

using Texts = std::vector<std::string>;

class PreviewForm : public Form {
public:
    PreviewForm() : Form("frm", "frm") {}
    std::function<void(char32_t&)> preview = [](char32_t&) {};

protected:
    void onKeyPreview(char32_t& character) override { preview(character); }
};

/// A text box with the focus, on a panel of an open form.
class TextBoxTest : public testing::Test {
protected:
    TextBoxTest() { panel.setVisible(true); }

    void work(const std::function<void()>& what) {
        person.show(form, [&](Form&) {
            ASSERT_TRUE(form.moveFocus(box));
            what();
        });
    }
    void type(std::string_view text) { test::typeText(form, text); }
    void press(std::string_view keys) {
        for (const KeyStroke& stroke : parseKeys(keys))
            form.pressKey(stroke);
    }

    test::ScriptedPerson person;
    PreviewForm form;
    UserControl& panel = form.add<UserControl>("panel");
    TextBox& box = panel.add<TextBox>("box");
};

// ---- properties

TEST_F(TextBoxTest, SettingTheTextRaisesChangeInsideTheSetting) {
    Texts log;
    box.Change.connect([&] { log.push_back("change " + box.Text()); });
    box.setText("张");
    log.emplace_back("set");
    EXPECT_EQ(log, (Texts{"change 张", "set"}));
}

TEST_F(TextBoxTest, SettingTheSameTextRaisesNothing) {
    box.setText("张");
    int changes = 0;
    box.Change.connect([&] { ++changes; });
    box.setText("张");
    EXPECT_EQ(changes, 0);
}

TEST_F(TextBoxTest, AProgramIsBoundNeitherByMaxLengthNorByLocked) {
    box.setMaxLength(2);
    box.setLocked(true);
    box.setText("四个汉字");
    EXPECT_EQ(box.Text(), "四个汉字");
}

TEST_F(TextBoxTest, ASelectionIsCutToTheText) {
    box.setText("张三丰");
    box.setSelection(1, 99);
    EXPECT_EQ(box.SelStart(), 1U);
    EXPECT_EQ(box.SelLength(), 2U);
    box.setSelection(99, 1);
    EXPECT_EQ(box.SelStart(), 3U);
    EXPECT_EQ(box.SelLength(), 0U);
}

// ---- the road of a character

TEST_F(TextBoxTest, ACharacterMeetsFormPanelAndControlBeforeTheText) {
    Texts log;
    form.preview = [&](char32_t& c) { log.push_back("form " + text::encode(c)); };
    panel.KeyPress.connect([&](char32_t& c) { log.push_back("panel " + text::encode(c)); });
    box.KeyPress.connect(
        [&](char32_t& c) { log.push_back("box " + text::encode(c) + " [" + box.Text() + "]"); });
    box.Change.connect([&] { log.push_back("change [" + box.Text() + "]"); });
    work([&] { type("张"); });
    EXPECT_EQ(log, (Texts{"form 张", "panel 张", "box 张 []", "change [张]"}));
}

TEST_F(TextBoxTest, ASwallowedCharacterGoesNoFurther) {
    int reached = 0;
    form.preview = [](char32_t& c) { c = c == U'\'' ? 0 : c; };
    panel.KeyPress.connect([&](char32_t&) { ++reached; });
    work([&] {
        type("'");
        EXPECT_EQ(reached, 0);
        EXPECT_EQ(box.Text(), "");
    });
}

TEST_F(TextBoxTest, AHandlerMayChangeTheCharacter) {
    box.KeyPress.connect([](char32_t& c) { c = c == U'a' ? U'A' : c; });
    work([&] {
        type("ab");
        EXPECT_EQ(box.Text(), "Ab");
    });
}

TEST_F(TextBoxTest, TheBellEntersNothing) {
    box.KeyPress.connect([](char32_t& c) { c = bellCharacter; });
    work([&] {
        type("ab");
        EXPECT_EQ(box.Text(), "");
    });
}

TEST_F(TextBoxTest, AHandlerThatTakesThePanelAwayEndsTheRoad) {
    int reached = 0;
    panel.KeyPress.connect([&](char32_t&) { form.removeAll(); });
    box.KeyPress.connect([&](char32_t&) { ++reached; });
    work([&] {
        type("a");
        EXPECT_EQ(reached, 0);
        EXPECT_EQ(form.Count(), 0U);
        EXPECT_EQ(form.ActiveControl(), nullptr);
    });
}

TEST_F(TextBoxTest, ASwallowedKeyDownDoesNothing) {
    box.setText("ab");
    box.KeyDown.connect([](int& code, int) { code = code == key::Delete ? 0 : code; });
    work([&] {
        press("{Delete}");
        EXPECT_EQ(box.Text(), "ab");
        press("{Right}");
        EXPECT_EQ(box.SelStart(), 1U);
    });
}

TEST_F(TextBoxTest, ThePanelSeesKeysFirst) {
    Texts log;
    panel.KeyDown.connect([&](int& code, int state) {
        log.push_back("panel " + std::to_string(code) + " " + std::to_string(state));
        code = 0;
    });
    box.KeyDown.connect([&](int&, int) { log.emplace_back("box"); });
    work([&] { form.pressKey({key::F2, shift::Ctrl}); });
    EXPECT_EQ(log, Texts{"panel 113 2"});
}

// ---- what keys do

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

class TextBoxKeysTest : public TextBoxTest, public testing::WithParamInterface<Row> {};

TEST_P(TextBoxKeysTest, KeysGive) {
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
    Keys, TextBoxKeysTest,
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

TEST_F(TextBoxTest, TheCharacterOfADeletionByWordEntersNothing) {
    work([&] {
        form.typeCharacter(127);
        EXPECT_EQ(box.Text(), "");
    });
}

// ---- Locked

TEST_F(TextBoxTest, ALockedBoxTakesTheFocusAndRefusesEveryEdit) {
    box.setText("张三");
    box.setLocked(true);
    int changes = 0;
    box.Change.connect([&] { ++changes; });
    work([&] {
        EXPECT_TRUE(box.hasFocus());
        type("x");
        press("{End}{Backspace}{Home}{Delete}");
        form.paste("y");
        form.selectAll();
        EXPECT_EQ(box.SelLength(), 2U);
        press("{Delete}");
        box.personEdited("z", 1);
        EXPECT_EQ(box.Text(), "张三");
        EXPECT_EQ(changes, 0);
    });
}

// ---- pasting

TEST_F(TextBoxTest, APasteReplacesTheSelectionAndRaisesOneChange) {
    box.setText("张三丰");
    int changes = 0;
    box.Change.connect([&] { ++changes; });
    work([&] {
        box.setSelection(1, 2);
        form.paste("无忌");
        EXPECT_EQ(box.Text(), "张无忌");
        EXPECT_EQ(box.SelStart(), 3U);
        EXPECT_EQ(changes, 1);
    });
}

TEST_F(TextBoxTest, APasteDoesNotPassTheKeyFilter) {
    box.KeyPress.connect([](char32_t& c) { c = bellCharacter; });
    work([&] {
        form.paste("abc");
        EXPECT_EQ(box.Text(), "abc");
    });
}

TEST_F(TextBoxTest, APasteIsCutToMaxLengthInCharacters) {
    box.setText("张");
    box.setMaxLength(3);
    work([&] {
        press("{End}");
        form.paste("三丰无忌");
        EXPECT_EQ(box.Text(), "张三丰");
    });
}

TEST_F(TextBoxTest, APasteIntoOneLineEndsAtTheLineBreak) {
    work([&] {
        form.paste("一\r\n二");
        EXPECT_EQ(box.Text(), "一");
    });
}

TEST_F(TextBoxTest, APasteIntoManyLinesKeepsThemAndTearsNone) {
    box.setMultiLine(true);
    work([&] {
        form.paste("一\r\n二");
        EXPECT_EQ(box.Text(), "一\r\n二");
        box.setMaxLength(2);
        form.selectAll();
        form.paste("三\r\n四");
        EXPECT_EQ(box.Text(), "三");
    });
}

// ---- edits that a toolkit's own editor made

TEST_F(TextBoxTest, AnEditOfTheToolkitRaisesChange) {
    int changes = 0;
    box.Change.connect([&] { ++changes; });
    box.personEdited("张三", 9);
    EXPECT_EQ(box.Text(), "张三");
    EXPECT_EQ(box.SelStart(), 2U);
    EXPECT_EQ(changes, 1);
}

TEST_F(TextBoxTest, AnEditOfTheToolkitBeyondMaxLengthIsUndone) {
    box.setMaxLength(2);
    box.setText("张三丰");
    box.personEdited("张三丰飞", 4);
    EXPECT_EQ(box.Text(), "张三丰");
    box.personEdited("张三", 2);
    EXPECT_EQ(box.Text(), "张三");
}

// ---- whatever is typed

TEST_F(TextBoxTest, NoSequenceOfKeysBreaksTheBox) {
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

// ---- double click

struct WordRow {
    const char* text;
    std::size_t caret;
    const char* word;
};

class TextBoxWordTest : public TextBoxTest, public testing::WithParamInterface<WordRow> {};

TEST_P(TextBoxWordTest, ADoubleClickSelectsWhatStandsTogether) {
    box.setText(GetParam().text);
    work([&] {
        box.setSelection(GetParam().caret, 0);
        EXPECT_TRUE(form.doubleClick(box));
        EXPECT_EQ(text::mid(box.Text(), box.SelStart() + 1, box.SelLength()), GetParam().word);
    });
}

INSTANTIATE_TEST_SUITE_P(
    Carets, TextBoxWordTest,
    testing::Values(WordRow{"abc def", 0, "abc"}, WordRow{"abc def", 2, "abc"}, WordRow{"abc  def", 3, "  "},
                    WordRow{"abc def", 7, "def"}, WordRow{"北京市，海淀区", 1, "北京市"},
                    WordRow{"北京市，海淀区", 3, "，"}, WordRow{"北京市，海淀区", 5, "海淀区"},
                    WordRow{"010-6275", 4, "6275"}, WordRow{"", 0, ""}, WordRow{"第5组A班", 0, "第5组A班"}));

TEST_F(TextBoxTest, ADoubleClickOnALockedBoxSelectsNothing) {
    box.setText("汉族");
    box.setLocked(true);
    work([&] {
        EXPECT_TRUE(form.doubleClick(box));
        EXPECT_EQ(box.SelLength(), 0U);
    });
}

} // namespace
} // namespace quillmere::ui

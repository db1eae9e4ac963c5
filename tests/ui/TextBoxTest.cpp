#include "TextBoxBench.h"

#include "platform/text/Text.h"

namespace quillmere::ui {
namespace {

using TextBoxTest = TextBoxBench;

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

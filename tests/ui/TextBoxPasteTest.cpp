#include "TextBoxBench.h"

namespace quillmere::ui {
namespace {

using TextBoxPasteTest = TextBoxBench;

TEST_F(TextBoxPasteTest, APasteReplacesTheSelectionAndRaisesOneChange) {
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

TEST_F(TextBoxPasteTest, APasteDoesNotPassTheKeyFilter) {
    box.KeyPress.connect([](char32_t& c) { c = bellCharacter; });
    work([&] {
        form.paste("abc");
        EXPECT_EQ(box.Text(), "abc");
    });
}

TEST_F(TextBoxPasteTest, APasteIsCutToMaxLengthInCharacters) {
    box.setText("张");
    box.setMaxLength(3);
    work([&] {
        press("{End}");
        form.paste("三丰无忌");
        EXPECT_EQ(box.Text(), "张三丰");
    });
}

TEST_F(TextBoxPasteTest, APasteIntoOneLineEndsAtTheLineBreak) {
    work([&] {
        form.paste("一\r\n二");
        EXPECT_EQ(box.Text(), "一");
    });
}

TEST_F(TextBoxPasteTest, APasteIntoManyLinesKeepsThemAndTearsNone) {
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

} // namespace
} // namespace quillmere::ui

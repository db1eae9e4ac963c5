#include "platform/ui/Colour.h"
#include "platform/ui/TextBox.h"
#include "ui/Typing.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::test {

namespace {

/// Works with the focus in a text box, whose Changes are counted.
class TextEntryTest : public testing::Test {
protected:
    void work(const std::function<void()>& what) {
        person.show(form, [&](ui::Form&) {
            ASSERT_TRUE(form.moveFocus(box));
            box.Change.connect([this] { ++changes; });
            what();
        });
    }

    ScriptedPerson person;
    ui::Form form{"frmText", "文本"};
    ui::TextBox& box = form.add<ui::TextBox>("txtBox");
    int changes = 0;
};

} // namespace

TEST_F(TextEntryTest, AnEntryWithoutRoomLeavesWhatIsSelected) {
    box.setMaxLength(2);
    box.setText("张三丰无忌");
    work([&] {
        box.setSelection(0, 2);
        doKeys(form, "李<Paste:四>");
        EXPECT_EQ("[张三]丰无忌", look(box));
        EXPECT_EQ(0, changes);
        doKeys(form, "<All>李四五");
        EXPECT_EQ("李四|", look(box));
    });
}

TEST_F(TextEntryTest, ATextBeyondMaxLengthMayStillBeShortened) {
    box.setMaxLength(2);
    box.setText("张三丰");
    work([&] {
        doKeys(form, "<End><Back>");
        EXPECT_EQ("张三|", look(box));
        doKeys(form, "x");
        EXPECT_EQ("张三|", look(box));
    });
}

TEST_F(TextEntryTest, AnEmptyPasteLeavesWhatIsSelected) {
    box.setText("张三");
    work([&] {
        doKeys(form, "<All><Paste:><Paste:\r\n李四>");
        EXPECT_EQ("[张三]", look(box));
        EXPECT_EQ(0, changes);
    });
}

TEST_F(TextEntryTest, ALineEndsHoweverItsBreakIsWritten) {
    for (const auto* pasted : {"一\r\n二", "一\n二", "一\r二", "一\n\n二"}) {
        form.removeAll();
        auto& line = form.add<ui::TextBox>("txtLine");
        person.show(form, [&](ui::Form&) {
            ASSERT_TRUE(form.moveFocus(line));
            form.paste(pasted);
            EXPECT_EQ("一|", look(line));
        });
    }
}

TEST_F(TextEntryTest, LineBreaksOfAPasteComeInOneForm) {
    box.setMultiLine(true);
    work([&] {
        form.paste("一\n二\r三\r\n四\n\n");
        EXPECT_EQ("一\r\n二\r\n三\r\n四\r\n\r\n|", look(box));
        EXPECT_EQ(1, changes);
    });
}

TEST_F(TextEntryTest, ReplacingATextByItselfIsNoChange) {
    box.setText("张三");
    work([&] {
        doKeys(form, "<All><Paste:张三>");
        EXPECT_EQ("张三|", look(box));
        EXPECT_EQ(0, changes);
    });
}

TEST_F(TextEntryTest, EnterInAPlainBoxStaysWithTheBox) {
    auto& next = form.add<ui::TextBox>("txtNext");
    work([&] {
        doKeys(form, "张<Enter>三");
        EXPECT_EQ("张三", box.Text());
        EXPECT_TRUE(box.hasFocus());
        EXPECT_EQ("", next.Text());
    });
}

TEST_F(TextEntryTest, AHandlerOfChangeMayMendTheText) {
    box.Change.connect([&] { box.setText(text::upper(box.Text())); });
    work([&] {
        doKeys(form, "ab");
        EXPECT_EQ("AB|", look(box));
    });
}

TEST_F(TextEntryTest, TheCaretStaysWhereItIsWhenTheProgramSetsALongerText) {
    box.setText("张三");
    box.setSelection(1, 1);
    box.setText("李四光");
    EXPECT_EQ("李|四光", look(box));
    box.setText("");
    EXPECT_EQ("|", look(box));
}

TEST_F(TextEntryTest, KeysAfterAnEditOfTheProgramStartFromTheTextThatIsThere) {
    box.setText("张三丰");
    work([&] {
        doKeys(form, "<End>");
        box.setText("李");
        doKeys(form, "<Back>");
        EXPECT_EQ("|", look(box));
    });
}

TEST_F(TextEntryTest, ACharacterBeyondTheFirstPlaneIsOneCharacter) {
    box.setMaxLength(2);
    work([&] {
        doKeys(form, "𠮷𠮷𠮷<Back>");
        EXPECT_EQ("𠮷|", look(box));
    });
}

TEST_F(TextEntryTest, PropertiesOfATextBoxAreToldByName) {
    box.setText("张三丰");
    box.setLocked(true);
    box.setMaxLength(20);
    box.setBackColor(ui::colour::codedField);
    box.setSelection(1, 2);
    struct Row {
        std::string_view name;
        std::string value;
    };
    const std::vector<Row> rows{{"text", "张三丰"},
                                {"Locked", "true"},
                                {"MaxLength", "20"},
                                {"MultiLine", "false"},
                                {"SelStart", "1"},
                                {"SelLength", "2"},
                                {"BackColor", std::to_string(ui::colour::codedField)}};
    for (const Row& row : rows)
        EXPECT_EQ(row.value, box.property(row.name)) << row.name;
    EXPECT_FALSE(box.property("Mask").has_value());
}

} // namespace quillmere::test

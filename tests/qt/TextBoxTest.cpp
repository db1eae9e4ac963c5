#include "platform/ui/TextBox.h"
#include "platform/ui/Form.h"
#include "qt/RealPerson.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>

namespace quillmere::test {

namespace {

class TextForm : public ui::Form {
public:
    TextForm()
        : Form("frmText", "文本"), line(add<ui::TextBox>("txtLine")), memo(add<ui::TextBox>("txtMemo")) {
        memo.setMultiLine(true);
    }

    ui::TextBox& line;
    ui::TextBox& memo;
};

/// Works in the form; `prepare` runs before it shows.
void inForm(const std::function<void(TextForm&)>& prepare,
            const std::function<void(TextForm&, QLineEdit&)>& work) {
    TextForm form;
    prepare(form);
    Screen screen;
    screen.show(form, [&](ui::Form&) {
        form.line.SetFocus();
        ASSERT_TRUE(focusComesTo("txtLine"));
        work(form, widgetNamed<QLineEdit>("txtLine"));
    });
}

void inForm(const std::function<void(TextForm&, QLineEdit&)>& work) {
    inForm([](TextForm&) {}, work);
}

void makeCoded(TextForm& form) {
    form.line.setText("汉族");
    form.line.setLocked(true);
    form.line.setBackColor(ui::colour::codedField);
}

} // namespace

TEST(TextBoxTest, ChineseKeysEnterTheirCharacters) {
    inForm([](TextForm& form, QLineEdit& editor) {
        typeKeys("张三a1");
        EXPECT_EQ("张三a1", form.line.Text());
        EXPECT_EQ("张三a1", editor.text().toStdString());
    });
}

TEST(TextBoxTest, WhatAnInputMethodGivesPassesTheKeyFilterCharacterByCharacter) {
    inForm([](TextForm& form, QLineEdit& editor) {
        std::u32string seen;
        form.line.KeyPress.connect([&](char32_t& character) {
            seen += character;
            if (character == U'坏') character = ui::bellCharacter;
        });
        compose("hao", "好坏人");
        EXPECT_EQ(U"好坏人", seen);
        EXPECT_EQ("好人", form.line.Text());
        EXPECT_EQ("好人", editor.text().toStdString());
    });
}

TEST(TextBoxTest, ACompositionUnderWayChangesNothingUntilItEnds) {
    inForm([](TextForm& form, QLineEdit& editor) {
        typeKeys("张");
        int changes = 0;
        form.line.Change.connect([&] { ++changes; });
        compose("sa", "");
        compose("san", "");
        EXPECT_EQ("张", form.line.Text());
        EXPECT_EQ(0, changes);
        compose("san", "三");
        EXPECT_EQ("张三", form.line.Text());
        EXPECT_EQ("张三", editor.text().toStdString());
        EXPECT_EQ(1, changes);
    });
}

TEST(TextBoxTest, MaxLengthCountsCharactersAlsoWhenPasted) {
    inForm([](TextForm& form) { form.line.setMaxLength(3); },
           [](TextForm& form, QLineEdit&) {
               typeKeys("张三𠀀四");
               EXPECT_EQ("张三𠀀", form.line.Text());
               QApplication::clipboard()->setText(QStringLiteral("一二三四五"));
               pressKey(Qt::Key_A, Qt::ControlModifier);
               pressKey(Qt::Key_V, Qt::ControlModifier);
               EXPECT_EQ("一二三", form.line.Text());
           });
}

TEST(TextBoxTest, APasteEndsAtTheFirstLineBreak) {
    inForm([](TextForm& form, QLineEdit&) {
        QApplication::clipboard()->setText(QStringLiteral("第一行\r\n第二行"));
        pressKey(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ("第一行", form.line.Text());
    });
}

TEST(TextBoxTest, BackspacePassesTheKeyFilter) {
    inForm([](TextForm& form, QLineEdit&) {
        typeKeys("ab");
        bool refuse = true;
        form.line.KeyPress.connect([&](char32_t& character) {
            if (refuse && character == ui::key::Backspace) character = 0;
        });
        pressKey(Qt::Key_Backspace);
        EXPECT_EQ("ab", form.line.Text());
        refuse = false;
        pressKey(Qt::Key_Backspace);
        EXPECT_EQ("a", form.line.Text());
    });
}

TEST(TextBoxTest, CtrlZTakesBackWhatWasTyped) {
    inForm([](TextForm& form, QLineEdit& editor) {
        typeKeys("张三");
        while (editor.isUndoAvailable())
            pressKey(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ("", form.line.Text());
    });
}

TEST(TextBoxTest, CaretAndSelectionOfTheEditorAreTheModels) {
    inForm([](TextForm& form, QLineEdit&) {
        typeKeys("张三李四");
        EXPECT_EQ(4U, form.line.SelStart());
        pressKey(Qt::Key_Left);
        pressKey(Qt::Key_Left, Qt::ShiftModifier);
        EXPECT_EQ(2U, form.line.SelStart());
        EXPECT_EQ(1U, form.line.SelLength());
        typeKeys("王");
        EXPECT_EQ("张三王四", form.line.Text());
    });
}

TEST(TextBoxTest, ATextSetByTheProgramShowsAtOnce) {
    inForm([](TextForm& form, QLineEdit& editor) {
        form.line.setText("王五");
        EXPECT_EQ("王五", editor.text().toStdString());
    });
}

TEST(TextBoxTest, AHandlerThatRewritesTheTextWins) {
    inForm([](TextForm& form, QLineEdit& editor) {
        form.line.Change.connect([&] {
            if (form.line.Text() == "甲乙") form.line.setText("丙");
        });
        typeKeys("甲乙");
        EXPECT_EQ("丙", form.line.Text());
        EXPECT_EQ("丙", editor.text().toStdString());
    });
}

TEST(TextBoxTest, ACodedFieldTakesNoKeys) {
    inForm(makeCoded, [](TextForm& form, QLineEdit& editor) {
        typeKeys("x");
        pressKey(Qt::Key_Backspace);
        pressKey(Qt::Key_Delete);
        compose("hui", "回族");
        QApplication::clipboard()->setText(QStringLiteral("满族"));
        pressKey(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ("汉族", form.line.Text());
        EXPECT_EQ("汉族", editor.text().toStdString());
    });
}

TEST(TextBoxTest, ACodedFieldOpensByDoubleClickByItsButtonAndByKeys) {
    inForm(makeCoded, [](TextForm& form, QLineEdit& editor) {
        int opened = 0;
        form.line.DblClick.connect([&] { ++opened; });
        doubleClickOn(editor);
        EXPECT_EQ(1, opened);
        auto* button = editor.findChild<QToolButton*>();
        ASSERT_NE(nullptr, button);
        clickOn(*button);
        EXPECT_EQ(2, opened);
        pressKey(Qt::Key_F2);
        EXPECT_EQ(3, opened);
        pressKey(Qt::Key_Down, Qt::AltModifier);
        EXPECT_EQ(4, opened);
    });
}

TEST(TextBoxTest, AFieldThatBecomesCodedShowsIt) {
    inForm([](TextForm& form, QLineEdit& editor) {
        EXPECT_EQ(nullptr, editor.findChild<QToolButton*>());
        makeCoded(form);
        EXPECT_TRUE(editor.isReadOnly());
        EXPECT_TRUE(editor.property("coded").toBool());
        EXPECT_NE(nullptr, editor.findChild<QToolButton*>());
        form.line.setLocked(false);
        form.line.setBackColor(ui::colour::window);
        EXPECT_FALSE(editor.isReadOnly());
        EXPECT_FALSE(editor.property("coded").toBool());
    });
}

TEST(TextBoxTest, LineBreaksOfALongTextAreCarriageReturnAndLineFeed) {
    inForm([](TextForm& form, QLineEdit&) {
        clickOn(*widgetNamed<QPlainTextEdit>("txtMemo").viewport());
        ASSERT_TRUE(focusComesTo("txtMemo"));
        typeKeys("甲");
        pressKey(Qt::Key_Return);
        typeKeys("乙");
        EXPECT_EQ("甲\r\n乙", form.memo.Text());
        pressKey(Qt::Key_Backspace);
        pressKey(Qt::Key_Backspace);
        EXPECT_EQ("甲", form.memo.Text());
    });
}

TEST(TextBoxTest, APasteOfLinesIsCutWhereTheModelCutsIt) {
    inForm([](TextForm& form) { form.memo.setMaxLength(4); },
           [](TextForm& form, QLineEdit&) {
               clickOn(*widgetNamed<QPlainTextEdit>("txtMemo").viewport());
               ASSERT_TRUE(focusComesTo("txtMemo"));
               QApplication::clipboard()->setText(QStringLiteral("甲\n乙\n丙"));
               pressKey(Qt::Key_V, Qt::ControlModifier);
               EXPECT_EQ("甲\r\n乙", form.memo.Text());
           });
}

TEST(TextBoxTest, ALongTextOfTheProgramKeepsItsLineBreaks) {
    inForm([](TextForm& form, QLineEdit&) {
        form.memo.setText("甲\r\n乙");
        EXPECT_EQ("甲\n乙", widgetNamed<QPlainTextEdit>("txtMemo").toPlainText().toStdString());
        EXPECT_EQ("甲\r\n乙", form.memo.Text());
    });
}

} // namespace quillmere::test

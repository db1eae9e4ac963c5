#include "binding/KeyFilter.h"
#include "platform/ui/Form.h"
#include "platform/ui/TextBox.h"
#include "qt/MaintenanceTest.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

namespace quillmere::test {

namespace {

/// A box on one line, one on many, one for digits, and one that may refuse to be left.
class ComposeForm : public ui::Form {
public:
    ComposeForm()
        : Form("frmCompose", "输入")
        , line(add<ui::TextBox>("txtLine"))
        , memo(add<ui::TextBox>("txtMemo"))
        , digits(add<ui::TextBox>("txtDigits")) {
        memo.setMultiLine(true);
        install(KeyFilter::Digits, digits);
    }

    ui::TextBox& line;
    ui::TextBox& memo;
    ui::TextBox& digits;
};

class CompositionTest : public testing::Test {
protected:
    /// Works with the focus in the line.
    void run(const std::function<void(QLineEdit& editor)>& work) {
        screen.show(form, [&](ui::Form&) {
            form.line.SetFocus();
            ASSERT_TRUE(focusComesTo("txtLine"));
            auto& editor = widgetNamed<QLineEdit>("txtLine");
            caretOfEmpty_ = caretOf(editor);
            work(editor);
        });
    }

    /// Whether the caret stands farther right than the text alone would put it.
    bool isComposing(const QLineEdit& editor) const {
        const auto text = editor.text().left(editor.cursorPosition());
        return caretOf(editor) - caretOfEmpty_ > editor.fontMetrics().horizontalAdvance(text) + 4;
    }

    static QString composedIn(const QPlainTextEdit& editor) {
        return editor.textCursor().block().layout()->preeditAreaText();
    }

    ComposeForm form;
    Screen screen;

private:
    static double caretOf(const QLineEdit& editor) {
        return editor.inputMethodQuery(Qt::ImCursorRectangle).toRectF().center().x();
    }

    double caretOfEmpty_ = 0;
};

} // namespace

TEST_F(CompositionTest, AnApostropheInsideACompositionIsKeptAndIsNoKey) {
    run([&](QLineEdit& editor) {
        std::u32string keys;
        form.line.KeyPress.connect([&](char32_t& character) { keys += character; });
        compose("xi'an", "");
        EXPECT_TRUE(isComposing(editor));
        EXPECT_EQ(U"", keys);
        EXPECT_EQ("", form.line.Text());
        compose("xi'an", "西安");
        EXPECT_FALSE(isComposing(editor));
        EXPECT_EQ(U"西安", keys);
        EXPECT_EQ("西安", form.line.Text());
    });
}

TEST_F(CompositionTest, MaxLengthDoesNotCutACompositionButWhatComesOfIt) {
    form.line.setMaxLength(3);
    run([&](QLineEdit& editor) {
        typeKeys("甲乙");
        compose("zhonghuarenmin", "");
        EXPECT_TRUE(isComposing(editor));
        EXPECT_EQ("甲乙", form.line.Text());
        compose("zhonghuarenmin", "中华人民");
        EXPECT_EQ("甲乙中", form.line.Text());
        EXPECT_EQ("甲乙中", editor.text().toStdString());
    });
}

TEST_F(CompositionTest, MaxLengthCountsACharacterOutsideTheBasicPlaneAsOne) {
    form.line.setMaxLength(2);
    run([&](QLineEdit&) {
        compose("tu", "𠀀土木");
        EXPECT_EQ("𠀀土", form.line.Text());
    });
}

TEST_F(CompositionTest, ACompositionOverASelectionReplacesItOnlyWhenItEnds) {
    run([&](QLineEdit& editor) {
        typeKeys("张三");
        pressKey(Qt::Key_A, Qt::ControlModifier);
        int changes = 0;
        form.line.Change.connect([&] { ++changes; });
        compose("li", "");
        EXPECT_EQ("张三", form.line.Text());
        EXPECT_EQ(0, changes);
        compose("lisi", "李四");
        EXPECT_EQ("李四", form.line.Text());
        EXPECT_EQ("李四", editor.text().toStdString());
        EXPECT_EQ(1, changes);
    });
}

TEST_F(CompositionTest, ACompositionThatIsGivenUpLeavesTheSelectedTextAsItWas) {
    run([&](QLineEdit& editor) {
        typeKeys("张三");
        pressKey(Qt::Key_A, Qt::ControlModifier);
        compose("li", "");
        compose("", "");
        EXPECT_EQ("张三", form.line.Text());
        EXPECT_EQ("张三", editor.text().toStdString());
        EXPECT_EQ("张三", editor.selectedText().toStdString());
    });
}

TEST_F(CompositionTest, ADigitsBoxKeepsItsTextWhenAllThatWasComposedIsRefused) {
    run([&](QLineEdit&) {
        clickOn(widgetNamed("txtDigits"));
        ASSERT_TRUE(focusComesTo("txtDigits"));
        const auto& editor = widgetNamed<QLineEdit>("txtDigits");
        typeKeys("12");
        compose("ni", "你");
        EXPECT_EQ("12", form.digits.Text());
        pressKey(Qt::Key_A, Qt::ControlModifier);
        compose("ni", "你");
        EXPECT_EQ("12", form.digits.Text());
        EXPECT_EQ("12", editor.text().toStdString());
        compose("3", "3个");
        EXPECT_EQ("3", form.digits.Text());
    });
}

TEST_F(CompositionTest, ATextThatTheProgramSetsMeanwhileShowsAndEndsTheComposition) {
    run([&](QLineEdit& editor) {
        typeKeys("甲");
        compose("yi", "");
        ASSERT_TRUE(isComposing(editor));
        form.line.setText("丙");
        EXPECT_EQ("丙", editor.text().toStdString());
        EXPECT_FALSE(isComposing(editor));
        compose("ding", "丁");
        EXPECT_EQ(std::string::npos, form.line.Text().find("yi"));
        EXPECT_NE(std::string::npos, form.line.Text().find("丁"));
        EXPECT_EQ(form.line.Text(), editor.text().toStdString());
    });
}

TEST_F(CompositionTest, AProgramThatSelectsMeanwhileLeavesTheCompositionAlone) {
    run([&](QLineEdit& editor) {
        typeKeys("甲乙");
        compose("bing", "");
        form.line.setSelection(0, 1);
        EXPECT_TRUE(isComposing(editor));
        EXPECT_EQ("甲乙", editor.text().toStdString());
    });
}

TEST_F(CompositionTest, AFocusMoveDropsACompositionThatTheInputMethodDoesNotFinish) {
    run([&](QLineEdit& editor) {
        typeKeys("张");
        compose("san", "");
        ASSERT_TRUE(isComposing(editor));
        clickOn(widgetNamed("txtDigits"));
        ASSERT_TRUE(focusComesTo("txtDigits"));
        EXPECT_EQ("张", form.line.Text());
        EXPECT_EQ("张", editor.text().toStdString());
        EXPECT_FALSE(isComposing(editor));
        clickOn(editor);
        ASSERT_TRUE(focusComesTo("txtLine"));
        compose("san", "三");
        EXPECT_EQ("张三", form.line.Text());
    });
}

TEST_F(CompositionTest, AProgramThatMovesTheFocusEndsTheComposition) {
    run([&](QLineEdit& editor) {
        compose("zhang", "");
        form.digits.SetFocus();
        ASSERT_TRUE(focusComesTo("txtDigits"));
        EXPECT_FALSE(isComposing(editor));
        EXPECT_EQ("", form.line.Text());
        typeKeys("7");
        EXPECT_EQ("7", form.digits.Text());
    });
}

TEST_F(CompositionTest, ARefusedMoveLeavesTheFieldWithoutAHalfWrittenText) {
    form.line.Validate.connect([&](bool& cancel) { cancel = form.line.Text() == "张"; });
    run([&](QLineEdit& editor) {
        typeKeys("张");
        compose("san", "");
        clickOn(widgetNamed("txtDigits"));
        settle();
        EXPECT_EQ("txtLine", focusedName());
        EXPECT_EQ("张", editor.text().toStdString());
        EXPECT_FALSE(isComposing(editor));
    });
}

TEST_F(CompositionTest, OneEventMayEndACompositionAndBeginTheNext) {
    run([&](QLineEdit& editor) {
        QInputMethodEvent event(QStringLiteral("san"), {});
        event.setCommitString(QStringLiteral("张"));
        QApplication::sendEvent(&editor, &event);
        EXPECT_EQ("张", form.line.Text());
        EXPECT_TRUE(isComposing(editor));
        compose("san", "三");
        EXPECT_EQ("张三", form.line.Text());
    });
}

TEST_F(CompositionTest, AnInputMethodMayReplaceWhatItGaveBefore) {
    run([&](QLineEdit& editor) {
        typeKeys("在见");
        QInputMethodEvent event;
        event.setCommitString(QStringLiteral("再"), -2, 1);
        QApplication::sendEvent(&editor, &event);
        EXPECT_EQ("再见", form.line.Text());
        EXPECT_EQ("再见", editor.text().toStdString());
    });
}

TEST_F(CompositionTest, ALongTextIsComposedLikeAShortOne) {
    run([&](QLineEdit&) {
        auto& editor = widgetNamed<QPlainTextEdit>("txtMemo");
        clickOn(*editor.viewport());
        ASSERT_TRUE(focusComesTo("txtMemo"));
        typeKeys("甲");
        pressKey(Qt::Key_Return);
        int changes = 0;
        form.memo.Change.connect([&] { ++changes; });
        compose("xi'an", "");
        EXPECT_EQ("xi'an", composedIn(editor).toStdString());
        EXPECT_EQ(0, changes);
        EXPECT_EQ("甲\r\n", form.memo.Text());
        compose("xi'an", "西安");
        EXPECT_EQ("", composedIn(editor).toStdString());
        EXPECT_EQ("甲\r\n西安", form.memo.Text());
        EXPECT_EQ(1, changes);
        pressKey(Qt::Key_A, Qt::ControlModifier);
        compose("yi", "");
        EXPECT_EQ("甲\r\n西安", form.memo.Text());
        clickOn(widgetNamed("txtDigits"));
        ASSERT_TRUE(focusComesTo("txtDigits"));
        EXPECT_EQ("甲\r\n西安", form.memo.Text());
        EXPECT_EQ("甲\n西安", editor.toPlainText().toStdString());
        EXPECT_EQ("", composedIn(editor).toStdString());
    });
}

using SelectorCompositionTest = MaintenanceTest;

TEST_F(SelectorCompositionTest, TheSearchBoxTakesAnApostropheWhileComposingAndRefusesItAsText) {
    maintain([&](frmPersonWh&) {
        screen.person.onForm(
            [&](ui::Form& form) {
                auto& bar = widgetNamed<QTabBar>("Tab1_bar");
                QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(1).center());
                clickOn(widgetNamed("txtDm"));
                ASSERT_TRUE(focusComesTo("txtDm"));
                compose("nv'xing", "");
                compose("nv'xing", "女");
                const auto& box = static_cast<const ui::TextBox&>(*form.findDeep("txtDm"));
                EXPECT_EQ("女", box.Text());
                EXPECT_EQ(0, screen.person.beeps());
                compose("n'", "n'");
                EXPECT_EQ("女n", box.Text());
                EXPECT_EQ(1, screen.person.beeps());
                pressKey(Qt::Key_Backspace);
                pressKey(Qt::Key_Return);
                ASSERT_TRUE(focusComesTo("lstDmCpt"));
                const auto& list = widgetNamed<QListView>("lstDmCpt");
                EXPECT_TRUE(waitUntil([&] { return list.model()->rowCount() == 1; }));
            },
            "fmGrpCod");
        clickOn(widgetNamed("A01_A0104_v"));
        pressKey(Qt::Key_F2);
    });
}

} // namespace quillmere::test

#include "platform/ui/Form.h"
#include "platform/ui/MaskEdBox.h"
#include "platform/ui/TextBox.h"
#include "qt/RealPerson.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>

namespace quillmere::test {

namespace {

constexpr auto emptyMonth = "____年__月";

/// A form with a text box and a masked box behind it.
class MaskForm : public ui::Form {
public:
    MaskForm()
        : Form("frmMask", "日期")
        , before(add<ui::TextBox>("txtBefore"))
        , month(add<ui::MaskEdBox>("mskMonth", "####年##月", "yyyy年mm月")) {}

    ui::TextBox& before;
    ui::MaskEdBox& month;
};

/// Works in the masked box, with the caret at its front.
void inMask(const std::function<void(MaskForm&, QLineEdit&)>& work) {
    MaskForm form;
    Screen screen;
    screen.show(form, [&](ui::Form&) {
        form.before.SetFocus();
        ASSERT_TRUE(focusComesTo("txtBefore"));
        pressKey(Qt::Key_Tab);
        ASSERT_TRUE(focusComesTo("mskMonth"));
        work(form, widgetNamed<QLineEdit>("mskMonth"));
    });
}

void putOnClipboard(const char* text) { QApplication::clipboard()->setText(QString::fromUtf8(text)); }

} // namespace

TEST(MaskBoxTest, ShowsTheEmptyMaskWithTheCaretAtItsFront) {
    inMask([](MaskForm&, QLineEdit& editor) {
        EXPECT_EQ(emptyMonth, editor.text().toStdString());
        EXPECT_EQ(0, editor.cursorPosition());
        EXPECT_FALSE(editor.hasSelectedText());
    });
}

TEST(MaskBoxTest, DigitsFillThePlacesAndPassOverTheLiterals) {
    inMask([](MaskForm& form, QLineEdit& editor) {
        typeKeys("199003");
        EXPECT_EQ("1990年03月", form.month.Text());
        EXPECT_EQ("1990年03月", editor.text().toStdString());
        EXPECT_EQ(7, editor.cursorPosition());
    });
}

TEST(MaskBoxTest, OtherKeysEnterNothing) {
    inMask([](MaskForm& form, QLineEdit&) {
        typeKeys("1a+-#张9");
        EXPECT_EQ("19__年__月", form.month.Text());
    });
}

TEST(MaskBoxTest, TypingOverwritesAtTheCaret) {
    inMask([](MaskForm& form, QLineEdit&) {
        typeKeys("199003");
        pressKey(Qt::Key_Home);
        pressKey(Qt::Key_Right);
        typeKeys("8");
        EXPECT_EQ("1890年03月", form.month.Text());
    });
}

TEST(MaskBoxTest, BackspaceEmptiesThePlaceBeforeTheCaret) {
    inMask([](MaskForm& form, QLineEdit& editor) {
        typeKeys("19900");
        pressKey(Qt::Key_Backspace);
        pressKey(Qt::Key_Backspace);
        EXPECT_EQ("199_年__月", form.month.Text());
        EXPECT_EQ(3, editor.cursorPosition());
    });
}

TEST(MaskBoxTest, DeleteWithEverythingSelectedEmptiesTheMask) {
    inMask([](MaskForm& form, QLineEdit& editor) {
        typeKeys("199003");
        pressKey(Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ("1990年03月", editor.selectedText().toStdString());
        pressKey(Qt::Key_Delete);
        EXPECT_EQ(emptyMonth, form.month.Text());
        EXPECT_EQ(emptyMonth, editor.text().toStdString());
    });
}

TEST(MaskBoxTest, APastedDateIsPouredThroughTheMask) {
    putOnClipboard("1990-3");
    inMask([](MaskForm& form, QLineEdit& editor) {
        pressKey(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ("1990年3_月", form.month.Text());
        EXPECT_EQ(form.month.Text(), editor.text().toStdString());
    });
}

TEST(MaskBoxTest, CutTakesTheTextAlongAndLeavesTheMask) {
    putOnClipboard("");
    inMask([](MaskForm& form, QLineEdit&) {
        typeKeys("199003");
        pressKey(Qt::Key_A, Qt::ControlModifier);
        pressKey(Qt::Key_X, Qt::ControlModifier);
        EXPECT_EQ(emptyMonth, form.month.Text());
        EXPECT_EQ("1990年03月", QApplication::clipboard()->text().toStdString());
    });
}

TEST(MaskBoxTest, FullWidthDigitsOfAnInputMethodAreDigits) {
    inMask([](MaskForm& form, QLineEdit& editor) {
        compose("１９", "１９９０");
        EXPECT_EQ("1990年__月", form.month.Text());
        EXPECT_EQ("1990年__月", editor.text().toStdString());
    });
}

TEST(MaskBoxTest, ACompositionAloneIsNeverShown) {
    inMask([](MaskForm& form, QLineEdit& editor) {
        compose("nian", "");
        EXPECT_EQ(emptyMonth, form.month.Text());
        EXPECT_EQ(emptyMonth, editor.displayText().toStdString());
    });
}

TEST(MaskBoxTest, KeysThatALineEditKnowsBesidesDoNotGetPastTheMask) {
    inMask([](MaskForm& form, QLineEdit& editor) {
        typeKeys("199003");
        pressKey(Qt::Key_Z, Qt::ControlModifier);
        pressKey(Qt::Key_Backspace, Qt::ControlModifier);
        pressKey(Qt::Key_Delete, Qt::ControlModifier);
        EXPECT_EQ(form.month.Text(), editor.text().toStdString());
        EXPECT_EQ(8U, editor.text().toUcs4().size());
        EXPECT_TRUE(form.month.Text().find("年") != std::string::npos);
    });
}

TEST(MaskBoxTest, EachChangeOfTheTextIsToldOnce) {
    inMask([](MaskForm& form, QLineEdit&) {
        int changes = 0;
        const auto subscription = form.month.Change.subscribe([&] { ++changes; });
        typeKeys("19");
        EXPECT_EQ(2, changes);
        typeKeys("x");
        EXPECT_EQ(2, changes);
    });
}

TEST(MaskBoxTest, AClickPlacesTheCaretForTheModelToo) {
    inMask([](MaskForm& form, QLineEdit& editor) {
        typeKeys("199003");
        const QRect end = editor.rect().adjusted(0, 0, -4, 0);
        QTest::mouseClick(&editor, Qt::LeftButton, Qt::NoModifier,
                          end.topRight() + QPoint(0, end.height() / 2));
        EXPECT_EQ(8, editor.cursorPosition());
        EXPECT_EQ(8U, form.month.SelStart());
        QTest::mouseClick(&editor, Qt::LeftButton, Qt::NoModifier, QPoint(2, editor.height() / 2));
        EXPECT_EQ(0U, form.month.SelStart());
    });
}

TEST(MaskBoxTest, AClickThatBringsTheFocusLeavesTheCaretAtTheFront) {
    inMask([](MaskForm& form, QLineEdit& editor) {
        form.before.SetFocus();
        ASSERT_TRUE(focusComesTo("txtBefore"));
        QTest::mouseClick(&editor, Qt::LeftButton, Qt::NoModifier, editor.rect().center());
        ASSERT_TRUE(focusComesTo("mskMonth"));
        EXPECT_EQ(0U, form.month.SelStart());
        typeKeys("199003");
        EXPECT_EQ("1990年03月", form.month.Text());
    });
}

TEST(MaskBoxTest, AClickBehindAnOpenMaskPutsTheCaretOnItsFirstOpenPlace) {
    inMask([](MaskForm& form, QLineEdit& editor) {
        const QPoint behind(editor.width() - 4, editor.height() / 2);
        QTest::mouseClick(&editor, Qt::LeftButton, Qt::NoModifier, behind);
        EXPECT_EQ(0, editor.cursorPosition());
        typeKeys("19");
        QTest::mouseClick(&editor, Qt::LeftButton, Qt::NoModifier, behind);
        EXPECT_EQ(2, editor.cursorPosition());
        typeKeys("9003");
        EXPECT_EQ("1990年03月", form.month.Text());
    });
}

TEST(MaskBoxTest, ATextSetByTheProgramShowsAsItIs) {
    inMask([](MaskForm& form, QLineEdit& editor) {
        form.month.setText("1990-03");
        EXPECT_EQ("1990-03", editor.text().toStdString());
    });
}

} // namespace quillmere::test

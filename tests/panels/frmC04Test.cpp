#include "RowEditorBench.h"

#include "support/FailureNumber.h"

namespace quillmere {
namespace {

using frmC04Test = test::RowEditorBench;

// Loading.

TEST_F(frmC04Test, ItIsOneInstance) { EXPECT_EQ(&frmC04::defaultInstance(), &editor); }

TEST_F(frmC04Test, TheFrameNamedStandsAtTheFrontAndTheOthersOffTheScreen) {
    const char* frames[] = {"frameC04", "frameP03ABCE", "frameP03DG", "frameP02"};
    const char* numbers[] = {"1", "2", "3", "4"};
    for (std::size_t chosen = 0; chosen < 4; ++chosen) {
        show(numbers[chosen], [&](ui::Form&) {
            for (std::size_t i = 0; i < 4; ++i) {
                EXPECT_EQ(left(frames[i]), i == chosen ? 240 : -10000) << numbers[chosen] << frames[i];
                EXPECT_EQ(editor.find(frames[i])->isShown(), i == chosen) << numbers[chosen] << frames[i];
            }
        });
    }
}

TEST_F(frmC04Test, WithAnyOtherNumberTheFramesStayWhereTheyWereDesigned) {
    show("1", [](ui::Form&) {});
    for (const char* number : {"5", "", "01"}) {
        show(number, [&](ui::Form&) {
            for (const char* frame : {"frameC04", "frameP03ABCE", "frameP03DG", "frameP02"})
                EXPECT_GE(left(frame), 240) << frame;
            EXPECT_EQ(focus(), "");
        });
    }
}

TEST_F(frmC04Test, LoadingSetsTheCaption) {
    editor.FormCaption = "the caption";
    show("2", [&](ui::Form&) { EXPECT_EQ(editor.Caption(), "the caption"); });
}

TEST_F(frmC04Test, NothingIsLeftOfAnEarlierShowing) {
    show("4", [&](ui::Form&) {
        enter(wholeStage);
        editor.resizeByPerson(20000, 20000);
    });
    show("4", [&](ui::Form&) {
        EXPECT_EQ(textOf(editor, "txtP0201"), "____年__月");
        EXPECT_EQ(textOf(editor, "txtP0204"), "");
        EXPECT_LT(editor.geometry().width, 20000);
    });
}

TEST_F(frmC04Test, InputsMayBeFilledBetweenLoadingAndShowing) {
    editor.FrameNo = "2";
    editor.load();
    editor.setInput("txtP0301_t", "subject");
    person.show(editor, [&](ui::Form&) { EXPECT_EQ(textOf(editor, "txtP0301_t"), "subject"); });
    EXPECT_EQ(failureOf([&] { editor.setInput("txtNone", ""); }), number(Failure::ItemNotFound));
}

TEST_F(frmC04Test, EveryFrameHasASaveButtonAndACancelButtonThatUnloadsWithoutWriting) {
    const char* saving[] = {"cmdOK", "cmdOK_t", "cmdOK_q", "cmdOK_1"};
    const char* leaving[] = {"cmdExit", "cmdExit_t", "cmdExit_q", "cmdExit_1"};
    for (std::size_t i = 0; i < 4; ++i) {
        show(std::to_string(i + 1).c_str(), [&](ui::Form&) {
            EXPECT_EQ(test::controlOf<ui::CommandButton>(editor, saving[i]).Caption(), "保存(&S)");
            EXPECT_EQ(test::controlOf<ui::CommandButton>(editor, leaving[i]).Caption(), "取消(&C)");
            press(leaving[i]);
            EXPECT_FALSE(editor.isLoaded());
        });
    }
    EXPECT_TRUE(db.statements().empty());
}

// Keys.

TEST_F(frmC04Test, AmountBoxesTakeDigitsAndPointsOnly) {
    const std::pair<const char*, const char*> boxes[] = {{"1", "txtC0402"},   {"1", "txtC0403"},
                                                         {"1", "txtC0404"},   {"1", "txtC0405"},
                                                         {"2", "txtP0302_t"}, {"3", "txtP0302_q"}};
    for (const auto& [frame, box] : boxes) {
        show(frame, [&, name = box](ui::Form& form) {
            form.moveFocus(*form.find(name));
            test::typeText(form, "1a.'-5.");
            EXPECT_EQ(textOf(form, name), "1.5.") << name;
        });
    }
}

TEST_F(frmC04Test, ARefusedKeyBecomesTheBellAndEnterStaysInTheBufferWhileItMovesOn) {
    show("3", [&](ui::Form& form) {
        ui::Control& box = *form.find("txtP0302_q");
        form.moveFocus(box);
        EXPECT_EQ(form.filterCharacter(box, U'x'), U'\a');
        EXPECT_EQ(form.filterCharacter(box, U'\r'), U'\r');
        form.moveFocus(box);
        form.pressKey({ui::key::Enter});
        EXPECT_EQ(focus(), "txtP0303_q");
    });
}

TEST_F(frmC04Test, MaskedBoxesTakeTheirCaretToTheFrontOnFocus) {
    const std::pair<const char*, const char*> boxes[] = {
        {"4", "txtP0201"}, {"4", "txtP0202"}, {"1", "txtC0406"}};
    for (const auto& [frame, box] : boxes) {
        show(frame, [&, name = box](ui::Form& form) {
            auto& masked = test::controlOf<ui::MaskEdBox>(form, name);
            form.moveFocus(*form.find("cmdOK"));
            form.moveFocus(*form.find("cmdOK_1"));
            masked.setSelection(2, 2);
            form.moveFocus(masked);
            EXPECT_EQ(masked.SelStart(), 0U) << name;
            EXPECT_EQ(masked.SelLength(), 0U) << name;
        });
    }
}

} // namespace
} // namespace quillmere

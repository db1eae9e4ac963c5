#include "ui/FormBench.h"

#include "platform/ui/ScreenlessDesktop.h"
#include "support/FailureNumber.h"

namespace quillmere::ui {
namespace {

using ScriptedDesktopTest = FormBench;

class AbsentPerson : public ScreenlessPerson {
public:
    Answer answer(const MessageBox&) override { return Answer::Ok; }
    void work(Form&) override {}
    std::string choose(const FileDialog&) override { return {}; }
};

TEST(ScreenlessDesktopTest, AFormThatNobodyClosesIsAFailure) {
    AbsentPerson nobody;
    ScreenlessDesktop screenless(nobody);
    Form form("frm", "frm");
    EXPECT_EQ(failureOf([&] { screenless.showModal(form); }), number(Failure::InvalidCall));
    EXPECT_FALSE(form.isOpen());
}

TEST(ScreenlessDesktopTest, WithoutAChosenDesktopThereIsNone) {
    EXPECT_EQ(failureOf([] { static_cast<void>(desktop()); }), number(Failure::ObjectNotSet));
}

TEST_F(ScriptedDesktopTest, BoxesFileDialogsAndBeepsGoToThePerson) {
    person.expectBox("删除？", "提示", Answer::Yes);
    person.chooseFile("a.jpg");
    EXPECT_EQ(desktop().msgBox({"删除？", "提示", Buttons::YesNo, Icon::Question}), Answer::Yes);
    EXPECT_EQ(desktop().openFile({"JPEG|*.jpg", "photos"}), "a.jpg");
    desktop().beep();
    EXPECT_EQ(person.boxes().size(), 1U);
    EXPECT_EQ(person.beeps(), 1);
}

} // namespace
} // namespace quillmere::ui

#include "platform/ui/Desktop.h"
#include "platform/ui/MaskEdBox.h"
#include "platform/ui/TextBox.h"
#include "ui/Typing.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::test {

namespace {

constexpr auto year = "####";
constexpr auto month = "####年##月";
constexpr auto day = "####年##月##日";

/// A text box in front of a masked box.
class MaskForm : public ui::Form {
public:
    explicit MaskForm(std::string mask = month)
        : Form("frmMask", "日期")
        , before(add<ui::TextBox>("txtBefore"))
        , box(add<ui::MaskEdBox>("mskBox", std::move(mask), "yyyy年mm月")) {
        box.Change.connect([this] { heard.push_back(box.Text()); });
    }

    ui::TextBox& before;
    ui::MaskEdBox& box;
    /// The texts that the box had at each Change.
    std::vector<std::string> heard;
};

/// Works with the focus in the masked box.
void inBox(MaskForm& form, const std::function<void(ScriptedPerson&)>& work) {
    ScriptedPerson person;
    person.show(form, [&](ui::Form&) {
        ASSERT_TRUE(form.moveFocus(form.box));
        work(person);
    });
}

/// Whether every literal stands in its place and every other place has a digit or the prompt.
bool fitsMask(const ui::MaskEdBox& box) {
    const auto mask = text::decode(box.MaskText());
    const auto shown = text::decode(box.Text());
    if (shown.size() != mask.size()) return false;
    for (std::size_t i = 0; i < mask.size(); ++i) {
        const bool filled = (shown[i] >= U'0' && shown[i] <= U'9') || shown[i] == box.PromptChar();
        if (mask[i] == U'#' ? !filled : shown[i] != mask[i]) return false;
    }
    return true;
}

/// One thing that a person may do, drawn by lot.
void doAnything(ui::Form& form, std::mt19937& random) {
    static const std::vector<std::string> doings{
        "1",
        "9",
        "０",
        "年",
        "月",
        "日",
        "x",
        "_",
        "#",
        " ",
        "<Back>",
        "<Del>",
        "<Home>",
        "<End>",
        "<Left>",
        "<Right>",
        "<+Home>",
        "<+End>",
        "<+Left>",
        "<+Right>",
        "<All>",
        "<Enter>",
        "<Paste:>",
        "<Paste:1990-03>",
        "<Paste:无>",
        "<Paste:1990年3月12日>",
        "<Paste:____年__月>",
    };
    doKeys(form, doings[random() % doings.size()]);
}

bool selectionIsInside(const ui::MaskEdBox& box) {
    return box.SelStart() + box.SelLength() <= text::length(box.Text());
}

} // namespace

TEST(MaskedTypingTest, ARefusedCharacterIsSilent) {
    MaskForm form;
    inBox(form, [&](const ScriptedPerson& person) {
        doKeys(form, "19x#_ 张");
        EXPECT_EQ((std::vector<std::string>{"1___年__月", "19__年__月"}), form.heard);
        EXPECT_EQ("19|__年__月", look(form.box));
        EXPECT_EQ(0, person.beeps());
    });
}

TEST(MaskedTypingTest, APasteIsOneChangeAndThatOfTheSameTextNone) {
    MaskForm form;
    inBox(form, [&](ScriptedPerson&) {
        doKeys(form, "<Paste:1990-03><All><Paste:1990-03><Paste:无>");
        EXPECT_EQ(std::vector<std::string>{"1990年03月"}, form.heard);
    });
}

TEST(MaskedTypingTest, TypingTheSameDigitAgainIsNoChange) {
    MaskForm form;
    inBox(form, [&](ScriptedPerson&) {
        doKeys(form, "1<Home>1<Home><Back><End><Del><Left><Right>月<All>");
        EXPECT_EQ(std::vector<std::string>{"1___年__月"}, form.heard);
    });
}

TEST(MaskedTypingTest, TheFirstEditPoursATextOfTheProgramThatDoesNotFit) {
    struct Row {
        const char* set;
        std::string_view keys;
        std::string_view look;
    };
    constexpr Row rows[] = {
        {"1990-03", "", "|1990-03"},
        {"1990-03", "x", "|1990-03"},
        {"1990-03", "<End><Left><Left>", "1990-|03"},
        {"1990-03", "<All>x", "[1990-03]"},
        {"1990-03", "<All>年", "[1990-03]"},
        {"1990-03", "2", "2|990年03月"},
        {"1990-03", "年", "1990年|03月"},
        {"1990-03", "<End><Back>", "1990年0|_月"},
        {"1990-03", "<Del>", "|_990年03月"},
        {"1990-03", "<All><Del>", "|____年__月"},
        {"1990-03", "<All><Paste:2001-12>", "2001年12|月"},
        {"199003", "<End><+Left><+Left><Del>", "1990|年__月"},
        {"1990-3", "<Right>8", "18|90年3_月"},
        {"", "<Del>", "|____年__月"},
    };
    for (const Row& row : rows) {
        MaskForm form;
        form.box.setText(row.set);
        inBox(form, [&](ScriptedPerson&) {
            doKeys(form, row.keys);
            EXPECT_EQ(row.look, look(form.box)) << row.set << " <- " << row.keys;
        });
    }
}

TEST(MaskedTypingTest, ADateOfTheProgramWithShortGroupsKeepsItsDayAndMonth) {
    MaskForm form(day);
    form.box.setText("1990-3-12");
    inBox(form, [&](ScriptedPerson&) {
        doKeys(form, "2");
        EXPECT_EQ("2|990年3_月12日", look(form.box));
    });
}

TEST(MaskedTypingTest, ARefusedEntryDoesNotMarkATextOfTheProgramAsChanged) {
    MaskForm form;
    form.box.setText("1990-03");
    form.heard.clear();
    inBox(form, [&](ScriptedPerson&) {
        doKeys(form, "x#_<Paste:无><Paste:>");
        EXPECT_EQ("1990-03", form.box.Text());
        EXPECT_TRUE(form.heard.empty());
    });
}

TEST(MaskedTypingTest, InjectedKeysMoveOnAndSelectTheWholeContent) {
    MaskForm form;
    form.box.setText("1990年03月");
    form.box.GotFocus.connect([&] { form.box.setSelStart(0); });
    ScriptedPerson person;
    person.show(form, [&](ui::Form&) {
        form.moveFocus(form.before);
        ui::desktop().sendKeys("{tab}");
        EXPECT_EQ("|1990年03月", look(form.box));
        ui::desktop().sendKeys("{Home}+{End}");
        EXPECT_TRUE(form.box.hasFocus());
        EXPECT_EQ("[1990年03月]", look(form.box));
    });
}

TEST(MaskedTypingTest, SettingTheCaretToTheFrontEndsTheSelection) {
    ui::MaskEdBox box("mskBox", month, "yyyy年mm月");
    box.setSelection(0, 8);
    box.setSelStart(0);
    EXPECT_EQ("|____年__月", look(box));
}

TEST(MaskedTypingTest, AShorterTextOfTheProgramTakesTheCaretAlong) {
    ui::MaskEdBox box("mskBox", month, "yyyy年mm月");
    box.setSelStart(8);
    box.setText("1990");
    EXPECT_EQ("1990|", look(box));
}

TEST(MaskedTypingTest, PropertiesOfAMaskedBoxAreToldByName) {
    ui::MaskEdBox box("mskBox", month, "yyyy年mm月");
    box.setText("1990年03月");
    box.setSelection(1, 2);
    struct Row {
        std::string_view name;
        std::string_view value;
    };
    constexpr Row rows[] = {{"Text", "1990年03月"}, {"mask", month},   {"FORMAT", "yyyy年mm月"},
                            {"PromptChar", "_"},    {"SelStart", "1"}, {"SelLength", "2"},
                            {"Name", "mskBox"}};
    for (const Row& row : rows)
        EXPECT_EQ(row.value, box.property(row.name)) << row.name;
    EXPECT_FALSE(box.property("MaxLength").has_value());
}

TEST(MaskedTypingTest, ChangeIsRaisedOnceForEveryKeyThatChangesTheTextAndForNoOther) {
    constexpr unsigned seed = 1990;
    constexpr int sequences = 2000;
    constexpr int keysEach = 20;
    for (const auto* mask : {year, month, day}) {
        std::mt19937 random(seed);
        MaskForm form(mask);
        inBox(form, [&](ScriptedPerson&) {
            for (int sequence = 0; sequence < sequences; ++sequence) {
                form.box.setText(form.box.emptyText());
                for (int i = 0; i < keysEach; ++i) {
                    const std::string before = form.box.Text();
                    form.heard.clear();
                    doAnything(form, random);
                    ASSERT_TRUE(fitsMask(form.box)) << form.box.Text() << " in sequence " << sequence;
                    ASSERT_TRUE(selectionIsInside(form.box)) << sequence;
                    ASSERT_EQ(before == form.box.Text() ? 0U : 1U, form.heard.size()) << sequence;
                }
            }
        });
    }
}

TEST(MaskedTypingTest, ATextOfTheProgramIsEitherUntouchedOrFitsTheMask) {
    constexpr unsigned seed = 2001;
    constexpr int sequences = 500;
    constexpr int keysEach = 10;
    for (const auto* set : {"", "1990-03", "1990年3月", "无", "19900312", "1990年03月12日 08:30"}) {
        std::mt19937 random(seed);
        MaskForm form(day);
        inBox(form, [&](ScriptedPerson&) {
            for (int sequence = 0; sequence < sequences; ++sequence) {
                form.box.setText(set);
                for (int i = 0; i < keysEach; ++i) {
                    doAnything(form, random);
                    ASSERT_TRUE(form.box.Text() == set || fitsMask(form.box)) << form.box.Text();
                    ASSERT_TRUE(selectionIsInside(form.box)) << set << " in sequence " << sequence;
                }
            }
        });
    }
}

} // namespace quillmere::test

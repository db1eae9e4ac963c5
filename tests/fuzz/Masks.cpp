// A person at a masked box: typing, pasting, deleting, moving, over any mask.

#include "support/Fuzzing.h"

#include "platform/text/Text.h"
#include "platform/ui/Form.h"
#include "platform/ui/MaskEdBox.h"

namespace {

using namespace quillmere;
using fuzz::hold;

/// The box between the keyboard and what is looked at.
class AtTheBox {
public:
    AtTheBox(const std::string& mask, char32_t prompt)
        : mask_(text::decode(mask))
        , prompt_(prompt)
        , box_(form_.add<ui::MaskEdBox>("A02_A0203_v", mask, "yyyy.MM", prompt)) {
        form_.load();
        form_.show();
        hold(form_.moveFocus(box_), "the box takes the focus");
        inShape();
    }

    /// One thing that happens, by its first letter.
    void happen(const std::string& line) {
        if (line.empty()) return;
        const std::string rest = line.substr(1);
        const std::string before = box_.Text();
        if (line[0] == 'x') {
            box_.setText(rest);
        } else {
            byPerson(line[0], rest);
            if (box_.Text() != before) inShape();
        }
        hold(box_.SelStart() + box_.SelLength() <= text::length(box_.Text()),
             "the selection lies within the text");
    }

private:
    void byPerson(char what, const std::string& rest) {
        switch (what) {
        case 't':
            for (const char32_t character : text::decode(rest))
                form_.typeCharacter(character);
            break;
        case 'p':
            return form_.paste(rest);
        case 'b':
            return form_.typeCharacter(ui::key::Backspace);
        case 'd':
            return form_.pressKey({ui::key::Delete, ui::shift::None});
        case 'l':
            return form_.pressKey({ui::key::Left, rest.empty() ? ui::shift::None : ui::shift::Shift});
        case 'h':
            return form_.pressKey({ui::key::Home, rest.empty() ? ui::shift::None : ui::shift::Shift});
        case 'a':
            return form_.selectAll();
        case 's':
            return box_.setSelection(static_cast<std::size_t>(std::abs(fuzz::numberOf(rest))), rest.size());
        case 'c':
            return box_.pointByPerson(static_cast<std::size_t>(std::abs(fuzz::numberOf(rest))));
        default:
            break;
        }
    }

    void inShape() const {
        const std::u32string shown = text::decode(box_.Text());
        hold(shown.size() == mask_.size(), "a text has as many characters as its mask");
        for (std::size_t i = 0; i < mask_.size(); ++i) {
            const bool digit = shown[i] >= U'0' && shown[i] <= U'9';
            hold(mask_[i] == U'#' ? digit || shown[i] == prompt_ : shown[i] == mask_[i],
                 "literals stay, and their places take digits");
        }
    }

    std::u32string mask_;
    char32_t prompt_;
    ui::Form form_{"form", "form"};
    ui::MaskEdBox& box_;
};

} // namespace

/// A line with the mask, one with the prompt character, and a line for each thing that happens.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input input(data, size);
    // Masks are the program's own, and it writes UTF-8.
    const std::string mask = text::encode(text::decode(input.line()));
    const std::u32string prompt = text::decode(input.line());
    AtTheBox box(mask, prompt.empty() ? U'_' : prompt.front());
    while (!input.atEnd())
        box.happen(input.line());
    return 0;
}

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quillmere::ui {

/// The editing of a text under a mask, where "#" takes a digit and every other character stands for
/// itself. Typing writes over; what is not filled shows the prompt character. Full-width digits are
/// digits. Positions are in characters.
class Mask {
public:
    Mask(std::string_view mask, char32_t prompt);

    /// The mask with every "#" replaced by the prompt character.
    [[nodiscard]] std::u32string empty() const;

    struct State {
        std::u32string text;
        std::size_t caret = 0;
        std::size_t selected = 0;
    };

    /// A digit goes to the next digit position; a literal of the mask moves the caret behind its
    /// next place, so that "1990年3月" can be typed as it reads. Anything else changes nothing.
    ///
    /// A program may have set a text of another shape: any edit first pastes it into the empty mask.
    void type(State& state, char32_t character) const;
    void backspace(State& state) const;
    void erase(State& state) const;
    /// As typed, with any run of other characters ("-", "/", ".") moving on to the next group. What
    /// was copied from a box of this mask replaces the whole; a text without a digit changes nothing.
    void paste(State& state, std::u32string_view text) const;

    /// Where the caret goes when a person points behind the last place for a digit: to the first place
    /// that is still open, since there all that is typed would be lost. Any other position stays.
    [[nodiscard]] std::size_t pointed(std::u32string_view text, std::size_t position) const;

    [[nodiscard]] static bool isDigit(char32_t character);
    /// The ASCII form of a full-width digit.
    [[nodiscard]] static char32_t toDigit(char32_t character);

private:
    [[nodiscard]] bool takesDigit(std::size_t position) const;
    [[nodiscard]] std::size_t nextDigitPosition(std::size_t from) const;
    [[nodiscard]] std::size_t nextGroup(std::size_t from) const;
    /// Whether a text has the mask's literals in place and digits or prompt characters between.
    [[nodiscard]] bool hasShape(std::u32string_view text) const;
    void fit(State& state) const;
    void pour(State& state, std::u32string_view text) const;
    void put(State& state, char32_t digit) const;
    void clearSelection(State& state) const;

    std::u32string mask_;
    char32_t prompt_;
};

} // namespace quillmere::ui

#include "platform/ui/EditBox.h"

#include "platform/text/Text.h"

#include <algorithm>

namespace quillmere::ui {

EditBox::EditBox(Kind kind, std::string name, std::string text)
    : Control(kind, std::move(name)), text_(std::move(text)) {}

void EditBox::setText(std::string text) {
    const std::size_t length = text::length(text);
    const bool differs = text_ != text;
    text_ = std::move(text);
    select({std::min(selection_.start, length), 0, false});
    if (!differs) return;
    notify(Property::Text);
    Change.raise();
}

void EditBox::setSelection(std::size_t start, std::size_t length) {
    const Selection wanted = Selection{start, length, false}.within(text::length(text_));
    // The same characters may be on show with the caret before them: that stays.
    if (wanted.start != selection_.start || wanted.length != selection_.length) select(wanted);
}

void EditBox::selectAll() { setSelection(0, text::length(text_)); }

void EditBox::select(const Selection& selection) {
    if (selection == selection_) return;
    selection_ = selection;
    notify(Property::Selection);
}

void EditBox::show(std::string text, const Selection& selection) {
    const bool differs = text_ != text;
    text_ = std::move(text);
    selection_ = selection;
    if (differs) notify(Property::Text);
    notify(Property::Selection);
    if (differs) Change.raise();
}

void EditBox::follow(std::string text, const Selection& selection) {
    selection_ = selection;
    if (text_ == text) return;
    text_ = std::move(text);
    notify(Property::Text);
    Change.raise();
}

std::optional<std::string> EditBox::property(std::string_view name) const {
    const auto is = [&](std::string_view wanted) { return text::equalsNoCase(name, wanted); };
    if (is("Text")) return text_;
    if (is("SelStart")) return std::to_string(selection_.start);
    if (is("SelLength")) return std::to_string(selection_.length);
    return Control::property(name);
}

} // namespace quillmere::ui

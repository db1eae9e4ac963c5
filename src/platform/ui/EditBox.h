#pragma once

#include "platform/ui/Control.h"
#include "platform/ui/Selection.h"

#include <cstddef>

namespace quillmere::ui {

/// What the boxes have in common in which a person edits a text: the text, what of it is selected, and the
/// event that tells of a change. Positions and lengths are in characters.
class EditBox : public Control {
public:
    [[nodiscard]] const std::string& Text() const { return text_; }
    /// Raises Change when the text differs. What binds a person does not bind a program.
    void setText(std::string text);
    [[nodiscard]] std::size_t SelStart() const { return selection_.start; }
    [[nodiscard]] std::size_t SelLength() const { return selection_.length; }
    /// Cut to the text.
    void setSelection(std::size_t start, std::size_t length);

    [[nodiscard]] std::optional<std::string> property(std::string_view name) const override;

    Event<> Change;

protected:
    EditBox(Kind kind, std::string name, std::string text);

    [[nodiscard]] bool isFocusKind() const override { return true; }
    void selectAll() override;

    [[nodiscard]] const Selection& selection() const { return selection_; }
    void select(const Selection& selection);
    /// What the box holds after a person's doing, which the view is to show.
    void show(std::string text, const Selection& selection);
    /// What the view's own editor holds after a person's doing, caret included.
    void follow(std::string text, const Selection& selection);

private:
    std::string text_;
    Selection selection_;
};

} // namespace quillmere::ui

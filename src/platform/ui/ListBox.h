#pragma once

#include "platform/ui/Control.h"

#include <vector>

namespace quillmere::ui {

/// A list of texts of which one row may be selected.
class ListBox : public Control {
public:
    explicit ListBox(std::string name) : Control(Kind::ListBox, std::move(name)) {}

    [[nodiscard]] const std::vector<std::string>& items() const { return items_; }
    [[nodiscard]] int ListCount() const { return static_cast<int>(items_.size()); }
    void AddItem(std::string text);
    void setItems(std::vector<std::string> items);
    void Clear();
    /// From 0, -1 when none is selected.
    [[nodiscard]] int ListIndex() const { return listIndex_; }
    /// Raises Click when the row differs. Raises SubscriptOutOfRange outside the list.
    void setListIndex(int index);
    /// The row under the pointer, from 0, -1 for none; a toolkit tells it before each mouse move.
    [[nodiscard]] int rowUnderPointer() const { return rowUnderPointer_; }
    void setRowUnderPointer(int row) { rowUnderPointer_ = row; }
    /// The selected row's text, empty when none is.
    [[nodiscard]] std::string Text() const;

    [[nodiscard]] std::optional<std::string> property(std::string_view name) const override;

protected:
    [[nodiscard]] bool isFocusKind() const override { return true; }
    void personKeyDown(const KeyStroke& stroke) override;

private:
    std::vector<std::string> items_;
    int listIndex_ = -1;
    int rowUnderPointer_ = -1;
};

} // namespace quillmere::ui

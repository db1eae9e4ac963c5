#pragma once

#include "binding/ControlItems.h"

#include <string>
#include <string_view>

namespace quillmere {

class cFieldItem;
class cFieldItems;
struct cWhInfo;

namespace ui {
class Label;
class MaskEdBox;
class TextBox;
} // namespace ui

/// What the field events need of the panel that they serve.
class FieldContext {
public:
    FieldContext() = default;
    FieldContext(const FieldContext&) = delete;
    FieldContext& operator=(const FieldContext&) = delete;
    virtual ~FieldContext() = default;

    [[nodiscard]] virtual cFieldItems& fieldItems() = 0;
    [[nodiscard]] virtual cWhInfo& whInfo() = 0;
    /// The widgets are being filled, so that their changes are not a person's edits.
    [[nodiscard]] virtual bool isLoading() const = 0;
    [[nodiscard]] virtual ui::Label& explainLabel() = 0;
    /// Whether a masked box that gets the focus takes its caret to the front.
    [[nodiscard]] virtual bool caretToFront() const = 0;
};

/// The one set of handlers for all fields of a panel: when a record counts as changed, how a coded
/// field gets its code, what help shows, and when the focus may leave a field.
class FieldEvents {
public:
    /// Listens to `items` as long as `items` lives; `context` must outlive it.
    FieldEvents(FieldContext& context, ControlItems& items);

    void cItems_Change(ui::Control& control);
    void cItems_GotFocus(ui::Control& control);
    void cItems_LostFocus();
    void cItems_Dblclick(ui::Control& control);
    void cItems_Validate(ui::Control& control, bool& cancel);

private:
    [[nodiscard]] cFieldItem& fieldOf(const ui::Control& control) const;
    void validateMasked(ui::MaskEdBox& box, bool& cancel);
    static void check(const cFieldItem& field, const std::string& text, bool& cancel);
    static void refuseIllFormed(const cFieldItem& field, bool& cancel);

    FieldContext& context_;
};

/// A widget is a field when its name ends in "_v"; the key of its field is the name less that.
[[nodiscard]] bool isValueWidget(std::string_view name);
[[nodiscard]] bool isCaptionWidget(std::string_view name);
[[nodiscard]] std::string fieldKey(std::string_view widgetName);

} // namespace quillmere

#pragma once

#include "binding/KeyFilter.h"

#include <cstdint>
#include <span>
#include <string_view>

/// The catalogue of panels: what differs between the panels, a row each. Everything else is the one
/// template of A1ctrlUser.
namespace quillmere {

enum class ValueWidget {
    Text,     ///< text box on one line
    LongText, ///< text box on many lines
    Month,    ///< masked "####年##月"
    Day,      ///< masked "####年##月##日"
    Number,   ///< masked "####"
    Check,    ///< check box
};

/// One field of a panel: its column, its caption as displayed, its widget. Made by the functions
/// below, so that a row of the catalogue reads like a sentence.
struct FieldRow {
    std::string_view code;
    std::string_view caption;
    ValueWidget widget = ValueWidget::Text;
    KeyFilter filter = KeyFilter::None;
    /// Designed limit in characters; the field's catalogue length takes over with the first record.
    std::size_t maxLength = 0;
    /// Caption of the fixed label behind the widget, and that label's name where it has one of its own.
    std::string_view unit;
    std::string_view unitLabel;

    /// A copy with one member set.
    template <class T>
    [[nodiscard]] constexpr FieldRow with(T FieldRow::*member, T value) const {
        FieldRow copy = *this;
        copy.*member = value;
        return copy;
    }

    [[nodiscard]] constexpr FieldRow max(std::size_t characters) const {
        return with(&FieldRow::maxLength, characters);
    }
    [[nodiscard]] constexpr FieldRow digits() const { return with(&FieldRow::filter, KeyFilter::Digits); }
    [[nodiscard]] constexpr FieldRow phone() const { return with(&FieldRow::filter, KeyFilter::Phone); }
    [[nodiscard]] constexpr FieldRow decimal() const { return with(&FieldRow::filter, KeyFilter::Decimal); }
    [[nodiscard]] constexpr FieldRow in(std::string_view unitName, std::string_view labelName = {}) const {
        return with(&FieldRow::unit, unitName).with(&FieldRow::unitLabel, labelName);
    }
};

namespace field {
[[nodiscard]] constexpr FieldRow text(std::string_view code, std::string_view caption) {
    return {code, caption, ValueWidget::Text, KeyFilter::None, 0, {}, {}};
}
[[nodiscard]] constexpr FieldRow longText(std::string_view code, std::string_view caption) {
    return {code, caption, ValueWidget::LongText, KeyFilter::None, 0, {}, {}};
}
[[nodiscard]] constexpr FieldRow month(std::string_view code, std::string_view caption) {
    return {code, caption, ValueWidget::Month, KeyFilter::None, 0, {}, {}};
}
[[nodiscard]] constexpr FieldRow day(std::string_view code, std::string_view caption) {
    return {code, caption, ValueWidget::Day, KeyFilter::None, 0, {}, {}};
}
[[nodiscard]] constexpr FieldRow number(std::string_view code, std::string_view caption) {
    return {code, caption, ValueWidget::Number, KeyFilter::None, 0, {}, {}};
}
[[nodiscard]] constexpr FieldRow check(std::string_view code, std::string_view caption) {
    return {code, caption, ValueWidget::Check, KeyFilter::None, 0, {}, {}};
}
} // namespace field

/// How a panel fills a masked date box: what happens to a stored value that is no date, and what
/// else is filled.
enum class FillTemplate {
    Guarded,       ///< no date: the empty mask
    Plain,         ///< no date: passed to the format operation as it is
    Person,        ///< guarded, and the person's photo is loaded
    LengthChecked, ///< plain, and a text goes into a mask only with at least 4 characters
};

/// When a panel takes the focus into its first field.
enum class FirstFocus { Always, IfEmpty, Never };

struct PanelRow {
    std::string_view className;
    /// The table in the widget names "<table>_<field>_v" and "_c".
    std::string_view widgetTable;
    std::string_view title;
    /// In tab order.
    std::span<const FieldRow> fields;
    FillTemplate fill = FillTemplate::Guarded;
    FirstFocus firstFocus = FirstFocus::Always;
    /// A masked box that gets the focus takes its caret to the front.
    bool caretToFront = true;
    /// The panel shows the grid `DGItems` of its rows.
    bool hasGrid = true;
    /// The grid's visibility follows whether the set holds several records.
    bool gridFollowsSet = true;
    /// The grid's catalogue statement names its columns Acodetable, Astyle and Afldwidth.
    bool aliasedGridCatalogue = false;
};

/// All panels, group by group: persons, units, collective projects, projects, plans, reports, closings.
[[nodiscard]] std::span<const PanelRow> panelCatalogue();

/// By class name without regard to case; none when there is no such panel.
[[nodiscard]] const PanelRow* findPanel(std::string_view className);

} // namespace quillmere

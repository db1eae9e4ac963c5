#include "panels/FillWidgets.h"

#include "metadata/cFieldItem.h"
#include "platform/convert/Convert.h"
#include "platform/convert/DateTime.h"
#include "platform/convert/Format.h"
#include "platform/text/Text.h"
#include "platform/ui/CheckBox.h"
#include "platform/ui/Label.h"
#include "platform/ui/MaskEdBox.h"
#include "platform/ui/TextBox.h"

#include <algorithm>

namespace quillmere {

namespace {

std::size_t lengthLimit(const cFieldItem& field) {
    // Compared with case, unlike everywhere else: a type written otherwise gets no limit. Meant so.
    const bool limited = field.FieldType == "Ntext" || field.FieldType == "Varchar";
    if (!limited || field.FieldLength.empty() || !field.CodeTable.empty()) return 0;
    return static_cast<std::size_t>(std::max(0, convert::toLong(field.FieldLength)));
}

void fillTextBox(ui::TextBox& box, const cFieldItem& field) {
    const bool coded = !field.CodeTable.empty();
    box.setBackColor(coded ? ui::colour::codedField : ui::colour::window);
    box.setLocked(coded);
    box.setAlignment(holdsNumbers(field) ? ui::Alignment::Right : ui::Alignment::Left);
    box.setText(field.Dmcpt.empty() ? field.code() : field.Dmcpt);
    box.setMaxLength(lengthLimit(field));
}

void fillMaskedDate(ui::MaskEdBox& box, const std::string& value, FillTemplate fill) {
    const bool guarded = fill == FillTemplate::Guarded || fill == FillTemplate::Person;
    if (guarded && !convert::isDate(value)) {
        box.setText(box.emptyText());
    } else {
        box.setText(convert::format(value, box.Format()));
    }
}

void fillMaskedBox(ui::MaskEdBox& box, const cFieldItem& field, FillTemplate fill) {
    constexpr std::size_t leastLength = 4;
    const std::string value = field.code();
    if (value.empty()) {
        box.setText(box.emptyText());
        return;
    }
    const std::string type = text::lower(field.FieldType);
    if (type == "datetime") {
        fillMaskedDate(box, value, fill);
    } else if (type == "varchar") {
        if (fill != FillTemplate::LengthChecked || text::length(value) >= leastLength) box.setText(value);
    } else if (type == "int") {
        box.setText(value);
    }
}

bool isUnchecked(const data::Value& value) {
    if (value.isNull()) return true;
    const std::string text = value.toText();
    return text.empty() || text::equalsNoCase(text, "False") ||
           (convert::isNumeric(text) && convert::toDouble(text) == 0.0);
}

} // namespace

bool holdsNumbers(const cFieldItem& field) {
    if (!field.CodeTable.empty()) return false;
    return text::equalsNoCase(field.FieldType, "int") || text::upper(field.Check).starts_with("N ");
}

void fillValueWidget(ui::Control& widget, const cFieldItem& field, FillTemplate fill) {
    switch (widget.kind()) {
    case ui::Kind::TextBox:
        fillTextBox(static_cast<ui::TextBox&>(widget), field);
        break;
    case ui::Kind::MaskEdBox:
        fillMaskedBox(static_cast<ui::MaskEdBox&>(widget), field, fill);
        break;
    case ui::Kind::CheckBox:
        static_cast<ui::CheckBox&>(widget).setValue(isUnchecked(field.Dmcod) ? 0 : 1);
        break;
    default:
        break;
    }
}

void fillCaption(ui::Control& widget, const cFieldItem& field) {
    if (widget.kind() == ui::Kind::Label) static_cast<ui::Label&>(widget).setFontBold(!field.IsNUll);
}

} // namespace quillmere

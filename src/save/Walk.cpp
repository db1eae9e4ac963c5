#include "save/Walk.h"

#include "binding/FieldEvents.h"
#include "metadata/CheckInput.h"
#include "panels/A1ctrlUser.h"
#include "platform/convert/Convert.h"
#include "platform/convert/DateTime.h"
#include "platform/convert/Format.h"
#include "platform/text/Text.h"
#include "platform/ui/CheckBox.h"
#include "platform/ui/MaskEdBox.h"
#include "platform/ui/TextBox.h"

namespace quillmere {

namespace {

constexpr std::size_t longestText = 255;
constexpr std::int32_t largestNumber = 1000000;
/// "1990年03月" has 8 characters: what is longer names a day.
constexpr std::size_t longestMonth = 8;

/// One walk: holds what is gathered while the widgets go by.
class Walk {
public:
    explicit Walk(const WalkRules& rules) : rules_(rules) {}

    void visit(const ui::Control& widget, const cFieldItem& field) {
        const std::string type = text::lower(field.FieldType);
        switch (widget.kind()) {
        case ui::Kind::TextBox:
            visitTextBox(static_cast<const ui::TextBox&>(widget), field, type);
            break;
        case ui::Kind::MaskEdBox:
            visitMaskedBox(static_cast<const ui::MaskEdBox&>(widget), field, type);
            break;
        case ui::Kind::CheckBox:
            store(field, std::to_string(static_cast<const ui::CheckBox&>(widget).Value()));
            break;
        default:
            break;
        }
    }

    [[nodiscard]] WalkResult take() { return std::move(result_); }

private:
    void visitTextBox(const ui::TextBox& box, const cFieldItem& field, const std::string& type) {
        const std::string& text = box.Text();
        if (const std::string complaint = CheckInput(field, text); !complaint.empty()) {
            result_.complaints.addText(complaint);
        }
        if (type == "varchar") {
            storeText(field, text);
        } else if (type == "int") {
            if (!text.empty()) storeNumber(field, text);
        } else if (type == "datetime") {
            storeDate(field, text, !text.empty());
        } else if (type == "ntext") {
            store(field, plain(text));
        } else if (type == "bit") {
            store(field, text);
        }
        if (text.empty()) checkRequired(box, field);
    }

    void visitMaskedBox(const ui::MaskEdBox& box, const cFieldItem& field, const std::string& type) {
        const std::string& text = box.Text();
        const bool filled = !text.empty() && text != box.emptyText();
        // A number in a masked box is checked for presence, but never written. Meant so.
        if (type == "varchar") {
            if (filled && text.find(text::encode(box.PromptChar())) != std::string::npos) {
                complain(Complaint::MaskNotFull, field);
            }
            store(field, filled ? text : std::string());
        } else if (type == "datetime") {
            storeDate(field, text, filled);
        }
        if (!filled) checkRequired(box, field);
    }

    void storeText(const cFieldItem& field, const std::string& text) {
        if (text::length(text) > longestText) complain(Complaint::TooLong, field);
        if (field.ItemName == rules_.nameField) result_.nameToCheck = text::trim(text);
        if (field.ItemName == rules_.unitField && !rules_.UnitCode.empty() &&
            field.code() != rules_.UnitCode) {
            complain(Complaint::WrongUnit, field);
        }
        store(field, field.CodeTable.empty() ? plain(text) : field.code());
    }

    void storeNumber(const cFieldItem& field, const std::string& text) {
        if (!convert::isNumeric(text)) {
            complain(Complaint::NotNumeric, field);
        } else if (const std::int32_t number = convert::toLong(text); number < 0 || number > largestNumber) {
            complain(Complaint::OutOfRange, field);
        }
        store(field, text);
    }

    void storeDate(const cFieldItem& field, const std::string& text, bool filled) {
        if (!filled) {
            result_.values.push_back({field.ItemName, std::nullopt});
        } else if (!convert::isDate(text)) {
            complain(Complaint::NotDate, field);
            store(field, text);
        } else {
            store(field, convert::format(text, text::length(text) > longestMonth ? "yyyy-mm-dd" : "yyyy-mm"));
        }
    }

    void checkRequired(const ui::Control& widget, const cFieldItem& field) {
        if (field.IsNUll) return;
        if (rules_.requiredOnlyWhenVisible && !widget.Visible()) return;
        complain(Complaint::Required, field);
    }

    [[nodiscard]] std::string plain(const std::string& text) const {
        return rules_.doubleQuotes ? text::replaceAll(text, "'", "''") : text;
    }

    void complain(Complaint complaint, const cFieldItem& field) {
        result_.complaints.add(complaint, field.ItemDesc);
    }

    void store(const cFieldItem& field, std::string text) {
        result_.values.push_back({field.ItemName, std::move(text)});
    }

    const WalkRules& rules_;
    WalkResult result_;
};

} // namespace

WalkResult walkWidgets(A1ctrlUser& panel, const WalkRules& rules) {
    Walk walk(rules);
    for (const auto& widget : panel.Controls()) {
        if (!isValueWidget(widget->name())) continue;
        walk.visit(*widget, panel.FieldItems->Item(fieldKey(widget->name())));
    }
    return walk.take();
}

} // namespace quillmere

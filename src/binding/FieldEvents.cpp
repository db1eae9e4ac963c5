#include "binding/FieldEvents.h"

#include "binding/fmGrpCod.h"
#include "metadata/CheckInput.h"
#include "metadata/cFieldItems.h"
#include "metadata/cWhInfo.h"
#include "platform/convert/DateTime.h"
#include "platform/convert/Format.h"
#include "platform/text/Text.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/Label.h"
#include "platform/ui/MaskEdBox.h"
#include "platform/ui/TextBox.h"

namespace quillmere {

namespace {

constexpr std::string_view valueEnding = "_v";
constexpr std::string_view captionEnding = "_c";

void complain(std::string text) {
    ui::desktop().msgBox(
        {.text = std::move(text), .title = "错误信息", .buttons = ui::Buttons::Ok, .icon = ui::Icon::None});
}

} // namespace

bool isValueWidget(std::string_view name) { return name.ends_with(valueEnding); }

bool isCaptionWidget(std::string_view name) { return name.ends_with(captionEnding); }

std::string fieldKey(std::string_view widgetName) {
    if (widgetName.size() < valueEnding.size()) return {};
    return std::string(widgetName.substr(0, widgetName.size() - valueEnding.size()));
}

FieldEvents::FieldEvents(FieldContext& context, ControlItems& items) : context_(context) {
    items.Change.connect([this](ui::Control& control) { cItems_Change(control); });
    items.GotFocus.connect([this](ui::Control& control) { cItems_GotFocus(control); });
    items.LostFocus.connect([this](ui::Control&) { cItems_LostFocus(); });
    items.DblClick.connect([this](ui::Control& control) { cItems_Dblclick(control); });
    items.Validate.connect([this](ui::Control& control, bool& cancel) { cItems_Validate(control, cancel); });
}

cFieldItem& FieldEvents::fieldOf(const ui::Control& control) const {
    return context_.fieldItems().Item(fieldKey(control.name()));
}

void FieldEvents::cItems_Change(ui::Control& control) {
    const bool holdsText = control.kind() == ui::Kind::TextBox || control.kind() == ui::Kind::MaskEdBox;
    if (!context_.isLoading() && holdsText && isValueWidget(control.name())) {
        context_.whInfo().IsChange = true;
    }
}

void FieldEvents::cItems_GotFocus(ui::Control& control) {
    context_.explainLabel().setCaption({});
    if (isValueWidget(control.name())) context_.explainLabel().setCaption(fieldOf(control).FldExplain);
    auto* box = dynamic_cast<ui::MaskEdBox*>(&control);
    if (box != nullptr && context_.caretToFront()) box->setSelStart(0);
}

void FieldEvents::cItems_LostFocus() { context_.explainLabel().setCaption({}); }

void FieldEvents::cItems_Dblclick(ui::Control& control) {
    auto* box = dynamic_cast<ui::TextBox*>(&control);
    if (box == nullptr || !isValueWidget(box->name())) return;
    cFieldItem& field = fieldOf(*box);
    if (field.CodeTable.empty()) return;

    fmGrpCod selector;
    selector.CodeTable = field.CodeTable;
    selector.SearchText = "";
    selector.IsCancelled = true;
    selector.Dmcod = field.code();
    selector.Dmcpt = field.Dmcpt;
    ui::desktop().showModal(selector);

    const bool picked = !selector.Dmcod.empty() && !selector.Dmcpt.empty();
    field.Dmcod = picked ? selector.Dmcod : std::string();
    field.Dmcpt = picked ? selector.Dmcpt : std::string();
    box->setText(field.Dmcpt);
}

void FieldEvents::cItems_Validate(ui::Control& control, bool& cancel) {
    if (!context_.whInfo().IsChange || context_.isLoading() || !isValueWidget(control.name())) return;
    if (auto* masked = dynamic_cast<ui::MaskEdBox*>(&control); masked != nullptr) {
        validateMasked(*masked, cancel);
    } else if (const auto* box = dynamic_cast<ui::TextBox*>(&control); box != nullptr) {
        if (!box->Text().empty()) check(fieldOf(*box), box->Text(), cancel);
    }
}

void FieldEvents::validateMasked(ui::MaskEdBox& box, bool& cancel) {
    if (box.Text().empty() || box.Text() == box.emptyText()) return;
    const cFieldItem& field = fieldOf(box);
    const std::string entered = text::replaceAll(box.Text(), text::encode(box.PromptChar()), "");
    const bool isDateField = text::lower(field.FieldType) == "datetime";
    if (isDateField ? !convert::isDate(entered) : entered != box.Text()) {
        refuseIllFormed(field, cancel);
        return;
    }
    if (isDateField) box.setText(convert::format(entered, box.Format()));
    check(field, box.Text(), cancel);
}

void FieldEvents::check(const cFieldItem& field, const std::string& text, bool& cancel) {
    const std::string complaint = CheckInput(field, text);
    if (complaint.empty()) return;
    complain(complaint);
    cancel = true;
}

void FieldEvents::refuseIllFormed(const cFieldItem& field, bool& cancel) {
    complain(field.ItemDesc + "录入数据不规范！");
    cancel = true;
}

} // namespace quillmere

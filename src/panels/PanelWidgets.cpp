#include "panels/PanelWidgets.h"

#include "platform/ui/CheckBox.h"
#include "platform/ui/CommandButton.h"
#include "platform/ui/CommonDialog.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/Frame.h"
#include "platform/ui/Image.h"
#include "platform/ui/Label.h"
#include "platform/ui/MaskEdBox.h"
#include "platform/ui/TextBox.h"
#include "platform/ui/UserControl.h"

#include <array>
#include <string>

namespace quillmere {

namespace {

constexpr char32_t promptCharacter = U'_';
constexpr auto legend = "加粗标题为必填项\r\n\r\n蓝色文本框可双击鼠标左键选择代码";

struct MaskRow {
    ValueWidget widget;
    const char* mask;
    const char* format;
};

constexpr std::array masks{
    MaskRow{ValueWidget::Month, "####年##月", "yyyy年mm月"},
    MaskRow{ValueWidget::Day, "####年##月##日", "yyyy年mm月dd日"},
    MaskRow{ValueWidget::Number, "####", "####"},
};

void buildTextBox(ui::UserControl& panel, const FieldRow& field, const std::string& name) {
    auto& box = panel.add<ui::TextBox>(name);
    box.setMultiLine(field.widget == ValueWidget::LongText);
    box.setMaxLength(field.maxLength);
    install(field.filter, box);
}

void buildValueWidget(ui::UserControl& panel, const FieldRow& field, const std::string& name) {
    if (field.widget == ValueWidget::Check) {
        panel.add<ui::CheckBox>(name);
        return;
    }
    for (const MaskRow& row : masks) {
        if (row.widget != field.widget) continue;
        panel.add<ui::MaskEdBox>(name, row.mask, row.format, promptCharacter);
        return;
    }
    buildTextBox(panel, field, name);
}

void buildField(ui::UserControl& panel, const PanelRow& row, const FieldRow& field) {
    const std::string stem = std::string(row.widgetTable) + "_" + std::string(field.code);
    panel.add<ui::Label>(stem + "_c", std::string(field.caption));
    buildValueWidget(panel, field, stem + "_v");
    if (field.unit.empty()) return;
    panel.add<ui::Label>(field.unitLabel.empty() ? stem + "_u" : std::string(field.unitLabel),
                         std::string(field.unit));
}

void buildPhoto(ui::UserControl& panel) {
    panel.add<ui::Image>("imgPerson");
    panel.add<ui::Label>("lblPhoto", "照 片");
    panel.add<ui::CommandButton>("cmdAddPhoto", "更新照片");
    // Nothing shows it: the preview dialog has one of its own. Meant so.
    panel.add<ui::CommonDialog>("dlgSelPic");
}

} // namespace

PanelWidgets buildPanelWidgets(ui::UserControl& panel, const PanelRow& row) {
    PanelWidgets built;
    panel.add<ui::Label>("Title", std::string(row.title));
    built.labOpt = &panel.add<ui::Label>("labOpt");
    panel.add<ui::Line>("Line1");
    auto& helpFrame = panel.add<ui::Frame>("Frm1", "填表说明");
    built.labExplain = &panel.add<ui::Label>("labExplain");
    built.labExplain->setContainer(&helpFrame);
    auto& legendFrame = panel.add<ui::Frame>("Frm2", "界面说明");
    panel.add<ui::Label>("LabInterFace", legend).setContainer(&legendFrame);
    for (const FieldRow& field : row.fields)
        buildField(panel, row, field);
    if (row.hasGrid) built.grid = &panel.add<ui::DataGrid>("DGItems");
    if (row.fill == FillTemplate::Person) buildPhoto(panel);
    return built;
}

} // namespace quillmere

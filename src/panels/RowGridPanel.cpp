#include "panels/RowGridPanel.h"

#include "metadata/Catalogue.h"
#include "metadata/Globals.h"
#include "platform/convert/Format.h"
#include "platform/data/Connection.h"
#include "platform/ui/CommandButton.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/Frame.h"

namespace quillmere {

namespace {

constexpr int optimisticLock = 2;

} // namespace

RowGridPanel::RowGridPanel(const PanelRow& row, std::string name, PanelWindow& window,
                           std::span<const RowGridRow> grids)
    : A1ctrlUser(row, std::move(name), window), grids_(grids) {
    for (std::size_t i = 0; i < grids_.size(); ++i)
        build(i);
}

void RowGridPanel::build(std::size_t index) {
    const RowGridRow& row = grids_[index];
    ui::Frame* frame = row.frame.empty() ? nullptr : &add<ui::Frame>(std::string(row.frame));
    add<ui::DataGrid>(std::string(row.grid)).setContainer(frame);
    const auto addButton = [&](std::string_view name, const char* caption,
                               void (RowGridPanel::*handler)(const RowGridRow&)) {
        auto& button = add<ui::CommandButton>(std::string(name) + std::string(row.buttonEnding), caption);
        button.setContainer(frame);
        button.Click.connect([this, &row, handler] { (this->*handler)(row); });
    };
    addButton("cmdAdd", "增加", &RowGridPanel::addRow);
    addButton("cmdModify", "修改", &RowGridPanel::modifyRow);
    addButton("cmdDel", "删除", &RowGridPanel::removeRow);
}

ui::DataGrid& RowGridPanel::grid(const RowGridRow& row) const {
    return static_cast<ui::DataGrid&>(*find(row.grid));
}

void RowGridPanel::bind(std::size_t index) { bindRows(grids_[index]); }

void RowGridPanel::bindRows(const RowGridRow& row) {
    reporting(row.bindFailure, [&] {
        ui::DataGrid& shown = grid(row);
        shown.setDataSource(OpenRecordset(
            std::string(row.select) + WhInfo.personID + std::string(row.selectEnd), optimisticLock));
        shown.setColumnVisible(0, false);
        for (std::size_t i = 0; i < row.columns.size(); ++i) {
            if (row.columns[i].isNumber) shown.setColumnAlignment(i + 1, ui::Alignment::Right);
        }
    });
}

std::vector<std::string> RowGridPanel::currentCells(const RowGridRow& row) const {
    const ui::DataGrid& shown = grid(row);
    std::vector<std::string> cells;
    if (shown.currentRow() == 0) return cells;
    for (std::size_t column = 0; column < shown.columns().size(); ++column)
        cells.push_back(shown.cellText(static_cast<std::size_t>(shown.currentRow()) - 1, column));
    return cells;
}

void RowGridPanel::addRow(const RowGridRow& row) {
    const auto adding = [&] { edit(row, frmC04::adding, {}); };
    if (row.reportsAdding)
        reporting({}, adding);
    else
        adding();
}

void RowGridPanel::modifyRow(const RowGridRow& row) {
    const std::vector<std::string> cells = currentCells(row);
    if (!cells.empty()) edit(row, frmC04::modifying, cells);
}

void RowGridPanel::edit(const RowGridRow& row, std::int16_t mode, const std::vector<std::string>& cells) {
    frmC04& editor = frmC04::defaultInstance();
    editor.FrameNo = row.frameNo;
    editor.FormCaption = row.captionAfterLoad ? std::string_view() : row.caption;
    editor.KeyA00 = WhInfo.personID;
    editor.EditMode = mode;
    editor.load();
    if (row.captionAfterLoad) editor.setCaption(std::string(row.caption));
    if (!cells.empty()) {
        editor.*row.sequence = cells.front();
        for (std::size_t i = 0; i < row.columns.size(); ++i) {
            const GridColumnRow& column = row.columns[i];
            const std::string& cell = cells[i + 1];
            editor.setInput(column.input, column.isMonth ? convert::format(cell, "yyyy年MM月") : cell);
        }
    }
    ui::desktop().showModal(editor);
    bindRows(row);
}

void RowGridPanel::removeRow(const RowGridRow& row) {
    const std::vector<std::string> cells = currentCells(row);
    if (cells.empty()) return;
    const auto answer = ui::desktop().msgBox({.text = "您确认删除当前数据吗 ？",
                                              .title = "注意",
                                              .buttons = ui::Buttons::YesNo,
                                              .icon = ui::Icon::None});
    if (answer != ui::Answer::Yes) return;
    reporting(row.removeFailure, [&] {
        gConn().execute(std::string(row.remove) + WhInfo.personID + std::string(row.removeEnd) +
                        cells.front());
        bindRows(row);
    });
}

} // namespace quillmere

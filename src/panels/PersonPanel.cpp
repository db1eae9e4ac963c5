#include "panels/PersonPanel.h"

#include "panels/PanelWindow.h"
#include "photos/PhotoStore.h"
#include "photos/frmPicturePreview.h"
#include "platform/Error.h"
#include "platform/ui/Desktop.h"

#include <utility>

namespace quillmere {

namespace {

void inform(std::string text) {
    ui::desktop().msgBox({.text = std::move(text),
                          .title = "更新照片",
                          .buttons = ui::Buttons::Ok,
                          .icon = ui::Icon::Information});
}

} // namespace

PersonPanel::PersonPanel(const PanelRow& row, std::string name, PanelWindow& window)
    : A1ctrlUser(row, std::move(name), window) {
    find("cmdAddPhoto")->Click.connect([this] { cmdAddPhoto_Click(); });
}

void PersonPanel::cmdAddPhoto_Click() {
    try {
        updatePhoto();
    } catch (const Error& error) {
        inform("更新照片出错！原因是：" + error.description());
    }
}

void PersonPanel::updatePhoto() {
    const std::string personID = WhInfo.personID;
    if (personID.empty()) {
        inform("请选择需要更新照片的人员！");
        return;
    }
    frmPicturePreview preview(window().photoPath());
    preview.PersonKey = personID;
    ui::desktop().showModal(preview);
    if (preview.Cancelled != 0) return;
    LoadPersonPhoto(*find("imgPerson"), photoPath(window().photoPath(), personID));
    window().photoChanged();
}

} // namespace quillmere

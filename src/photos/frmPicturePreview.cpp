#include "photos/frmPicturePreview.h"

#include "photos/PhotoStore.h"
#include "platform/Error.h"
#include "platform/files/Files.h"
#include "platform/ui/Desktop.h"

#include <utility>

namespace quillmere {

namespace {

constexpr std::uint64_t largestFile = 307200;

constexpr const char* noPhotoYet = "当前没有照片";
constexpr const char* noPicture = "没有找到照片";

void inform(std::string text) {
    ui::desktop().msgBox(
        {.text = std::move(text), .title = {}, .buttons = ui::Buttons::Ok, .icon = ui::Icon::Information});
}

} // namespace

frmPicturePreview::frmPicturePreview(std::string photoFolder)
    : Form("frmPicturePreview", "照片预览")
    , photoFolder_(std::move(photoFolder))
    , imgOld(add<ui::Image>("imgOld"))
    , lblOldPicture(add<ui::Label>("lblOldPicture", noPhotoYet))
    , imgNew(add<ui::Image>("imgNew"))
    , lblNewPicture(add<ui::Label>("lblNewPicture", noPhotoYet))
    , cmdSelPic(add<ui::CommandButton>("cmdSelPic", "选择(&S)..."))
    , cmdOK(add<ui::CommandButton>("cmdOK", "确   定"))
    , cmdCancel(add<ui::CommandButton>("cmdCancel", "取   消"))
    , dlgSelPic(add<ui::CommonDialog>("dlgSelPic")) {
    placeWidgets();
    cmdSelPic.Click.connect([this] { cmdSelPic_Click(); });
    cmdOK.Click.connect([this] { cmdOK_Click(); });
    cmdCancel.Click.connect([this] { cmdCancel_Click(); });
}

void frmPicturePreview::placeWidgets() {
    imgOld.setGeometry({240, 240, 3000, 4000});
    lblOldPicture.setGeometry({240, 4320, 3000, 255});
    imgNew.setGeometry({3480, 240, 3000, 4000});
    lblNewPicture.setGeometry({3480, 4320, 3000, 255});
    cmdSelPic.setGeometry({240, 4740, 1200, 360});
    cmdOK.setGeometry({3960, 4740, 1200, 360});
    cmdCancel.setGeometry({5280, 4740, 1200, 360});
    setGeometry({0, 0, 6720, 5340});
}

void frmPicturePreview::onLoad() {
    Cancelled = 1;
    centre();
    findOldPhoto();
    TargetPath = photoPath(photoFolder_, PersonKey);
    showOldPhoto();
}

void frmPicturePreview::onActivate() { cmdSelPic.SetFocus(); }

void frmPicturePreview::centre() {
    const ui::Rect screen = ui::desktop().screen();
    ui::Rect place = geometry();
    place.left = screen.left + (screen.width - place.width) / 2;
    place.top = screen.top + (screen.height - place.height) / 2;
    setGeometry(place);
}

void frmPicturePreview::findOldPhoto() {
    OldPath.clear();
    try {
        const std::string path = photoPath(photoFolder_, PersonKey);
        if (PhotoFileExists(path)) OldPath = path;
    } catch (const Error& error) {
        inform("读取此人员的照片出错！原因是：" + error.description());
    }
}

void frmPicturePreview::showOldPhoto() {
    if (OldPath.empty()) {
        lblOldPicture.setCaption(noPhotoYet);
        return;
    }
    try {
        ui::desktop().showPicture(imgOld, OldPath);
        lblOldPicture.setCaption("当前照片");
    } catch (const Error&) {
        lblOldPicture.setCaption(noPicture);
    }
}

void frmPicturePreview::cmdSelPic_Click() {
    const std::string path = chooseFile();
    if (path.empty())
        showNoNewPhoto();
    else
        showNewPhoto(path);
}

std::string frmPicturePreview::chooseFile() {
    // A file and no directory, or nothing at all: meant so.
    dlgSelPic.InitDir = OldPath;
    dlgSelPic.FileName.clear();
    dlgSelPic.Flags = ui::fileFlag::hideReadOnly;
    dlgSelPic.Filter = "图片文件 (*.jpg)|*.jpg;";
    dlgSelPic.ShowOpen();
    const std::string& path = dlgSelPic.FileName;
    if (path.empty() || files::size(path) <= largestFile) return path;
    ui::desktop().msgBox({.text = "所选照片文件不能大于300K,请重新选择",
                          .title = "选择照片",
                          .buttons = ui::Buttons::Ok,
                          .icon = ui::Icon::Warning});
    return {};
}

void frmPicturePreview::showNewPhoto(const std::string& path) {
    try {
        ui::desktop().showPicture(imgNew, path);
        lblNewPicture.setCaption("新照片");
        NewPath = path;
    } catch (const Error&) {
        lblNewPicture.setCaption(noPicture);
        NewPath.clear();
    }
}

void frmPicturePreview::showNoNewPhoto() {
    lblNewPicture.setCaption(noPhotoYet);
    NewPath.clear();
    imgNew.setPicture({});
}

void frmPicturePreview::cmdOK_Click() {
    try {
        if (!storeNewPhoto()) return;
        Cancelled = 0;
        hide();
    } catch (const Error& error) {
        inform("更新此人员的照片出错！原因是：" + error.description());
    }
}

bool frmPicturePreview::storeNewPhoto() {
    if (NewPath.empty()) return true;
    if (!OldPath.empty()) {
        const auto answer = ui::desktop().msgBox({.text = "确定替换现有照片文件吗？",
                                                  .title = Caption(),
                                                  .buttons = ui::Buttons::YesNo,
                                                  .icon = ui::Icon::Question});
        if (answer != ui::Answer::Yes) return false;
    }
    const std::string& destination = OldPath.empty() ? TargetPath : OldPath;
    // A file that has vanished meanwhile is passed over without a word: meant so.
    if (PhotoFileExists(NewPath)) files::copyOver(NewPath, destination);
    return true;
}

void frmPicturePreview::cmdCancel_Click() {
    NewPath.clear();
    Cancelled = 1;
    hide();
}

} // namespace quillmere

#include "photos/PhotoStore.h"

#include "platform/Error.h"
#include "platform/files/Files.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/Image.h"

namespace quillmere {

std::string photoPath(std::string_view folder, std::string_view personID) {
    return std::string(folder) + "\\" + std::string(personID) + ".jpg";
}

bool PhotoFileExists(std::string_view path) { return files::exists(path); }

void LoadPersonPhoto(ui::Control& control, std::string_view path) {
    if (control.name() != "imgPerson" || !PhotoFileExists(path)) return;
    auto* image = dynamic_cast<ui::Image*>(&control);
    if (image == nullptr) throw Error(Failure::MemberNotFound);
    ui::desktop().showPicture(*image, std::string(path));
}

void DeletePersonPhoto(std::string_view personID, std::string_view folder) {
    try {
        const std::string path = photoPath(folder, personID);
        if (PhotoFileExists(path)) files::removeForced(path);
    } catch (const Error& error) {
        ui::desktop().msgBox({.text = error.description(),
                              .title = "人员照片删除",
                              .buttons = ui::Buttons::Ok,
                              .icon = ui::Icon::Warning});
    }
}

} // namespace quillmere

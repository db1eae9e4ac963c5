#include "platform/ui/Desktop.h"

#include "platform/Error.h"
#include "platform/files/Files.h"
#include "platform/ui/Image.h"
#include "platform/ui/Jpeg.h"

namespace quillmere::ui {

namespace {

Desktop* chosenDesktop = nullptr;

} // namespace

void Desktop::showModal(Form& form) {
    if (!form.isLoaded()) form.load();
    if (!form.isLoaded()) return;
    open_.push_back(&form);
    try {
        form.show();
        if (form.isOpen()) runModal(form);
    } catch (...) {
        open_.pop_back();
        form.unload();
        throw;
    }
    open_.pop_back();
}

void Desktop::showPicture(Image& image, const std::string& path) const {
    const std::string content = files::read(path);
    // The structure is looked at on every toolkit, so that what is no photo on one is none on another.
    if (!isJpeg(content) || !canDecode(content)) throw Error(Failure::InvalidPicture);
    image.setPicture(path);
}

void Desktop::sendKeys(std::string_view sequence) {
    if (Form* form = front(); form != nullptr) form->postKeys(parseKeys(sequence));
}

Desktop& desktop() {
    if (chosenDesktop == nullptr) {
        throw Error(Failure::ObjectNotSet, "没有选择用户界面。请先选择一个界面工具包。", "Quillmere");
    }
    return *chosenDesktop;
}

void useDesktop(Desktop* desktop) { chosenDesktop = desktop; }

} // namespace quillmere::ui

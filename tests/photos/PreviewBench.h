#pragma once

#include "photos/frmPicturePreview.h"
#include "support/BrokenFiles.h"
#include "support/PhotoFolder.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace quillmere::test {

/// The preview dialog of the person p1, whose photo is the file p1.jpg of a folder.
class PreviewBench : public testing::Test {
protected:
    PreviewBench() { renew(folder.name()); }

    void renew(const std::string& photoPath) {
        preview = std::make_unique<frmPicturePreview>(photoPath);
        preview->PersonKey = "p1";
    }

    /// Opens the dialog and works on it.
    void open(const ScriptedPerson::Work& work) { person.show(*preview, work); }

    void press(std::string_view button) { preview->click(controlOf<ui::CommandButton>(*preview, button)); }

    /// Presses the button that selects, and picks this path in the file dialog.
    void choose(std::string path) {
        person.chooseFile(std::move(path));
        press("cmdSelPic");
    }

    [[nodiscard]] std::string label(std::string_view name) const {
        return controlOf<ui::Label>(*preview, name).Caption();
    }
    [[nodiscard]] std::string picture(std::string_view name) const {
        return controlOf<ui::Image>(*preview, name).Picture();
    }
    [[nodiscard]] std::string photo() const { return folder.content("p1.jpg"); }

    ScriptedPerson person;
    PhotoFolder folder;
    std::unique_ptr<frmPicturePreview> preview;

    const std::string oldPicture = jpegOf(1000);
    const std::string newPicture = jpegOf(2000);
};

} // namespace quillmere::test

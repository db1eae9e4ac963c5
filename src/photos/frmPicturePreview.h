#pragma once

#include "platform/ui/CommandButton.h"
#include "platform/ui/CommonDialog.h"
#include "platform/ui/Form.h"
#include "platform/ui/Image.h"
#include "platform/ui/Label.h"

#include <cstdint>
#include <string>

namespace quillmere {

/// The dialog in which a person's photo is compared with a newly chosen file and replaced by it. A
/// caller makes one for each use, sets `PersonKey`, shows it modally and then reads `Cancelled`. What
/// is confirmed is written at once, and nothing takes it back.
class frmPicturePreview : public ui::Form {
public:
    /// `photoFolder`: the directory of the photo files.
    explicit frmPicturePreview(std::string photoFolder);

    /// Full path of the photo that the person has; empty when there is none.
    std::string OldPath;
    /// Full path of the chosen file; empty when none is chosen.
    std::string NewPath;
    /// The person's photo path, whether or not the file exists.
    std::string TargetPath;
    /// 1 until the user confirms.
    std::int16_t Cancelled = 1;
    std::string PersonKey;

protected:
    void onLoad() override;
    void onActivate() override;

private:
    void placeWidgets();
    void centre();
    void findOldPhoto();
    void showOldPhoto();

    void cmdSelPic_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

    [[nodiscard]] std::string chooseFile();
    void showNewPhoto(const std::string& path);
    void showNoNewPhoto();
    /// False when the user keeps the photo that there is.
    [[nodiscard]] bool storeNewPhoto();

    std::string photoFolder_;

    ui::Image& imgOld;
    ui::Label& lblOldPicture;
    ui::Image& imgNew;
    ui::Label& lblNewPicture;
    ui::CommandButton& cmdSelPic;
    ui::CommandButton& cmdOK;
    ui::CommandButton& cmdCancel;
    ui::CommonDialog& dlgSelPic;
};

} // namespace quillmere

#pragma once

#include "platform/ui/Control.h"

namespace quillmere::ui {

/// A text, with a picture beside it where the one that the text names has one.
class Label : public Control {
public:
    explicit Label(std::string name, std::string caption = {})
        : Control(Kind::Label, std::move(name)), caption_(std::move(caption)) {}

    [[nodiscard]] const std::string& Caption() const { return caption_; }
    void setCaption(std::string caption);
    [[nodiscard]] bool FontBold() const { return bold_; }
    void setFontBold(bool bold);
    /// Font family; empty for that of the window.
    [[nodiscard]] const std::string& FontName() const { return fontName_; }
    void setFontName(std::string name);

    /// A picture file, which may be missing; empty for none. It shows where there is room.
    [[nodiscard]] const std::string& Picture() const { return picture_; }
    /// Shows the file anew, also under a path that is on show: the file may have been replaced.
    void setPicture(std::string path);

    [[nodiscard]] std::optional<std::string> property(std::string_view name) const override;

private:
    std::string caption_;
    std::string fontName_;
    std::string picture_;
    bool bold_ = false;
};

} // namespace quillmere::ui

#pragma once

#include "platform/ui/Control.h"

namespace quillmere::ui {

/// Shows a picture file, named by its path as the system forms it.
class Image : public Control {
public:
    explicit Image(std::string name) : Control(Kind::Image, std::move(name)) {}

    /// Empty when nothing is shown.
    [[nodiscard]] const std::string& Picture() const { return picture_; }
    /// Shows the file anew, also under a path that is on show: the file may have been replaced.
    void setPicture(std::string path);
    [[nodiscard]] std::optional<std::string> property(std::string_view name) const override;

private:
    std::string picture_;
};

} // namespace quillmere::ui

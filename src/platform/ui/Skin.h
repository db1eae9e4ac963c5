#pragma once

#include "platform/ui/Control.h"

namespace quillmere::ui {

/// Dresses the form that it stands on in a style file. The toolkit reads the file; an empty path,
/// or one that leads to no file, means the toolkit's own good default.
class Skin : public Control {
public:
    explicit Skin(std::string name) : Control(Kind::Skin, std::move(name)) { setVisible(false); }

    void LoadSkin(std::string path) { path_ = std::move(path); }
    /// Applies the loaded skin to the form.
    void ApplySkin() {
        applied_ = true;
        notify(Property::Picture);
    }
    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] bool isApplied() const { return applied_; }

private:
    std::string path_;
    bool applied_ = false;
};

} // namespace quillmere::ui

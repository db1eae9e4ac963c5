#pragma once

#include "binding/ControlItem.h"
#include "platform/ui/Colour.h"
#include "platform/ui/Event.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quillmere {

/// The design-time properties that every panel keeps: stored values, read from and written to a
/// property store under their own names. They carry nothing of a panel's behaviour.
class DesignProperties {
public:
    [[nodiscard]] ui::Colour BackColor() const { return backColor_; }
    void setBackColor(ui::Colour value) { store(backColor_, value, "BackColor"); }
    [[nodiscard]] ui::Colour ForeColor() const { return foreColor_; }
    void setForeColor(ui::Colour value) { store(foreColor_, value, "ForeColor"); }
    [[nodiscard]] bool Enabled() const { return enabled_; }
    void setEnabled(bool value) { store(enabled_, value, "Enabled"); }
    /// Family name; empty for the font of what the panel stands in.
    [[nodiscard]] const std::string& Font() const { return font_; }
    void setFont(std::string value) { store(font_, std::move(value), "Font"); }
    [[nodiscard]] std::int16_t BackStyle() const { return backStyle_; }
    void setBackStyle(std::int16_t value) { store(backStyle_, value, "BackStyle"); }
    [[nodiscard]] std::int16_t BorderStyle() const { return borderStyle_; }
    void setBorderStyle(std::int16_t value) { store(borderStyle_, value, "BorderStyle"); }

    /// A missing name leaves the value of a new panel.
    void readFrom(const PropertyBag& bag);
    void writeTo(PropertyBag& bag) const;

    /// The name of the property that was written.
    ui::Event<std::string_view> PropertyChanged;

private:
    template <class T>
    void store(T& place, T value, std::string_view name) {
        place = std::move(value);
        PropertyChanged.raise(name);
    }

    ui::Colour backColor_ = 0;
    ui::Colour foreColor_ = 0;
    bool enabled_ = false;
    std::string font_;
    std::int16_t backStyle_ = 0;
    std::int16_t borderStyle_ = 0;
};

} // namespace quillmere

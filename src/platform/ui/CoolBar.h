#pragma once

#include "platform/ui/Frame.h"

#include <vector>

namespace quillmere::ui {

/// A frame of bands, each of which holds one control.
class CoolBar : public Frame {
public:
    struct Band {
        Control* child = nullptr;
        /// Twips.
        int minHeight = 0;
    };

    explicit CoolBar(std::string name) : Frame(std::move(name)) {}

    void addBand(Control& child) {
        bands_.push_back({&child, 0});
        child.setContainer(this);
    }
    [[nodiscard]] const std::vector<Band>& bands() const { return bands_; }
    void setMinHeight(std::size_t band, int twips) {
        bands_.at(band).minHeight = twips;
        notify(Property::Geometry);
    }

private:
    std::vector<Band> bands_;
};

} // namespace quillmere::ui

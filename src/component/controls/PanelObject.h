#pragma once

#include "component/controls/LonePanel.h"
#include "component/objects/DispatchObject.h"

#include <memory>
#include <string_view>

namespace quillmere::component {

/// A panel class, "Quillmere.A1ctrlUser" and the set's name, as a host gets it by that name: its design
/// properties and its contract, without a window.
class PanelObject final : public DispatchObject<PanelObject> {
public:
    explicit PanelObject(std::string_view className) : lone_(className) {}

    [[nodiscard]] static std::span<const MemberRow<PanelObject>> rows();

    [[nodiscard]] A1ctrlUser& panel() { return lone_.panel(); }

private:
    LonePanel lone_;
};

/// `WhInfo` of a panel: reads and writes go to the panel's own.
class WhInfoObject final : public DispatchObject<WhInfoObject> {
public:
    explicit WhInfoObject(ComPtr<PanelObject> panel) : panel_(std::move(panel)) {}

    [[nodiscard]] static std::span<const MemberRow<WhInfoObject>> rows();

    [[nodiscard]] cWhInfo& info() { return panel_->panel().WhInfo; }

private:
    ComPtr<PanelObject> panel_;
};

} // namespace quillmere::component

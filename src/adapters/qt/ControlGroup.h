#pragma once

#include "adapters/qt/ControlPeer.h"

#include "platform/ui/ControlHost.h"

#include <functional>
#include <vector>

namespace quillmere::qt {

class FormPeer;
class LabelPeer;

/// A value widget with the labels that belong to it; either label may be missing.
struct Field {
    LabelPeer* caption = nullptr;
    ControlPeer* editor = nullptr;
    LabelPeer* unit = nullptr;

    /// A box for many lines takes a row of its own.
    [[nodiscard]] bool isWide() const;
    bool operator==(const Field&) const = default;
};

/// The controls of one container, sorted by the part that they play in a layout.
struct ControlGroup {
    /// In tab order.
    std::vector<Field> fields;
    std::vector<ControlPeer*> images;
    std::vector<ControlPeer*> lists;
    std::vector<ControlPeer*> grids;
    std::vector<ControlPeer*> buttons;
    std::vector<ControlPeer*> tabs;
    std::vector<ControlPeer*> frames;
    /// Labels that belong to no field.
    std::vector<LabelPeer*> notes;
};

/// Sorts those controls of the host that the test accepts. Captions and units are told by their names
/// ("_c", "_u" for a "_v"), else by standing before or behind their field in `Controls`.
[[nodiscard]] ControlGroup groupControls(const FormPeer& form, const ui::ControlHost& host,
                                         const std::function<bool(const ui::Control&)>& accepts);

} // namespace quillmere::qt

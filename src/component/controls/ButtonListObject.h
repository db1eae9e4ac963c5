#pragma once

#include "component/objects/DispatchObject.h"
#include "shell/ctrlButtonList.h"

#include <string>

namespace quillmere::component {

/// `Quillmere.ctrlButtonList`, the toolbar that no window places: what a host gives it is kept and given
/// back.
class ButtonListObject final : public DispatchObject<ButtonListObject> {
public:
    [[nodiscard]] static std::span<const MemberRow<ButtonListObject>> rows();

    [[nodiscard]] ctrlButtonList& list() { return list_; }
    ComPtr<IDispatch> UControl;

private:
    ctrlButtonList list_{"ctrlButtonList"};
};

} // namespace quillmere::component
